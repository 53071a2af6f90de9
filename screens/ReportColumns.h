#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tsln {

/// A column of a report control: the content of its cells, and how they are shown, sorted and edited.
struct ReportColumn {
    enum class Kind {
        Text,      ///< text or a number, see `numeric`
        Check,     ///< a check box: "1" is ticked, "0" and an empty cell are clear
        Choice,    ///< the caption of one of `choices`
        Date,      ///< a date, sorted by ReportControl::setSortValue()
        DateTime,  ///< a date and time to the second, sorted as Date
    };
    struct Choice {
        std::int32_t number = 0;
        std::string caption;
    };

    std::string caption;
    int width = 100;  ///< in the report control's units: pixels at 96 per inch
    bool rightAligned = false;
    bool numeric = false;  ///< sorts by value; text that is not a number comes first
    bool resizable = true;
    Kind kind = Kind::Text;
    bool editable = false;        ///< in place; ignored for dates
    std::size_t maxLength = 0;    ///< of typed text, in characters; 0 means no limit
    std::vector<Choice> choices;  ///< choice columns only
};

/// The column by which a list is sorted, and the direction.
struct SortOrder {
    std::size_t column = 0;
    bool descending = false;
    friend bool operator==(SortOrder, SortOrder) = default;
};

/// The arrangement of a list's columns by the user.
struct ColumnLayout {
    std::vector<std::size_t> order;  ///< the columns from left to right, each once
    std::vector<int> widths;         ///< by column
    std::optional<SortOrder> sort;
};

/// The layout as one text, which identifies columns by their captions.
std::string columnLayoutText(const std::vector<ReportColumn>& columns, const ColumnLayout& layout);
/// Changes `layout`, which must fit the columns, to the text of columnLayoutText(). Columns named in the text
/// come before the others. Unknown captions, invalid widths, and widths of columns that are not resizable are
/// ignored.
void readColumnLayout(std::string_view text, const std::vector<ReportColumn>& columns, ColumnLayout& layout);

}  // namespace tsln
