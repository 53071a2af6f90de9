#pragma once

#include <string>
#include <string_view>

#include "com/edge/Platform.h"

namespace tsln::com {

/// UTF-8 to the platform's UTF-16. What is no UTF-8 becomes the replacement character. No length limit but
/// the platform's (2 GB).
std::wstring toWide(std::string_view utf8);

/// UTF-16 to UTF-8; halves of a surrogate pair that stand alone become the replacement character.
std::string toUtf8(std::wstring_view wide);

/// An automation string as text; a null one is empty. Zero characters inside are kept.
std::string fromBstr(BSTR text);

/// A new automation string, owned by the caller. Throws std::bad_alloc.
BSTR newBstr(std::string_view utf8);

}  // namespace tsln::com
