#include "workbench/host/AddressText.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "automation/Object.h"
#include "shared/modSharedStrings.h"

namespace tsln::workbench {
namespace {

struct State {
    std::string_view code, name;
};
constexpr State states[] = {
    {"AL", "Alabama"},
    {"AK", "Alaska"},
    {"AZ", "Arizona"},
    {"AR", "Arkansas"},
    {"CA", "California"},
    {"CO", "Colorado"},
    {"CT", "Connecticut"},
    {"DE", "Delaware"},
    {"DC", "District of Columbia"},
    {"FL", "Florida"},
    {"GA", "Georgia"},
    {"HI", "Hawaii"},
    {"ID", "Idaho"},
    {"IL", "Illinois"},
    {"IN", "Indiana"},
    {"IA", "Iowa"},
    {"KS", "Kansas"},
    {"KY", "Kentucky"},
    {"LA", "Louisiana"},
    {"ME", "Maine"},
    {"MD", "Maryland"},
    {"MA", "Massachusetts"},
    {"MI", "Michigan"},
    {"MN", "Minnesota"},
    {"MS", "Mississippi"},
    {"MO", "Missouri"},
    {"MT", "Montana"},
    {"NE", "Nebraska"},
    {"NV", "Nevada"},
    {"NH", "New Hampshire"},
    {"NJ", "New Jersey"},
    {"NM", "New Mexico"},
    {"NY", "New York"},
    {"NC", "North Carolina"},
    {"ND", "North Dakota"},
    {"OH", "Ohio"},
    {"OK", "Oklahoma"},
    {"OR", "Oregon"},
    {"PA", "Pennsylvania"},
    {"RI", "Rhode Island"},
    {"SC", "South Carolina"},
    {"SD", "South Dakota"},
    {"TN", "Tennessee"},
    {"TX", "Texas"},
    {"UT", "Utah"},
    {"VT", "Vermont"},
    {"VA", "Virginia"},
    {"WA", "Washington"},
    {"WV", "West Virginia"},
    {"WI", "Wisconsin"},
    {"WY", "Wyoming"},
    {"PR", "Puerto Rico"},
    {"GU", "Guam"},
    {"VI", "Virgin Islands"},
    {"AS", "American Samoa"},
    {"MP", "Northern Mariana Islands"},
    {"AA", "Armed Forces Americas"},
    {"AE", "Armed Forces Europe"},
    {"AP", "Armed Forces Pacific"},
    {"AB", "Alberta"},
    {"BC", "British Columbia"},
    {"MB", "Manitoba"},
    {"NB", "New Brunswick"},
    {"NL", "Newfoundland and Labrador"},
    {"NS", "Nova Scotia"},
    {"NT", "Northwest Territories"},
    {"NU", "Nunavut"},
    {"ON", "Ontario"},
    {"PE", "Prince Edward Island"},
    {"QC", "Quebec"},
    {"QC", "Qu\u00e9bec"},
    {"SK", "Saskatchewan"},
    {"YT", "Yukon"},
};

/// Countries recognized when no line above them is recognized as a city line.
constexpr std::string_view countries[] = {
    "USA",    "U.S.A.", "US",     "United States",  "United States of America",
    "Canada", "Mexico", "UK",     "United Kingdom", "England",
    "France", "Italy",  "Spain",  "Germany",        "Ireland",
    "Japan",  "China",  "Israel", "Australia",      "New Zealand",
};

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        if (std::string line = modSharedStrings::trim(text.substr(0, end)); !line.empty())
            lines.push_back(std::move(line));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

bool isState(std::string_view text) {
    return std::ranges::any_of(
        states, [&](const State& state) { return sameName(state.code, text) || sameName(state.name, text); });
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// In the pattern '9' matches a digit and 'A' a letter.
bool matches(std::string_view text, std::string_view pattern) {
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), [](char c, char p) {
        return p == '9' ? isDigit(c) : p == 'A' ? isLetter(c) : c == p;
    });
}
bool isZip(std::string_view text) {
    constexpr std::string_view patterns[] = {"99999",   "99999-9999", "99999 9999", "999999999",
                                             "A9A 9A9", "A9A9A9",     "A9A-9A9"};
    return std::ranges::any_of(patterns, [&](std::string_view pattern) { return matches(text, pattern); });
}

struct Place {
    std::string city, state, zip;
};

/// Reads "State Zip", "State" or "Zip". The state's name and the zip may contain blanks.
std::optional<Place> stateAndZip(std::string_view text) {
    if (isState(text)) return Place{"", std::string(text), ""};
    if (isZip(text)) return Place{"", "", std::string(text)};
    for (std::size_t blank = text.find(' '); blank != text.npos; blank = text.find(' ', blank + 1)) {
        std::string state = modSharedStrings::trim(text.substr(0, blank));
        if (!state.empty() && state.back() == ',') state.pop_back();
        const std::string zip = modSharedStrings::trim(text.substr(blank));
        if (isState(state) && isZip(zip)) return Place{"", std::move(state), zip};
    }
    return std::nullopt;
}

/// Reads a line as a city line, with or without a comma after the city.
std::optional<Place> placeOf(std::string_view line) {
    constexpr std::size_t longestPlace = 200;
    if (line.size() > longestPlace) return std::nullopt;
    if (auto place = stateAndZip(line)) return place;
    for (std::size_t comma = line.find(','); comma != line.npos; comma = line.find(',', comma + 1)) {
        if (auto place = stateAndZip(modSharedStrings::trim(line.substr(comma + 1)))) {
            place->city = modSharedStrings::trim(line.substr(0, comma));
            return place;
        }
    }
    // Without a comma, state and zip are both required, because a street may end like a state.
    for (std::size_t blank = line.find(' '); blank != line.npos; blank = line.find(' ', blank + 1)) {
        auto place = stateAndZip(modSharedStrings::trim(line.substr(blank)));
        if (place && !place->state.empty() && !place->zip.empty()) {
            place->city = modSharedStrings::trim(line.substr(0, blank));
            return place;
        }
    }
    return std::nullopt;
}

std::string joined(const std::vector<std::string>& lines, std::size_t begin, std::size_t end) {
    std::string text;
    for (std::size_t i = begin; i < end; ++i)
        text += (text.empty() ? "" : ", ") + lines[i];
    return text;
}

}  // namespace

