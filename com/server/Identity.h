#pragma once

#include "com/edge/Platform.h"
#include "tslnmaint5.h"  // made from the table of operations

namespace tsln::com {

/// What the module is known by. The class, interface and library identifiers stand in tslnmaint5.idl.in; none
/// of them may ever change, and the version only together with the host.
inline constexpr wchar_t programId[] = L"tslnmaint5.Library";
inline constexpr wchar_t description[] = L"TSLN 5.0 - Maintenance";
inline constexpr unsigned short majorVersion = 5;
inline constexpr unsigned short minorVersion = 0;

/// The module that this code stands in.
HINSTANCE thisModule() noexcept;

}  // namespace tsln::com
