#include "workbench/sql/TextOrder.h"

#include <algorithm>

namespace tsln::workbench {

namespace {

constexpr char32_t replacement = 0xFFFD;

/// Alphabets that lay their capitals in one run a fixed distance before the small letters.
struct Run {
    char32_t first, last, distance;
};
constexpr Run capitalRuns[] = {
    {'A', 'Z', 32},     {0xC0, 0xD6, 32},   {0xD8, 0xDE, 32},   {0x388, 0x38A, 37}, {0x38E, 0x38F, 63},
    {0x391, 0x3A1, 32}, {0x3A3, 0x3AB, 32}, {0x400, 0x40F, 80}, {0x410, 0x42F, 32}, {0x386, 0x386, 38},
    {0x38C, 0x38C, 64}, {0x3C2, 0x3C2, 1},  // the sigma at the end of a word
};

/// Alphabets that alternate: a capital, its small letter, the next capital.
struct Pairs {
    char32_t first, last;
};
constexpr Pairs alternatingRanges[] = {{0x100, 0x12F},   {0x132, 0x137},  {0x139, 0x148}, {0x14A, 0x177},
                                       {0x179, 0x17E},   {0x460, 0x481},  {0x48A, 0x4BF}, {0x4D0, 0x52F},
                                       {0x1E00, 0x1E95}, {0x1EA0, 0x1EFF}};

/// A pattern cut into units that each match one character, or any run.
class Pattern {
  public:
    Pattern(std::string_view pattern, std::optional<char32_t> escape)
        : text_(decodeUtf8(pattern)), escape_(escape) {}

    std::size_t size() const { return text_.size(); }
    bool isRun(std::size_t at) const { return text_[at] == U'%' && escape_ != U'%'; }

    /// Does the unit at `at` match `c` (folded)? `next` is set past the unit.
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

char32_t foldCase(char32_t c) noexcept {
    if (c < 0x80) return c >= 'A' && c <= 'Z' ? c + 32 : c;
    if (c == 0x178) return 0xFF;
    for (const Run& run : capitalRuns) {
        if (c >= run.first && c <= run.last) return c + run.distance;
    }
    for (const Pairs& pairs : alternatingRanges) {
        if (c >= pairs.first && c <= pairs.last) return (c - pairs.first) % 2 == 0 ? c + 1 : c;
    }
    return c;
}

char32_t nextCodePoint(std::string_view text, std::size_t& at) noexcept {
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char lead = byte(at++);
    if (lead < 0x80) return lead;
    int more = lead >= 0xF0 && lead < 0xF5   ? 3
               : lead >= 0xE0 && lead < 0xF0 ? 2
               : lead >= 0xC2 && lead < 0xE0 ? 1
                                             : 0;
    if (more == 0 || at + more > text.size()) return replacement;
    char32_t c = lead & (0x3F >> more);
    for (int i = 0; i < more; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) return replacement;
        c = (c << 6) | (byte(at + i) & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    if (c < smallest[more] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return replacement;
    at += more;
    return c;
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
    std::ranges::transform(result, result.begin(), foldCase);
    return result;
}

std::string encodeUtf8(std::u32string_view text) {
    std::string result;
    result.reserve(text.size());
    for (char32_t c : text) {
        auto add = [&](char32_t bits) { result += static_cast<char>(bits); };
        if (c < 0x80) {
            add(c);
        } else if (c < 0x800) {
            add(0xC0 | (c >> 6)), add(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            add(0xE0 | (c >> 12)), add(0x80 | ((c >> 6) & 0x3F)), add(0x80 | (c & 0x3F));
        } else {
            add(0xF0 | (c >> 18)), add(0x80 | ((c >> 12) & 0x3F)), add(0x80 | ((c >> 6) & 0x3F)),
                add(0x80 | (c & 0x3F));
        }
    }
    return result;
}

int compareText(std::string_view left, std::string_view right) noexcept {
    std::size_t l = 0, r = 0;
    while (l < left.size() || r < right.size()) {
        if (l < left.size() &&
            r < right.size()) {  // mostly plain letters: sorting a list is a million of these
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

    // On a mismatch only the last % can take one character more: no recursion, no exponential search.
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
