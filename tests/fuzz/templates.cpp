// Templates of statements, filled by number and by tag, against replacing character by character. The first line is the
// template, each further line a value ("null": a value without a text form).

#include "shared/modSharedSQL.h"
#include "tests/fuzz/Fuzz.h"
#include "workbench/sql/SqlText.h"

namespace {

using namespace tsln;

std::string replaced(const std::string& text, const std::string& what, const std::string& with) {
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const bool hit = !what.empty() && text.compare(at, what.size(), what) == 0;
        result += hit ? with : text.substr(at, 1);
        at += hit ? what.size() : 1;
    }
    return result;
}

void checkQuotes(std::string_view text) {
    const std::string doubled = modSharedSQL::doubleQuotes(text);
    fuzz::same(replaced(doubled, "''", "'"), std::string(text), "the text between quotes");
    std::size_t run = 0;
    for (const char c : doubled + " ") {
        if (c != '\'') fuzz::require(std::exchange(run, 0) % 2 == 0, "a single quote");
        run += c == '\'';
    }
    fuzz::same(workbench::literal(text), "'" + doubled + "'", "the literal");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t longest = 200;  // values that contain placeholders multiply
    const auto lines = fuzz::lines(fuzz::textOf(data, std::min(size, longest)));
    std::vector<Variant> values;
    std::vector<modSharedSQL::Tag> tags;
    std::string numbered(lines[0]), tagged(lines[0]);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const std::string value(lines[i]);
        if (value == "null") {
            values.emplace_back(Null());
        } else {
            values.emplace_back(value);
            if (i <= 17) numbered = replaced(numbered, "{" + std::to_string(i - 1) + "}", value);
        }
        const std::string_view name = lines[i - 1];
        tags.emplace_back(name, value);
        tagged = replaced(tagged, std::string(name), value);
    }
    fuzz::same(modSharedSQL::formatValues(lines[0], values), numbered, "by number");
    fuzz::same(modSharedSQL::fillTags(lines[0], tags), tagged, "by tag");
    checkQuotes(fuzz::textOf(data, size));
    return 0;
}
