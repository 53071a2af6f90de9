#include "doubles/Random.h"

namespace tsln::test {

std::string Random::text() {
    static const char* const words[] = {
        "",           " ",      "a",          "Net 30",      "12",        "-1",
        "0.005",      "1e400",  "2147483648", "$1,234.56",   "12 3/8",    "3/4/2026",
        "2/30/2026",  "None",   "'",          "''",          "O'Brien",   "\"quoted\"",
        "%",          "_",      "[a]",        "<b>&amp;",    "]]>",       "{0}",
        "%1",         "--",     ";DROP",      "a@b.example", "Möbel",     "Łódź",
        "Ελλάδα",     "Ждать",  "日本語",     "👩‍🔧", "\u202Eabc", "e\u0301",
        "\t",         "\x01",   "one\r\ntwo", "\n",          "C:\\a\\b",  "http://b.example/?a=1&b=2",
        "Width > 96", "(Width", "&File",      "Kitchen",     "ZZZ",       "1/1/0001",
        "12/31/9999",
    };
    switch (below(8)) {
        case 0: {
            std::string digits;
            for (int i = between(1, 12); i > 0; --i)
                digits += static_cast<char>('0' + below(10));
            return digits;
        }
        case 1: {
            std::string name;
            for (int i = between(1, 10); i > 0; --i)
                name += static_cast<char>((name.empty() ? 'A' : 'a') + below(26));
            return name;
        }
        case 2: {
            std::string several;
            for (int i = between(2, 5); i > 0; --i)
                several += of(words);
            return several;
        }
        case 3: {
            const std::string word = of(words);
            std::string many;
            if (!chance(20)) return word;
            for (int i = between(10, 400); i > 0; --i)
                many += word;
            return many;
        }
        default:
            return of(words);
    }
}

Date Random::day() {
    return Date{static_cast<double>(between(-657'434, 2'958'465))};  // the years 100 to 9999
}

std::int32_t Random::number() {
    constexpr std::int32_t limits[] = {0, -1, INT32_MAX, INT32_MIN, 32768, 65536, 1000};
    return chance(80) ? between(1, 12) : of(limits);
}

}  // namespace tsln::test
