#include "workbench/sql/SqlText.h"

#include <algorithm>

#include "automation/HostError.h"

namespace tsln::workbench {

std::string literal(std::string_view text) {
    std::string result = "'";
    for (char c : text)
        result.append(c == '\'' ? 2 : 1, c);
    return result + "'";
}

bool isPlainName(std::string_view name) {
    const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    return !name.empty() && name.size() <= 128 && letter(name.front()) &&
           std::ranges::all_of(name, [&](char c) { return letter(c) || (c >= '0' && c <= '9'); });
}

std::string bracketed(std::string_view name) {
    if (!isPlainName(name)) {
        throw HostError(code::fail, "Database",
                        "'" + std::string(name) + "' is no name of a table or column.");
    }
    return "[" + std::string(name) + "]";
}

}  // namespace tsln::workbench
