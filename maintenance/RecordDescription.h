#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "maintenance/FieldDescription.h"
#include "maintenance/SaveWithHistory.h"
#include "maintenance/StatementTags.h"

namespace tsln {

/// Everything that tells one record dialog from another.
struct RecordDescription {
    std::string_view table = {};  ///< of a list's dialog: the list's
    std::string_view newCaption;
    std::string_view editCaption;
    /// In the order in which their tags are filled, which is that of their columns unless they are placed otherwise.
    std::vector<FieldDescription> fields;

    std::string_view saveFailure = {};
    std::string_view saveExplanation = standardExplanation;

    /// How the row is read.
    enum class Source {
        Query,      ///< by a query of the database service
        Recordset,  ///< from the company's connection
    };
    Source source = Source::Query;
    /// The fields are filled before the dialog is shown, which is not shown if that fails; else when it appears.
    bool filledBeforeShown = false;
    SafeText safeText = SafeText::Doubled;
    /// A dialog left by its close box counts as cancelled; else as accepted.
    bool closingCancels = false;
    WindowValues windowValues = WindowValues::Place;

    /// "<id>" is the row's key. Empty: made of the columns and tags of the fields.
    std::string_view insert = {};
    std::string_view update = {};
    /// How a made INSERT parts its columns, and what stands before its values.
    std::string_view columnSeparator = ",";
    std::string_view valuesKeyword = "VALUES(";

    /// A master record: its saving is told to the history and the rest of the host, in words of its own.
    std::optional<RecordHistory> history = {};
    /// The first field can be handed to the host's expression editor.
    bool expression = false;
};

}  // namespace tsln
