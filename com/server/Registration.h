#pragma once

#include <string>

#include "com/edge/Platform.h"

namespace tsln::com {

/// The full path of this module's file.
std::wstring modulePath();

/// Registers the class and the type library for the file modulePath(). When a step fails, removes all entries
/// and returns the error (E_ACCESSDENIED without administrator rights).
HRESULT registerServer() noexcept;

/// Removes all entries of registerServer(); entries that do not exist are no error. Continues after a failure
/// and returns the first error.
HRESULT unregisterServer() noexcept;

}  // namespace tsln::com
