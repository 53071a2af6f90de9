#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// Returns the text in a form that cannot be read in the database, each time another one; empty for an empty text. It
/// protects from a glance at the data, not from someone who has this program.
std::string protectSecret(std::string_view text);
/// Returns the text of a form from protectSecret(). Another text raises HostError(code::typeMismatch).
std::string readSecret(std::string_view stored);

}  // namespace tsln::workbench
