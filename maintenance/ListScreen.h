#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "bridge/HostScreen.h"
#include "maintenance/HeldRights.h"
#include "maintenance/ListDescription.h"
#include "maintenance/ListRows.h"
#include "screens/CommandBars.h"
#include "screens/Controls.h"
#include "screens/ReportControl.h"

namespace tsln {

/// A list screen: shows the rows of a table and lets the user add, edit, delete, import, export, print and save them,
/// and what further commands its description has. The description must outlive the screen. A list with ways of its own
/// derives and overrides just those.
///
/// After one act of the user each right is asked of the host at most once.
class ListScreen : public HostScreen {
  public:
    ListScreen(Library& library, const ListDescription& description);

    ReportControl rptItems{*this, "rptItems"};
    CommandBars cbContext{*this, "cbContext"};
    Button cmdNew{*this, "cmdNew", "&New..."};
    Button cmdEdit{*this, "cmdEdit", "&Edit..."};
    Button cmdDelete{*this, "cmdDelete", "&Delete"};
    Button cmdMore{*this, "cmdMore", "&More"};
    TextBox txtFilter{*this, "txtFilter"};
    Label lblRecords{*this, "lblRecords", ""};
    Frame grpOK{*this, "grpOK"};
    Button cmdHelp{*this, "cmdHelp", "&Help"};
    Button cmdClose{*this, "cmdClose", "&Close", Button::Role::Cancel};

    /// The screen was closed by its Close button, not by the title bar.
    bool closedByClose = false;

    Layout layout() override;

    // For the commands --------------------------------------------------------------------------------
    const ListDescription& description() const noexcept { return description_; }
    /// The user holds the right in the list's security area, or the list checks none. May raise HostError.
    bool can(Right right);
    /// The `ID` of the focused row, 0 when there is none.
    std::int32_t selectedID() const;
    /// The records of the selected rows, from the first to the last.
    std::vector<std::size_t> selectedRecords() const;
    /// Reads all rows again. What it raises leaves the rows as they were.
    void loadList();
    /// Reads a row that was added and shows it, selected.
    void showAdded(std::int32_t ID);
    /// Reads a row that was changed again and shows it in its place. One that is gone stays as it is until the next
    /// load.
    void showChanged(std::int32_t ID);

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void actStarts() override { rights_.forget(); }

    /// The statement that reads all rows; its rows have the fields of the columns and an `ID`.
    virtual std::string loadStatement() const;
    /// The statement that reads one row.
    virtual std::string rowStatement(std::int32_t ID) const;
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
    /// References to a row were moved to another one.
    virtual void referencesMoved() {}
    /// What the dialog's entry point takes after the row's `ID`.
    virtual std::vector<Variant> furtherArguments() const { return {}; }

    /// What stands beside the buttons above the list, and what below the list.
    virtual std::vector<Layout> furtherButtons() { return {}; }
    virtual std::vector<Layout> belowList() { return {}; }

    /// Opens the dialog (0: for a new row); the saved row's `ID`, or 0.
    std::int32_t edit(std::int32_t ID);
    /// How many rows a counting statement finds.
    std::int32_t count(const std::string& statement) const;

  private:
    class BusyState;

    void makeCommands();
    void makePopups();
    bool applies(const ListCommand& command);
    const ListCommand* findCommand(int id) const;
    void runCommand(int id);
    void openContextMenu();

    ListRows readRows(const std::string& statement) const;
    void showSaved(std::int32_t ID, std::optional<std::size_t> shown);
    void filterRows();
    void showCount();
    void cmdDelete_Click();
    void deleteKey();
    void cmdClose_Click();
    void importRows();
    void moveReferences();
    void installDefaults();

    const ListDescription& description_;
    HeldRights rights_;
    std::vector<ListCommand> commands_;
    struct CommandButton {
        CommandButton(ListScreen& screen, const ListCommand& command)
            : id(command.id), button(screen, std::string(command.button), std::string(command.buttonCaption)) {}
        int id;
        Button button;
    };
    std::deque<CommandButton> commandButtons_;  // controls stay where they are
    bool activated_ = false;
};

/// Shows the list, a screen of the class S made with the further arguments; true when it was closed by its Close
/// button.
template <class S = ListScreen, class... A>
bool showList(Library& library, const ListDescription& description, A... arguments) {
    const auto closed = library.screens().show(
        description.screenName, [&] { return std::make_shared<S>(library, description, arguments...); },
        [](S&) {});
    return closed->closedByClose;
}

}  // namespace tsln
