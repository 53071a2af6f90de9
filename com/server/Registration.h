#pragma once

#include <string>

#include "com/edge/Platform.h"

namespace tsln::com {

/// The file that this module was loaded from.
std::wstring modulePath();

/// Makes the class known to the system under its identifiers, pointing to modulePath(). What was written is
/// taken back when a step fails (E_ACCESSDENIED without the rights of an administrator).
HRESULT registerServer() noexcept;

/// Leaves no trace of registerServer(), also where parts of it are missing. Goes on after a failure and
/// answers the first.
HRESULT unregisterServer() noexcept;

}  // namespace tsln::com
