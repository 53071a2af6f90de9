#include <algorithm>
#include <optional>
#include <string>

#include "workbench/sql/Guid.h"
#include "workbench/sql/SqlDates.h"
#include "workbench/sql/SqlFunctionCall.h"
#include "workbench/sql/SqlFunctionTables.h"
#include "workbench/sql/TextOrder.h"

namespace tsln::workbench {

namespace {

std::size_t toCount(SqlValue value, const char* function) {
    std::int64_t count = toInteger(value, "int");
    if (count < 0)
        throw SqlRefusal(std::string("Invalid length parameter passed to the ") + function + " function.");
    return std::size_t(count);
}

void like(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    std::optional<char32_t> escape;
    if (call.size() == 3) {
        std::u32string sign = decodeUtf8(call[2].text());
        if (sign.size() != 1) throw SqlRefusal("The escape of LIKE must be one character.");
        escape = sign.front();
    }
    call.give(std::int64_t(matchesPattern(call[0].text(), call[1].text(), escape)));
}

void length(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    std::string text = call[0].text();
    while (text.ends_with(' '))
        text.pop_back();  // the server does not count trailing blanks
    call.give(std::int64_t(decodeUtf8(text).size()));
}

void left(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    call.give(
        encodeUtf8(std::u32string_view(decodeUtf8(call[0].text())).substr(0, toCount(call[1], "LEFT"))));
}

void right(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    std::u32string text = decodeUtf8(call[0].text());
    std::size_t count = std::min(toCount(call[1], "RIGHT"), text.size());
    call.give(encodeUtf8(std::u32string_view(text).substr(text.size() - count)));
}

void substring(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    std::u32string text = decodeUtf8(call[0].text());
    std::int64_t size = std::int64_t(text.size());
    std::int64_t start = std::clamp<std::int64_t>(toInteger(call[1], "int"), -size - (1LL << 32), size + 1);
    std::int64_t count =
        std::min<std::int64_t>(std::int64_t(toCount(call[2], "SUBSTRING")), size + (1LL << 33));
    // As on the server, positions before the first character count towards the length.
    std::int64_t end = std::min(start + count, size + 1);
    start = std::max<std::int64_t>(start, 1);
    if (end <= start) return call.give(std::string_view());
    call.give(encodeUtf8(std::u32string_view(text).substr(std::size_t(start - 1), std::size_t(end - start))));
}

void charIndex(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    std::u32string wanted = decodeFolded(call[0].text()), text = decodeFolded(call[1].text());
    std::int64_t from = call.size() == 3 ? std::max<std::int64_t>(toInteger(call[2], "int"), 1) : 1;
    if (wanted.empty() || from > std::int64_t(text.size())) return call.give(std::int64_t(0));
    std::size_t found = text.find(wanted, std::size_t(from - 1));
    call.give(found == std::u32string::npos ? std::int64_t(0) : std::int64_t(found + 1));
}

void replace(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    std::u32string text = decodeUtf8(call[0].text()), seen = decodeFolded(call[0].text());
    std::u32string wanted = decodeFolded(call[1].text()), other = decodeUtf8(call[2].text()), result;
    std::size_t at = 0;
    if (!wanted.empty()) {
        for (std::size_t found; (found = seen.find(wanted, at)) != std::u32string::npos;
             at = found + wanted.size()) {
            result.append(text, at, found - at).append(other);
        }
    }
    call.give(encodeUtf8(result.append(text, at)));
}

/// CONCAT. A NULL counts as an empty text.
void concat(const SqlCall& call) {
    std::string result;
    for (std::size_t i = 0; i < call.size(); ++i)
        result += call[i].joined();
    call.give(std::string_view(result));
}

/// Joins first name, middle initial and last name; missing parts are left out.
void buildEmployeeName(const SqlCall& call) {
    std::string result;
    for (std::size_t i = 0; i < 3; ++i) {
        std::string part(trimmed(call[i].text()));
        if (part.empty()) continue;
        if (!result.empty()) result += ' ';
        result += part;
    }
    call.give(std::string_view(result));
}

/// Arguments: value, length or -1, date style or NULL, 1 to pad with blanks.
void toText(const SqlCall& call) {
    if (call[0].isNull()) return call.giveNull();
    std::string text = call[0].text();
    std::int64_t length = call[1].integer();
    if (call[0].isText()) {
        if (auto date = readStoredDate(text)) {
            if (!call[2].isNull()) {
                text = date->text(int(call[2].integer()));
            } else if (!date->dateOnly) {
                text = date->text(0);
            }
        }
    } else if (length >= 0 && text.size() > std::size_t(length)) {
        text = "*";  // the server's result for a number that does not fit
    }
    if (length >= 0) {
        std::u32string characters = decodeUtf8(text);
        if (characters.size() > std::size_t(length)) characters.resize(std::size_t(length));
        if (call[3].integer() != 0) characters.resize(std::size_t(length), U' ');
        text = encodeUtf8(characters);
    }
    call.give(std::string_view(text));
}

void newId(const SqlCall& call) {
    call.give(std::string_view(createGuid()));
}

constexpr SqlFunctionEntry entries[] = {
    {"tsql_charindex", -1, guarded<charIndex>},
    {"tsql_concat", -1, guarded<concat>},
    {"tsql_left", 2, guarded<left>},
    {"tsql_len", 1, guarded<length>},
    {"tsql_like", -1, guarded<like>},
    {"tsql_replace", 3, guarded<replace>},
    {"tsql_right", 2, guarded<right>},
    {"tsql_substring", 3, guarded<substring>},
    {"tsql_text", 4, guarded<toText>},
    {"dbo_buildemployeename", 3, guarded<buildEmployeeName>},
    {.name = "tsql_newid", .arguments = 0, .function = guarded<newId>, .deterministic = false},
};

}  // namespace

std::span<const SqlFunctionEntry> sqlTextFunctions() {
    return entries;
}

}  // namespace tsln::workbench
