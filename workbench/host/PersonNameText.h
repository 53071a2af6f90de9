#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

struct PersonNameParts {
    std::string first, middleInitial, last;
};

/// Splits a name written as "Anna M. Lund" or as "Lund, Anna M.". Titles in front are dropped; "Jr.", "van" and the like
/// belong to the last name. A single word is a last name. Blanks separate the words.
PersonNameParts parsePersonName(std::string_view name);

}  // namespace tsln::workbench
