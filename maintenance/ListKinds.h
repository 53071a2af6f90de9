#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "bridge/HostScreen.h"

namespace tsln {

/// The names and the export query of a list for import and export. All are empty for an unknown kind.
struct ListKind {
    std::string_view displayName;
    std::string_view listName;  ///< the list's name in the import/export engine
    std::string exportQuery;
};
ListKind findListKind(std::int16_t kind);

/// Lets the user choose a file, imports it into the list and shows the result.
void importList(HostScreen& screen, std::int16_t kind);
/// Lets the user choose a file, exports the list to it and shows the result. `file` is the proposed name or path, and
/// then the chosen path.
void exportList(HostScreen& screen, std::int16_t kind, std::string& file);

}  // namespace tsln
