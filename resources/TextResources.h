#pragma once

#include <optional>
#include <string_view>

namespace tsln::resources {

/// The text resource of that name, ignoring letter case: a file of this folder, named without its ending. Its lines end
/// with CR LF.
///
/// On Windows, the module contains these files as resources of the type CUSTOM (see texts.rc), and reads them from
/// there. Other programs have them built in.
std::optional<std::string_view> text(std::string_view name);

}  // namespace tsln::resources
