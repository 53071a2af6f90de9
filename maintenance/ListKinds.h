#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "bridge/HostScreen.h"

namespace tsln {

/// What import and export call a list, and the rows to export. Empty texts for a kind that has no row.
struct ListKind {
    std::string_view displayName;
    std::string_view listName;  ///< the import/export engine's name of the list
    std::string exportQuery;
};
ListKind findListKind(std::int16_t kind);

/// Lets the user pick a file and imports it into the list; tells the result.
void importList(HostScreen& screen, std::int16_t kind);
/// Lets the user pick a file and exports the list to it; tells the result.
void exportList(HostScreen& screen, std::int16_t kind);

}  // namespace tsln
