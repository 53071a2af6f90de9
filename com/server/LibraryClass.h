#pragma once

#include "com/edge/ComObject.h"
#include "com/server/Identity.h"

namespace tsln::com {

/// A new instance of the class `Library` as the host creates it. Early-bound callers use its slots,
/// late-bound ones its names; both end in the same operation. Arguments come as values, as references and as
/// references to variants alike, in any type that converts. Failures are result codes with source and text;
/// nothing else gets out.
ComPtr<ILibrary> createLibrary();

}  // namespace tsln::com
