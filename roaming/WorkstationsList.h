#pragma once

#include <string>

#include "maintenance/ListScreen.h"

namespace tsln::roaming {

extern const ListDescription workstationsList;

/// The roaming workstations of this main system, and the options of the exchange with them, which are stored when the
/// screen is closed.
///
/// One computer is responsible for the exchange. On it, and on no other, the program's settings say whether the
/// synchronization agent starts with the program, and whether the agent writes every step to the event log.
class WorkstationsList : public ListScreen {
  public:
    WorkstationsList(Library& library, const ListDescription& description);

    Button cmdResetDate{*this, "cmdResetDate", "&Reset Date..."};
    Frame grpSync{*this, "grpSync", "Synchronization"};
    CheckBox chkEnableSync{*this, "chkEnableSync", "Enable s&ynchronization for this company"};
    Label lblSyncComputer{*this, "lblSyncComputer", ""};
    Button cmdThisComputer{*this, "cmdThisComputer", "&This Computer..."};
    CheckBox chkStartAgent{*this, "chkStartAgent", "&Start the agent with Tessaline on that computer"};
    CheckBox chkDebugSyncAgent{*this, "chkDebugSyncAgent", "Record e&very step of the agent"};

  protected:
    void Form_Load() override;
    bool Form_QueryUnload(bool byCloseBox) override;
    void completeRows(ListRows& rows) const override;
    void updateButtons() override;
    void deleteSelected() override;
    std::vector<Layout> furtherButtons() override;
    std::vector<Layout> belowList() override;

  private:
    struct Option {
        std::string_view name;
        CheckBox WorkstationsList::*box;
        bool ofComputer;  ///< also a setting of the responsible computer
    };
    static const Option options[];

    void enableOptions(bool enabled);
    void readOptions();
    void storeOptions();
    void showComputer();
    void cmdThisComputer_Click();
    void cmdResetDate_Click();

    std::string computer_;    // the responsible one; empty: none
    bool mayChange_ = false;  // the options were read, and the user may change them
};

}  // namespace tsln::roaming
