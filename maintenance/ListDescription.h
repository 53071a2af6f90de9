#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/Operations.h"
#include "maintenance/ListCommands.h"
#include "maintenance/RecordDescription.h"
#include "screens/ReportControl.h"

namespace tsln {

/// A column of a list: its caption, its width in the report control's units, its field, and how the field's value is
/// shown.
struct ListColumn {
    enum class Show {
        Text,
        Number,    ///< as stored, right-aligned, sorted by value
        YesNo,     ///< "Yes" or "No"
        Choice,    ///< the caption of the stored number; a number without a caption is shown itself
        Currency,  ///< "$1,234.50", right-aligned, sorted by value; text that is no number is shown unchanged
        Date,      ///< "3/4/2011", sorted by time
        DateTime,  ///< "3/4/2011 10:20:30 AM", sorted by time
        Check,     ///< a check box
    };
    std::string_view caption;
    int width = 100;
    std::string_view field;
    Show show = Show::Text;
    std::span<const Choice> choices = {};
    std::string_view instead = {};  ///< shown for an empty field
    bool editable = false;          ///< can be edited in place: text, a choice or a check box
    /// For a computed text, instead of `field`: the fields it depends on, and the function that computes it from
    /// their values.
    std::span<const std::string_view> uses = {};
    std::string (*compute)(std::span<const std::string_view> values) = nullptr;
};

/// Computes how a row is drawn from the values of some of its fields.
struct ListRowStyle {
    std::span<const std::string_view> uses = {};
    ReportControl::Style (*style)(std::span<const std::string_view> values) =
        nullptr;  ///< null: all rows plain
};

/// A table whose rows may refer to the rows of a list, and the message box that refuses the deletion then.
struct DeletionCheck {
    std::string count;    ///< counts the references; {0} is the row's `ID`
    std::string message;  ///< {0} is the row's name, {1} the count; may hold "<Bold>" markup
    std::string advice;
};
/// The statement that counts a table's references to row {0}.
std::string countReferences(std::string_view table, std::string_view column);
/// The check in the wording of most lists: `noun` names the row to be deleted, `users` the rows that refer to it.
DeletionCheck referencedBy(std::string_view noun, std::string_view table, std::string_view column,
                           std::string_view users);
/// Checks of the two tables that most lists are referred to from.
DeletionCheck referencedByCustomers(std::string_view noun, std::string_view column);
DeletionCheck referencedByOrders(std::string_view noun, std::string_view column);

/// A package of default rows, offered while the list is empty.
struct DefaultSet {
    std::string_view question;
    std::string_view packageKey;
};

/// How the rows of a list are grouped.
struct ListGroups {
    std::size_t column = 0;                     ///< the column whose text groups the rows
    bool inRowOrder = true;                     ///< groups in the order of the rows; else sorted by text
    std::string_view emptyText = "(No Group)";  ///< the heading of rows without a group
};

/// Describes one list and its dialog.
struct ListDescription {
    Operation open;  ///< the entry point of the list
    Operation edit;  ///< the entry point of the dialog; its first argument is the row's `ID`
    std::string_view screenName;
    std::string_view listName = "rptItems";  ///< the name of the list's control
    std::string_view caption;
    std::string_view table;
    std::string_view view = {};  ///< the view that rows are read from; empty: the table
    std::string_view orderBy;
    std::vector<ListColumn> columns;
    std::size_t nameColumn = 0;                           ///< the column that holds the row's name
    std::optional<std::int32_t> securityArea = {};        ///< none: no rights are checked
    std::optional<std::int16_t> listKind = {};            ///< none: no import and export
    std::optional<std::int16_t> moveReferencesCode = {};  ///< none: no "Move References"
    std::optional<DefaultSet> defaults = {};
    std::vector<DeletionCheck> deletionChecks = {};
    std::string_view deleteFailure;  ///< {0} is the row's name
    std::string_view deleteExplanation = standardExplanation;
    bool asksToDelete = false;  ///< the screen asks before it deletes; otherwise only the Delete key asks
    bool busyState = false;     ///< shown as busy while it loads or deletes
    RecordDescription dialog = {};

    /// How rows are read: by a query of the database service, or as a recordset from the company's connection.
    RecordDescription::Source source = RecordDescription::Source::Query;
    ListRowStyle rowStyle = {};
    /// Fields that are read with the rows but not shown; see ListScreen::rowsRead().
    std::vector<std::string_view> keptFields = {};
    std::optional<ListGroups> groups = {};
    /// Further commands. They follow the shared commands in the popups and buttons.
    std::vector<ListCommand> commands = {};
    bool addsRows = true;      ///< New is enabled
    bool editsRows = true;     ///< Edit is enabled
    bool deletesRows = true;   ///< Delete is enabled
    bool contextMenu = false;  ///< a right click and the menu key open a popup of commands
    bool hidesForbidden = false;  ///< the context popup leaves out the commands that the user may not run
    bool filter = false;       ///< a box above the list reduces it to the rows that contain the typed text
    std::string_view columnLayoutKey =
        {};                           ///< the user's column layout is kept under it; empty: it is not kept
    std::string_view countLine = {};  ///< a line below the list, "{0} items"; {0} is the number of shown rows
};

}  // namespace tsln
