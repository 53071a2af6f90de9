#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tsln::desktop {

/// The text resource of the module that contains this code; no value when it has none of that name. Its bytes are
/// taken as UTF-8.
std::optional<std::string> findTextResource(std::string_view name);

}  // namespace tsln::desktop
