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
#include "screens/ProgressBar.h"
#include "screens/ReportControl.h"

namespace tsln {

/// A list screen: shows the rows of a table and lets the user add, edit, delete, import, export, print and save them,
/// and run the description's further commands. The description must outlive the screen. A derived class overrides
/// members for special handling.
///
/// During one user action each right is asked of the host at most once.
class ListScreen : public HostScreen {
  public:
    ListScreen(Library& library, const ListDescription& description);

    ReportControl rptItems;
    CommandBars cbContext{*this, "cbContext"};
    Button cmdNew{*this, "cmdNew", "&New..."};
    Button cmdEdit{*this, "cmdEdit", "&Edit..."};
    Button cmdDelete{*this, "cmdDelete", "&Delete"};
    Button cmdMore{*this, "cmdMore", "&More"};
    TextBox txtFilter{*this, "txtFilter"};
    Label lblRecords{*this, "lblRecords", ""};
    ProgressBar prgWork{*this, "prgWork"};  ///< shown with its button while many rows are deleted
    Button cmdStop{*this, "cmdStop", "Cancel"};
    Frame grpOK{*this, "grpOK"};
    Button cmdHelp{*this, "cmdHelp", "&Help"};
    Button cmdClose{*this, "cmdClose", "&Close", Button::Role::Cancel};

    /// True when the screen was closed by its Close button, not by the title bar.
    bool closedByClose = false;

    Layout layout() override;

    // For the commands --------------------------------------------------------------------------------
    const ListDescription& description() const noexcept { return description_; }
    /// True when the user holds the right in the list's security area, or the list has no area. May raise HostError.
    bool can(Right right);
    /// The `ID` of the focused row, 0 without one.
    std::int32_t selectedID() const;
    /// The record's name in messages.
    std::string_view nameOf(std::size_t record) const;
    /// The records of the selected rows, in row order.
    std::vector<std::size_t> selectedRecords() const;
    /// Reads all rows again. An error leaves the rows unchanged.
    void loadList();
    /// Reads an added row, shows it and selects it.
    void showAdded(std::int32_t ID);
    /// Reads a changed row again and updates it in place. A row that no longer exists stays unchanged until the next
    /// load.
    void showChanged(std::int32_t ID);

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void actStarts() override { rights_.forget(); }

    /// The statement that reads all rows. Its result has the columns' fields and an `ID`.
    virtual std::string loadStatement() const;
    /// The statement that reads one row.
    virtual std::string rowStatement(std::int32_t ID) const;
    /// Called with all rows when they were read, before they are shown, to take the fields that are not shown.
    virtual void rowsRead([[maybe_unused]] ListRows& rows) {}
    /// Called with the rows of every read, of all rows or of one, for cells whose text only the host knows.
    virtual void completeRows([[maybe_unused]] ListRows& rows) const {}
    /// Called after all rows were loaded.
    virtual void listLoaded() {}
    /// Called once, after the first load, for questions and messages.
    virtual void welcome();
    /// Sets which buttons are enabled. Called after every load, change and change of the selection.
    virtual void updateButtons();
    virtual void cmdNew_Click();
    /// Called after New added a row, which is shown and selected.
    virtual void added([[maybe_unused]] std::int32_t ID) {}
    virtual void cmdEdit_Click();
    /// Deletes the selected rows without asking.
    virtual void deleteSelected();
    /// Returns true when the record may be deleted; otherwise tells the user why not and returns false.
    virtual bool mayDelete(std::size_t record);
    virtual void exportRows();
    /// Called after references to a row were moved to another one.
    virtual void referencesMoved() {}
    /// The arguments of the dialog's entry point after the row's `ID`.
    virtual std::vector<Variant> furtherArguments() const { return {}; }

    /// Further controls beside the buttons above the list, between them and the list, and below the list.
    virtual std::vector<Layout> furtherButtons() { return {}; }
    virtual std::vector<Layout> aboveList() { return {}; }
    virtual std::vector<Layout> belowList() { return {}; }

    /// Opens the dialog, for a new row with 0. Returns the saved row's `ID`, or 0.
    std::int32_t edit(std::int32_t ID);
    /// Returns the number that a counting statement finds.
    std::int32_t count(const std::string& statement) const;

  private:
    class BusyState;
    class Progress;

    void makeCommands();
    void makePopups();
    bool applies(const ListCommand& command);
    /// True when the user holds the rights that the command requires.
    bool mayRun(const ListCommand& command);
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
    std::string textFile_, exportFile_;  // proposed for saving and exporting; once chosen, the chosen paths
    HeldRights rights_;
    std::vector<ListCommand> commands_;
    struct CommandButton {
        CommandButton(ListScreen& screen, const ListCommand& command)
            : id(command.id),
              button(screen, std::string(command.button), std::string(command.buttonCaption)) {}
        int id;
        Button button;
    };
    std::deque<CommandButton> commandButtons_;  // a deque: controls must not move
    bool activated_ = false;
};

/// Shows the list in a screen of the class S, constructed with the further arguments. Returns true when it was closed
/// by its Close button.
template <class S = ListScreen, class... A>
bool showList(Library& library, const ListDescription& description, A... arguments) {
    const auto closed = library.screens().show(
        description.screenName, [&] { return std::make_shared<S>(library, description, arguments...); },
        [](S&) {});
    return closed->closedByClose;
}

}  // namespace tsln
