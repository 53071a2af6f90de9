#pragma once

#include <string>
#include <string_view>

#include "com/edge/Platform.h"

namespace tsln::com {

/// Converts UTF-8 to the platform's UTF-16. Bytes that are no UTF-8 become replacement characters. A text may
/// have up to 2 GB.
std::wstring toWide(std::string_view utf8);

/// Converts UTF-16 to UTF-8. A surrogate without its other half becomes a replacement character.
std::string toUtf8(std::wstring_view wide);

/// The text of an automation string, including any zero characters; empty for null.
std::string fromBstr(BSTR text);

/// Makes an automation string, which the caller owns. Throws std::bad_alloc.
BSTR newBstr(std::string_view utf8);

}  // namespace tsln::com
