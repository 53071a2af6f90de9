#pragma once

#include "com/edge/Platform.h"

namespace tsln::com {

/// Loads the type information of ILibrary from this module's resources. The caller owns the reference.
HRESULT loadInterfaceInfo(ITypeInfo** info) noexcept;

/// Registers the type library and the interface ILibrary.
HRESULT registerTypeLibrary() noexcept;
/// Removes the registration of the type library; S_OK if there is none.
HRESULT unregisterTypeLibrary() noexcept;

}  // namespace tsln::com
