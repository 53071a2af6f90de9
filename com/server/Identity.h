#pragma once

#include "com/edge/Platform.h"
#include "tslnmaint5.h"  // made from the table of operations

namespace tsln::com {

/// The names and the version by which the module is registered. The identifiers of class, interface and type
/// library stand in tslnmaint5.idl.in. They must never change; the version changes together with the host's
/// only.
inline constexpr wchar_t programId[] = L"tslnmaint5.Library";
inline constexpr wchar_t description[] = L"TSLN 5.0 - Maintenance";
inline constexpr unsigned short majorVersion = 5;
inline constexpr unsigned short minorVersion = 0;

/// The module (DLL) that contains this code.
HINSTANCE thisModule() noexcept;

}  // namespace tsln::com
