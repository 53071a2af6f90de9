#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tsln::workbench {

/// Returns the words of the command line in UTF-8, beginning with the program's name.
std::vector<std::string> commandLineWords(int argc, char** argv);

/// Returns the rest of the word, without quotes around it, when the word begins with the option's name in any letter case.
std::optional<std::string> optionValue(std::string_view word, std::string_view option);

}  // namespace tsln::workbench