std::string combineAddress(const Address& address) {
    std::string place = address.city;
    const auto add = [&](const std::string& part, std::string_view separator) {
        if (part.empty()) return;
        if (!place.empty()) place += separator;
        place += part;
    };
    add(address.state, ", ");
    add(address.zip, address.state.empty() ? ", " : " ");
    std::string text;
    for (const std::string& line : {address.line1, address.line2, place, address.country}) {
        if (line.empty()) continue;
        if (!text.empty()) text += "\r\n";
        text += line;
    }
    return text;
}

Address parseAddress(std::string_view text) {
    const std::vector<std::string> lines = linesOf(text);
    Address address;
    std::size_t streets = lines.size();  // the number of lines before the city line
    std::optional<Place> place;
    // A country may have the name of a state, so a line with both state and zip is preferred.
    for (const bool whole : {true, false}) {
        for (std::size_t i = lines.size(); i-- > 0 && !place;) {
            place = placeOf(lines[i]);
            if (place && whole && (place->state.empty() || place->zip.empty())) place.reset();
            if (place) streets = i;
        }
    }
    if (place) {
        address.city = place->city;
        address.state = place->state;
        address.zip = place->zip;
        address.country = joined(lines, streets + 1, lines.size());
    } else {
        if (streets > 1 && std::ranges::any_of(countries, [&](std::string_view country) {
                return sameName(country, lines[streets - 1]);
            })) {
            address.country = lines[--streets];
        }
        const bool hasCity =
            streets > 1 && (!address.country.empty() || std::ranges::none_of(lines[streets - 1], isDigit));
        if (hasCity) address.city = lines[--streets];
    }
    if (streets > 0) address.line1 = lines[0];
    address.line2 = joined(lines, 1, std::max<std::size_t>(streets, 1));
    return address;
}

}  // namespace tsln::workbench
