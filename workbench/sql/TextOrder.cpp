#include "workbench/sql/TextOrder.h"

#include "automation/UnicodeText.h"

namespace tsln::workbench {

namespace {

constexpr char32_t replacement = 0xFFFD;

/// A pattern of LIKE. Each unit matches one character, except "%", which matches any number.
class Pattern {
  public:
    Pattern(std::string_view pattern, std::optional<char32_t> escape)
        : text_(decodeUtf8(pattern)), escape_(escape) {}

    std::size_t size() const { return text_.size(); }
    bool isRun(std::size_t at) const { return text_[at] == U'%' && escape_ != U'%'; }

    /// Returns true when the unit at `at` matches `c`, which is folded. Sets `next` to the position after the unit.
    bool matches(std::size_t at, char32_t c, std::size_t& next) const {
        char32_t unit = text_[at];
        next = at + 1;
        if (escape_ && unit == *escape_ && next < text_.size()) return foldCase(text_[next++]) == c;
        if (unit == U'_') return true;
        if (unit != U'[') return foldCase(unit) == c;
        std::size_t end = text_.find(U']', next);
        if (end == std::u32string::npos) return c == U'[';
        bool wanted = true;
        if (next < end && text_[next] == U'^') {
            wanted = false;
            ++next;
        }
        bool found = false;
        for (std::size_t i = next; i < end; ++i) {
            if (i + 2 < end && text_[i + 1] == U'-') {
                found = found || (foldCase(text_[i]) <= c && c <= foldCase(text_[i + 2]));
                i += 2;
            } else {
                found = found || foldCase(text_[i]) == c;
            }
        }
        next = end + 1;
        return found == wanted;
    }

  private:
    std::u32string text_;
    std::optional<char32_t> escape_;
};

}  // namespace

char32_t nextCodePoint(std::string_view text, std::size_t& at) noexcept {
    const char32_t c = tsln::nextCodePoint(text, at);
    return c >= strayByte ? replacement : c;
}

std::u32string decodeUtf8(std::string_view text) {
    std::u32string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
        result += nextCodePoint(text, at);
    return result;
}

std::u32string decodeFolded(std::string_view text) {
    std::u32string result = decodeUtf8(text);
    for (char32_t& c : result)
        c = foldCase(c);
    return result;
}

std::string encodeUtf8(std::u32string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char32_t c : text)
        appendUtf8(result, c);
    return result;
}

int compareText(std::string_view left, std::string_view right) noexcept {
    std::size_t l = 0, r = 0;
    while (l < left.size() || r < right.size()) {
        // Equal ASCII characters, the usual case in sorting, need no table.
        if (l < left.size() && r < right.size()) {
            const auto x = static_cast<unsigned char>(left[l]);
            const auto y = static_cast<unsigned char>(right[r]);
            if (x == y && x < 0x80) {
                ++l, ++r;
                continue;
            }
        }
        char32_t a = l < left.size() ? foldCase(nextCodePoint(left, l)) : U' ';
        char32_t b = r < right.size() ? foldCase(nextCodePoint(right, r)) : U' ';
        if (a != b) return a < b ? -1 : 1;
    }
    return 0;
}

bool matchesPattern(std::string_view text, std::string_view pattern, std::optional<char32_t> escape) {
    std::u32string subject = decodeFolded(text);
    Pattern units(pattern, escape);

    // On a mismatch only the last "%" takes one more character, so the time does not grow exponentially.
    std::size_t at = 0, unit = 0, runUnit = std::u32string::npos, runAt = 0;
    while (at < subject.size()) {
        std::size_t next = 0;
        if (unit < units.size() && units.isRun(unit)) {
            runUnit = ++unit;
            runAt = at;
        } else if (unit < units.size() && units.matches(unit, subject[at], next)) {
            unit = next;
            ++at;
        } else if (runUnit != std::u32string::npos) {
            unit = runUnit;
            at = ++runAt;
        } else {
            return false;
        }
    }
    while (unit < units.size() && units.isRun(unit))
        ++unit;
    return unit == units.size();
}

}  // namespace tsln::workbench
