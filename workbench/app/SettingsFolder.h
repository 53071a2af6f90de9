#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// The path of a file in the user's folder for settings, which is made when it is missing.
std::string settingsFile(std::string_view name);

}  // namespace tsln::workbench
