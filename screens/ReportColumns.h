#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tsln {

/// A column of a report control: what its cells hold, and how they are shown, sorted and edited.
struct ReportColumn {
    enum class Kind {
        Text,      ///< also a number, see `numeric`
        Check,     ///< a check box: "1" is ticked, "0" and an empty cell are not
        Choice,    ///< the caption of one of `choices`
        Date,      ///< text that sorts by ReportControl::setSortValue
        DateTime,  ///< the same, to the second
    };
    struct Choice {
        std::int32_t number = 0;
        std::string caption;
    };

    std::string caption;
    int width = 100;  ///< in the report control's units: pixels at 96 per inch
    bool rightAligned = false;
    bool numeric = false;  ///< sorts by value, text that is no number first
    bool resizable = true;
    Kind kind = Kind::Text;
    bool editable = false;        ///< the user may edit text, tick the box or choose in place; dates never
    std::size_t maxLength = 0;    ///< of typed text in characters; 0 means no limit
    std::vector<Choice> choices;  ///< of a choice column
};

/// The column a list is sorted by, and which way.
struct SortOrder {
    std::size_t column = 0;
    bool descending = false;
    friend bool operator==(SortOrder, SortOrder) = default;
};

/// What a user may arrange of a list's columns.
struct ColumnLayout {
    std::vector<std::size_t> order;  ///< the columns as they stand from left to right, each once
    std::vector<int> widths;         ///< by column
    std::optional<SortOrder> sort;
};

/// The layout as one text, in which the columns go by their captions.
std::string columnLayoutText(const std::vector<ReportColumn>& columns, const ColumnLayout& layout);
/// Reads such a text over `layout`, which fits the columns. A caption that there is not, a width that is none
/// or of a column with a fixed width, and a column the text does not name leave what was there; named columns
/// stand before the others.
void readColumnLayout(std::string_view text, const std::vector<ReportColumn>& columns, ColumnLayout& layout);

}  // namespace tsln
