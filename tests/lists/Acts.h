#pragma once

#include <string>

#include "doubles/Stage.h"
#include "screens/ReportControl.h"
#include "screens/Screen.h"

/// Actions of the user on lists and dialogs, by the names of their controls.
namespace tsln::test {

/// Types into a text box, selects an entry of a list by its text, or ticks ("1") or clears a check box.
void enter(Screen& dialog, std::string_view control, const std::string& text);
/// Returns the text that a text box or list shows.
std::string entered(Screen& dialog, std::string_view control);
void press(Screen& dialog, std::string_view button);
/// Selects all rows; the last one has the focus.
void selectAll(ReportControl& items);
void selectRows(ReportControl& items, std::vector<std::size_t> rows);

/// Calls an operation with this number for each of its arguments.
Variant open(Stage& stage, Operation operation, std::int32_t argument = 1);

}  // namespace tsln::test
