#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include <wx/string.h>

#include "screens/ReportControl.h"

class wxColour;
class wxWindow;

namespace tsln::desktop {

/// A text on one line, cut where no cell is wide enough to show more.
wxString onOneLine(std::string_view text);
/// A cell's text on one line; "Yes" for a ticked check box where only text is drawn. A group row has its text in
/// column 0. Row and column must exist.
wxString shownText(const ReportControl& report, std::size_t row, std::size_t column);

/// The texts of group rows, with the number of rows below each.
class GroupTexts {
  public:
    explicit GroupTexts(const ReportControl& report) : report_(report) {}
    /// Finds the groups among the rows as they are now.
    void count();
    wxString text(std::size_t row) const;

  private:
    const ReportControl& report_;
    std::vector<std::uint32_t> rows_;  // ascending
};

/// The width in pixels at which the column shows its caption whole and has the width it asks for.
int naturalWidth(const wxWindow& window, const ReportControl::Column& column);
int naturalWidth(const wxWindow& window, const ReportControl& report);
/// The column that gets the width left over by the others: the leftmost one that is not right-aligned, which
/// is usually the name, or the first one. There must be a column.
std::size_t stretchedColumn(const ReportControl& report);

/// The first row from `from` on, or else from the start, whose text in the sorted column, or the first one,
/// begins with `start`.
std::optional<std::size_t> findText(const ReportControl& report, const wxString& start, std::size_t from);

}  // namespace tsln::desktop
