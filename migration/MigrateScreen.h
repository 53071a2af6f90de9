#pragma once

#include <string>

#include "bridge/HostScreen.h"
#include "screens/ProgressBar.h"

namespace tsln::migration {

/// What is migrated.
enum class Kind : std::int32_t {
    BaseData = 1,       ///< lookup lists and the company's own record
    WithCustomers = 2,  ///< also employees and customers, after the base data
};

/// A progress bar that a component of the host advances.
class LentProgressBar : public ProgressBar {
  public:
    using ProgressBar::ProgressBar;
    /// Called when the component has set a property of the bar.
    std::function<void()> onAdvanced;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;
};

/// Brings a company of version 4.2 into the open one. The work begins when the screen first appears, and closes the
/// screen when it is done.
class MigrateScreen : public HostScreen {
  public:
    explicit MigrateScreen(Library& library);

    Label lblSourceCompany{*this, "lblSourceCompany", ""};
    Label lblStatus{*this, "lblStatus", ""};
    LentProgressBar ProgressBar1{*this, "ProgressBar1"};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    /// False only when every step succeeded.
    bool Cancelled = true;

    void initialize(std::string sourceCompany, Kind kind);
    Layout layout() override;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    std::string sourceCompany_;
    Kind kind_ = Kind::BaseData;
    bool begun_ = false;
};

/// Migrates the company with this path. Returns `Cancelled` of the screen.
bool migrate(Library& library, const std::string& sourceCompany, Kind kind);

}  // namespace tsln::migration
