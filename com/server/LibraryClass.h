#pragma once

#include <functional>

#include "bridge/Library.h"
#include "com/edge/ComObject.h"
#include "com/server/Identity.h"

namespace tsln::com {

/// A new instance of the class `Library` as the host creates it; `plugIn` gives it its operations.
/// Early-bound callers use its slots, late-bound ones its names; both end in the same operation.
///
/// Arguments come as values, as references and as references to variants, in any type that converts. A
/// variable that was passed by reference for an argument declared by reference is written, in its own type,
/// when the operation has succeeded and has changed it. A failure is a result code with source and text; no
/// exception gets out.
ComPtr<ILibrary> createLibrary(const std::function<void(tsln::Library&)>& plugIn);

}  // namespace tsln::com
