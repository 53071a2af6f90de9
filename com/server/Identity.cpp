// Gives the identifiers of the generated header their one definition: the order of these two does it.
// clang-format off
#include <initguid.h>
#include "com/server/Identity.h"
// clang-format on
