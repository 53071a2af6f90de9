#pragma once

#include <array>
#include <string>

#include "maintenance/RecordDialog.h"
#include "options/DetailList.h"
#include "screens/CommandBars.h"
#include "screens/ProgressBar.h"
#include "screens/TabControl.h"

namespace tsln::options {

/// Sets which options the two descriptions of an order line show, under which prefix and in which order. All changes are
/// held in the lists until OK writes them row by row.
class DetailSettings : public RecordDialog {
  public:
    explicit DetailSettings(Library& library);

    Button cmdNew{*this, "cmdNew", "&New"};
    Button cmdDelete{*this, "cmdDelete", "&Delete"};
    Button cmdMore{*this, "cmdMore", "&More"};
    TextBox txtFilter{*this, "txtFilter"};
    TabControl TabControl1{*this, "TabControl1", {"&Line Description (Sequence)", "&Second Description"}};
    Label lblRecords{*this, "lblRecords", ""};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};  ///< shown while many rows are saved
    CommandBars cbContext{*this, "cbContext"};

    /// The lists of the two descriptions, by location.
    std::array<DetailList, 2> lists{DetailList(*this, "rptItems", 0), DetailList(*this, "rptItems2", 1)};
    /// The list of the tab that is shown.
    DetailList& current() { return lists[TabControl1.selected() == 1 ? 1 : 0]; }

  protected:
    Layout content() override;
    std::vector<Layout> besideButtons() override;
    void Form_Load() override;
    void Form_Unload() override;
    void opened() override;
    bool validate() override;
    bool save() override;

  private:
    friend struct DetailCommand;
    enum class Rows { All, WithPrefix, WithoutPrefix, Checked, Unchecked };

    void prepare(DetailList& list);
    void tabSelected();
    void filterRows();
    void rowsChanged();
    void showCount();
    void updateButtons();
    std::optional<std::string> corrected(DetailList& list, std::size_t record, std::size_t column,
                                         std::string_view typed);
    bool can(Right right) const;

    // The commands
    void cmdNew_Click();
    void removeSelected();
    void removeAll();
    std::vector<std::size_t> allRecords();
    std::vector<std::size_t> selectedRecords();
    void check(const std::vector<std::size_t>& records, bool shown);
    void convertPrefixes(std::string (*convert)(std::string_view));
    void addToSequence();
    void showOnly(Rows rows);
    void resetSequencing();
    void scan();
    void makePopup();

    bool write(DetailList& list, const DetailList::Change& change, const Connection& connection);

    Rights rights_ = 0;  // those the user holds
    int shownTab_ = 0;
};

/// Shows the settings.
void editDetailSettings(Library& library);

}  // namespace tsln::options
