// Defines the identifiers that the generated header declares. initguid.h must come first.
// clang-format off
#include <initguid.h>
#include "com/server/Identity.h"
// clang-format on
