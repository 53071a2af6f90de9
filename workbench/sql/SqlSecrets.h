#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// Stands in traces and error texts for a password, and for what a password is stored as.
inline constexpr std::string_view hiddenText = "(hidden)";

/// True for a statement that names a column with passwords.
bool namesSecrets(std::string_view statement);
/// The statement with all values of such columns hidden. What cannot be read as a statement is hidden as a whole.
std::string withoutSecrets(std::string_view statement);
/// The text of the error with which the statement failed. A text that quotes a value of a statement about passwords is
/// replaced.
std::string errorWithoutSecrets(std::string_view statement, std::string_view error);

}  // namespace tsln::workbench
