#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "maintenance/FieldDescription.h"
#include "maintenance/SaveWithHistory.h"
#include "maintenance/StatementTags.h"

namespace tsln {

/// Describes one record dialog.
struct RecordDescription {
    std::string_view table = {};  ///< empty for a list's dialog, which uses the list's table
    std::string_view newCaption;
    std::string_view editCaption;
    /// In the order in which their tags are filled. It is also the order of their columns, unless a field is placed
    /// elsewhere.
    std::vector<FieldDescription> fields;

    std::string_view saveFailure = {};
    std::string_view saveExplanation = standardExplanation;

    /// How the row is read.
    enum class Source {
        Query,      ///< by a query of the database service
        Recordset,  ///< from the company's connection
    };
    Source source = Source::Query;
    /// The fields are filled before the dialog is shown, and a failure keeps it from being shown; otherwise they are
    /// filled once it is visible.
    bool filledBeforeShown = false;
    SafeText safeText = SafeText::Doubled;
    /// The close box cancels the dialog; otherwise the dialog counts as accepted.
    bool closingCancels = false;
    WindowValues windowValues = WindowValues::Place;

    /// "<id>" is the row's key. Empty: generated from the columns and tags of the fields.
    std::string_view insert = {};
    std::string_view update = {};
    /// In a generated INSERT: the separator of the columns, and the text before the values.
    std::string_view columnSeparator = ",";
    std::string_view valuesKeyword = "VALUES(";

    /// For a master record: how the history, the event log and the notices name it.
    std::optional<RecordHistory> history = {};
    /// The first field can be edited in the host's expression editor.
    bool expression = false;
};

}  // namespace tsln
