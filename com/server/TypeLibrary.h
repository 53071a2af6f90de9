#pragma once

#include "com/edge/Platform.h"

namespace tsln::com {

/// The description of ILibrary from the type library in this module's resources; the reference is the
/// caller's.
HRESULT loadInterfaceInfo(ITypeInfo** info) noexcept;

/// Makes the type library known to the system, with the interface it describes.
HRESULT registerTypeLibrary() noexcept;
/// Takes that back; nothing registered is no failure.
HRESULT unregisterTypeLibrary() noexcept;

}  // namespace tsln::com
