#pragma once

#include <string>

#include "bridge/HostScreen.h"
#include "lists/ListDescription.h"
#include "screens/CommandBars.h"
#include "screens/Controls.h"
#include "screens/ReportControl.h"

namespace tsln::lists {

/// The list screen of a lookup table: shows its rows and lets the user add, edit, delete, import, export,
/// print and save them. What it is a list of stands in the description, which must outlive it.
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

  private:
    class Busy;

    void cmdNew_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdClose_Click();
    void cbContext_Update(Command& command);
    void cbContext_Execute(int id);

    void loadList();
    /// Shows a row as it was saved, in place of the edited record or as a new one.
    void showSaved(std::int32_t ID, std::optional<std::size_t> edited);
    /// Opens the edit dialog (0: for a new row); the saved row's `ID`, or 0.
    std::int32_t edit(std::int32_t ID);
    void deleteSelected();
    bool mayDelete(std::size_t record);
    void updateButtons();
    void installDefaults();
    bool can(Right right) const;

    const ListDescription& description_;
    bool activated_ = false;
    bool busy_ = false;
};

/// Shows the list; true when it was closed by its Close button.
bool showList(Library& library, const ListDescription& description);

}  // namespace tsln::lists
