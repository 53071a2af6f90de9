#pragma once

#include <cstdint>
#include <optional>
#include <span>
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
/// A list in an exported file: its name in the import/export engine, and the query that gives its rows.
struct ExportPart {
    std::string_view listName;
    std::string query;
};
/// Lets the user choose a file and exports the lists to it. `file` is the proposed name or path, and then the chosen
/// path. Returns whether that succeeded; nothing when the user cancels. Tells the user nothing.
std::optional<bool> exportParts(HostScreen& screen, std::span<const ExportPart> parts, std::string& file);
/// Lets the user choose a file, exports the list to it and shows the result. `file` is the proposed name or path, and
/// then the chosen path.
void exportList(HostScreen& screen, std::int16_t kind, std::string& file);

}  // namespace tsln
