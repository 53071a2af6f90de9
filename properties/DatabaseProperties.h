#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "bridge/HostScreen.h"
#include "screens/ProgressBar.h"
#include "screens/PropertyGrid.h"

namespace tsln::properties {

/// Shows facts about the open company: its connection and folders, and how much its tables hold. It fills itself when it
/// first appears. A value that cannot be read leaves its row out; nothing is reported. Closing it meanwhile ends the
/// filling between two rows.
class DatabaseProperties : public HostScreen {
  public:
    explicit DatabaseProperties(Library& library);

    PropertyGrid grdProperties{*this, "grdProperties"};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};  ///< shown while the grid fills
    Button cmdClose{*this, "cmdClose", "&Close", Button::Role::Cancel};

    Layout layout() override;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    /// Returns false when the user closed the screen before the last row.
    bool readRows();

    bool filled_ = false;
};

/// Shows a duration: "1 hr 2 min 5 sec". Units before the first that is not 0 are left out.
std::string durationText(std::chrono::seconds duration);

/// Shows the screen until it is closed.
void showDatabaseProperties(Library& library);

}  // namespace tsln::properties
