#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// Stands in traces for a password, and for what a password is stored as.
inline constexpr std::string_view hiddenText = "(hidden)";

/// True for a member that takes a password or returns one.
bool takesSecrets(std::string_view member) noexcept;
/// True for a statement that names a column with passwords.
bool namesSecrets(std::string_view statement);
/// The statement with all values of such columns hidden. What cannot be read as a statement is hidden as a whole.
std::string withoutSecrets(std::string_view statement);

}  // namespace tsln::workbench
