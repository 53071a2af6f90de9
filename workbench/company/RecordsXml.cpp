#include "workbench/company/RecordsXml.h"

#include <array>
#include <charconv>
#include <string_view>
#include <vector>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "workbench/sql/TextOrder.h"

namespace tsln::workbench {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

bool isNameStart(char32_t c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           (c >= 0xC0 && c != 0xD7 && c != 0xF7 && c < 0x2000);
}
bool isNamePart(char32_t c) {
    return isNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

/// Converts a column's name to an element's name. An underscore that would read as an encoded character is encoded
/// too.
std::string elementName(std::string_view column) {
    std::u32string name = decodeUtf8(column), result;
    for (std::size_t i = 0; i < name.size(); ++i) {
        bool encoded = name[i] == '_' && i + 6 < name.size() && name[i + 1] == 'x' && name[i + 6] == '_';
        if (!encoded && (i == 0 ? isNameStart(name[i]) : isNamePart(name[i]))) {
            result += name[i];
            continue;
        }
        char hex[16];
        std::snprintf(hex, sizeof hex, "_x%04X_", unsigned(name[i]));
        for (const char* c = hex; *c; ++c)
            result += char32_t(*c);
    }
    return result.empty() ? "_" : encodeUtf8(result);
}

enum Class : unsigned char { Plain, Escape, Multibyte };

/// How each byte is written to the document.
constexpr auto byteClasses = [] {
    std::array<Class, 256> classes{};
    for (int c = 0; c < 0x20; ++c)
        classes[c] = Escape;
    classes['\t'] = Plain;
    classes['&'] = classes['<'] = classes['>'] = classes[0x7F] = Escape;
    for (int c = 0x80; c < 0x100; ++c)
        classes[c] = Multibyte;
    return classes;
}();

std::string_view escaped(char c) {
    switch (c) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '\r':
            return "&amp;#13;";  // the parsed text is "&#13;"
        case '\n':
            return "&amp;#10;";
        case 0x7F:
            return "\x7F";
        default:
            return replacement;
    }
}

/// Reads the character of several bytes at `at` and moves `at` behind it. Returns false when no document can have it.
bool takeMultibyte(std::string_view text, std::size_t& at) {
    const std::size_t start = at;
    const char32_t c = nextCodePoint(text, at);
    const bool broken = c == 0xFFFD && at - start != replacement.size();
    return !broken && c != 0xFFFE && c != 0xFFFF;
}

void appendText(std::string& out, std::string_view text) {
    std::size_t plain = 0, at = 0;
    auto flush = [&](std::size_t end) { out.append(text, plain, end - plain); };
    while (at < text.size()) {
        Class kind = byteClasses[static_cast<unsigned char>(text[at])];
        if (kind == Plain) {
            ++at;
        } else if (kind == Escape) {
            flush(at);
            out += escaped(text[at]);
            plain = ++at;
        } else {
            std::size_t start = at;
            if (takeMultibyte(text, at)) continue;
            flush(start);
            out += replacement;
            plain = at;
        }
    }
    flush(text.size());
}

template <class Number>
void appendNumber(std::string& out, Number value) {
    char buffer[40];
    out.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

void appendBytes(std::string& out, std::string_view bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    for (unsigned char byte : bytes) {
        out += digits[byte >> 4];
        out += digits[byte & 15];
    }
}

}  // namespace

bool fitsInXml(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const Class kind = byteClasses[static_cast<unsigned char>(text[at])];
        if (kind == Multibyte) {
            if (!takeMultibyte(text, at)) return false;
        } else if (kind == Escape && escaped(text[at]) == replacement) {
            return false;
        } else {
            ++at;
        }
    }
    return true;
}

std::string recordsXml(SQLite::Statement& statement) {
    struct Tags {
        std::string open, close;
    };
    std::vector<Tags> tags;
    for (int i = 0; i < statement.getColumnCount(); ++i) {
        std::string name = elementName(statement.getColumnName(i));
        tags.push_back({"<" + name + ">", "</" + name + ">"});
    }

    std::string out = "<Records>";
    while (statement.executeStep()) {
        out += "<Record>";
        for (std::size_t i = 0; i < tags.size(); ++i) {
            SQLite::Column column = statement.getColumn(int(i));
            int type = column.getType();
            if (type == SQLITE_NULL) continue;
            out += tags[i].open;
            if (type == SQLITE_INTEGER) {
                appendNumber(out, column.getInt64());
            } else if (type == SQLITE_FLOAT) {
                appendNumber(out, column.getDouble());
            } else {
                auto bytes = static_cast<const char*>(column.getBlob());
                std::string_view value(bytes ? bytes : "", std::size_t(column.getBytes()));
                type == SQLITE_TEXT ? appendText(out, value) : appendBytes(out, value);
            }
            out += tags[i].close;
        }
        out += "</Record>";
    }
    out += "</Records>";
    return out;
}

}  // namespace tsln::workbench
