#include "migration/QuerySet.h"

#include <algorithm>

namespace tsln::migration {

std::vector<Query> readQuerySet(std::string_view text) {
    std::vector<Query> queries;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        const std::size_t bar = line.find('|');
        if (bar == line.npos) continue;
        queries.push_back({.section = line.substr(0, bar), .statement = line.substr(bar + 1)});
    }
    return queries;
}

}  // namespace tsln::migration
