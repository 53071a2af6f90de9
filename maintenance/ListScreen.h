#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bridge/HostScreen.h"
#include "maintenance/ListDescription.h"
#include "screens/CommandBars.h"
#include "screens/Controls.h"
#include "screens/ReportControl.h"

namespace tsln {

/// The list screen of a lookup table: shows its rows and lets the user add, edit, delete, import, export,
/// print and save them. What it is a list of stands in the description, which must outlive it. A list with
/// ways of its own derives and overrides just those.
class ListScreen : public HostScreen {
  public:
    ListScreen(Library& library, const ListDescription& description);

    ReportControl rptItems{*this, "rptItems"};
    CommandBars cbContext{*this, "cbContext"};
    Button cmdNew{*this, "cmdNew", "&New..."};
    Button cmdEdit{*this, "cmdEdit", "&Edit..."};
    Button cmdDelete{*this, "cmdDelete", "&Delete"};
    Button cmdMore{*this, "cmdMore", "&More"};
    Frame grpOK{*this, "grpOK"};
    Button cmdHelp{*this, "cmdHelp", "&Help"};
    Button cmdClose{*this, "cmdClose", "&Close", Button::Role::Cancel};

    /// The screen was closed by its Close button, not by the title bar.
    bool closedByClose = false;

    Layout layout() override;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload(bool byCloseBox) override;
    void Form_Unload() override;

    const ListDescription& description() const noexcept { return description_; }

    /// The statement that reads all rows; its rows have the columns of the description and an `ID`.
    virtual std::string loadStatement() const;
    void loadList();
    /// The rows were loaded anew.
    virtual void listLoaded() {}
    /// What is asked and told once, when the list has first been loaded.
    virtual void welcome();
    /// Sets which buttons are enabled, after every load, change and change of the selection.
    virtual void updateButtons();
    virtual void cmdNew_Click();
    /// A row was added by New; it is shown and selected.
    virtual void added([[maybe_unused]] std::int32_t ID) {}
    virtual void cmdEdit_Click();
    /// Deletes the selected rows for good.
    virtual void deleteSelected();
    /// True when nothing speaks against deleting the record; else the user has been told.
    virtual bool mayDelete(std::size_t record);
    virtual void exportRows();

    /// Opens the edit dialog (0: for a new row); the saved row's `ID`, or 0.
    std::int32_t edit(std::int32_t ID);
    /// Shows a row as it was saved, in place of the edited record or as a new one.
    void showSaved(std::int32_t ID, std::optional<std::size_t> edited);
    /// How many rows a counting statement finds.
    std::int32_t count(const std::string& statement) const;
    /// The user holds the right in the list's security area, or the list checks none.
    bool can(Right right) const;

    /// What stands beside the buttons above the list, and what below the list.
    virtual std::vector<Layout> furtherButtons() { return {}; }
    virtual std::vector<Layout> belowList() { return {}; }

  private:
    class Busy;

    ReportRecords readRows(const std::string& statement) const;
    void cmdDelete_Click();
    void cmdClose_Click();
    void cbContext_Update(Command& command);
    void cbContext_Execute(int id);
    void installDefaults();

    const ListDescription& description_;
    bool activated_ = false;
    bool busy_ = false;
};

/// Shows the list, a screen of the class S made with the further arguments; true when it was closed by its
/// Close button.
template <class S = ListScreen, class... A>
bool showList(Library& library, const ListDescription& description, A... arguments) {
    const auto closed = library.screens().show(
        description.screenName, [&] { return std::make_shared<S>(library, description, arguments...); },
        [](S&) {});
    return closed->closedByClose;
}

}  // namespace tsln
