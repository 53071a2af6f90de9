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

/// A column of a list: its caption, its width in the report control's units, the field that fills it and how the
/// field's value is shown.
struct ListColumn {
    enum class Show {
        Text,
        Number,    ///< as it is, to the right, sorted by value
        YesNo,     ///< "Yes" or "No"
        Choice,    ///< the caption of the stored number; a number that has none is shown itself
        Currency,  ///< "$1,234.50", to the right, sorted by value; text that is no number is shown itself
        Date,      ///< "3/4/2011", sorted by time
        DateTime,  ///< "3/4/2011 10:20:30 AM", sorted by time
        Check,     ///< a check box
    };
    std::string_view caption;
    int width = 100;
    std::string_view field;
    Show show = Show::Text;
    std::span<const Choice> choices = {};
    std::string_view instead = {};  ///< shown where the field is empty
    bool editable = false;          ///< edited in place: text, a choice or a check box
    /// A computed text: the fields it is made of, and the function that makes it of their values, in place of `field`.
    std::span<const std::string_view> uses = {};
    std::string (*compute)(std::span<const std::string_view> values) = nullptr;
};

/// How a row is drawn, by the values of some of its fields.
struct ListRowStyle {
    std::span<const std::string_view> uses = {};
    ReportControl::Style (*style)(std::span<const std::string_view> values) = nullptr;  ///< null: all rows are plain
};

/// A table whose rows may refer to the rows of a list, and how a refusal to delete reads.
struct DeletionCheck {
    std::string count;    ///< counts the references; {0} is the row's `ID`
    std::string message;  ///< {0} is the row's name, {1} the count; may hold "<Bold>" markup
    std::string advice;
};
/// The statement that counts a table's references to the row {0}.
std::string countReferences(std::string_view table, std::string_view column);
/// The check as most lists word it: `noun` is what is to be deleted, `users` are the rows that refer to it.
DeletionCheck referencedBy(std::string_view noun, std::string_view table, std::string_view column,
                           std::string_view users);
/// The two places that most lists are referred to from.
DeletionCheck referencedByCustomers(std::string_view noun, std::string_view column);
DeletionCheck referencedByOrders(std::string_view noun, std::string_view column);

/// A package of default rows, offered while the list is empty.
struct DefaultSet {
    std::string_view question;
    std::string_view packageKey;
};

/// The groups of a list.
struct ListGroups {
    std::size_t column = 0;                                   ///< the rows are grouped by its text
    bool inRowOrder = true;                                   ///< in the order of the loaded rows; else by their texts
    std::string_view emptyText = "(No Group)";                ///< heads the rows without a group
};

/// Everything that tells one list and its dialog from another.
struct ListDescription {
    Operation open;  ///< the entry point of the list
    Operation edit;  ///< the entry point of the dialog; its first argument is the row's `ID`
    std::string_view screenName;
    std::string_view caption;
    std::string_view table;
    std::string_view view = {};  ///< the list reads its rows here; empty: from the table
    std::string_view orderBy;
    std::vector<ListColumn> columns;                      ///< the first holds the row's name
    std::optional<std::int32_t> securityArea = {};        ///< none: no rights are checked
    std::optional<std::int16_t> listKind = {};            ///< none: no import and export
    std::optional<std::int16_t> moveReferencesCode = {};  ///< none: no "Move References"
    std::optional<DefaultSet> defaults = {};
    std::vector<DeletionCheck> deletionChecks = {};
    std::string_view deleteFailure;
    bool busyState = false;  ///< shown as busy while it loads or deletes
    RecordDescription dialog = {};

    /// How rows are read: by a query of the database service, or as a recordset from the company's connection.
    RecordDescription::Source source = RecordDescription::Source::Query;
    ListRowStyle rowStyle = {};
    std::optional<ListGroups> groups = {};
    /// Further commands; they follow the shared ones in the popups, and those with a button follow the buttons.
    std::vector<ListCommand> commands = {};
    bool addsRows = true;             ///< New does something; else it is disabled
    bool editsRows = true;            ///< Edit does something; else it is disabled
    bool contextMenu = false;         ///< a right click and the menu key open a popup of the commands
    bool filter = false;              ///< a box above the list narrows its rows to those that hold the typed text
    std::string_view countLine = {};  ///< a line below the list, "{0} items"; {0} is the number of shown rows
};

}  // namespace tsln
