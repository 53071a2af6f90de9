#pragma once

#include "screens/CommandBars.h"
#include "screens/ReportControl.h"

namespace tsln {

/// The identifiers of the commands that every list shares.
namespace command {
inline constexpr int import = 28001;
inline constexpr int exportList = 28003;
inline constexpr int more = 28200;
inline constexpr int print = 28201;
inline constexpr int save = 28202;
inline constexpr int moveReferences = 28250;
inline constexpr int installDefaults = 28251;
inline constexpr int noItems = 28300;
inline constexpr int oneItem = 28301;
inline constexpr int newItem = 28305;
inline constexpr int editItem = 28306;
inline constexpr int deleteItem = 28307;
}  // namespace command

/// Builds the popups of a list: "More List Commands", and the context popups where the list asks for them.
void buildListCommands(CommandBars& bars, bool importAndExport, bool contextPopups);
/// Sets whether a shared command is enabled. `items` may be null while there is no list.
void updateListCommand(Command& command, const ReportControl* items);
/// Runs "Print..." and "Save..."; other commands are the list's own.
void executeListCommand(int id, ReportControl& items);

}  // namespace tsln
