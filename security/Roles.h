#pragma once

#include <map>
#include <string>

#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"
#include "screens/OptionButton.h"
#include "security/Activities.h"

namespace tsln {
class Library;
}

namespace tsln::security {

extern const ListDescription rolesList;

/// The security roles. When it closes, the host reads the user's rights again.
class RolesScreen : public ListScreen {
  public:
    using ListScreen::ListScreen;

    /// Adds a role with the description and the access of the selected one. A name that is taken is told, and nothing is
    /// written.
    void copySelected();

  protected:
    void Form_Unload() override;
};

/// The editor of a role: its name, and its access to every activity.
///
/// Only the access that the user changes is written: what another user changed meanwhile, and access to activities that
/// are not listed, stay as they are stored.
class RoleDialog : public RecordDialog {
  public:
    RoleDialog(Library& library, const ListDescription& list);

    ReportControl rptActivity{*this, "rptActivity"};
    Frame grpPermissions{*this, "grpPermissions", "Permissions"};
    Label lblPermissions{*this, "lblPermissions", ""};
    TextBox txtActivityDescription{*this, "txtActivityDescription"};
    OptionGroup level;
    OptionButton optNone{*this, level, "optNone", "N&one"};
    OptionButton optFull{*this, level, "optFull", "&Full"};
    OptionButton optPartial{*this, level, "optPartial", "&Partial"};
    CheckBox chkViewOwned{*this, "chkViewOwned", "View o&wned"};
    CheckBox chkViewAll{*this, "chkViewAll", "&View all"};
    CheckBox chkCreate{*this, "chkCreate", "C&reate"};
    CheckBox chkUpdate{*this, "chkUpdate", "&Update"};
    CheckBox chkDelete{*this, "chkDelete", "De&lete"};
    Button cmdExport{*this, "cmdExport", "E&xport..."};

  protected:
    Layout content() override;
    std::vector<Layout> besideButtons() override;
    void filled() override;
    bool validate() override;
    bool save() override;

  private:
    struct Box {
        CheckBox& box;
        Access bit;
    };

    void listActivities(const std::map<std::int32_t, std::int32_t>& stored);
    ActivityAccess* shownAccess();
    void showPermissions();
    void enableBoxes();
    /// Changes the access to the activity that is shown, and marks it as updated when it differs afterwards.
    void change(const std::function<void(ActivityAccess&)>& how);
    bool exists();
    bool saveAccess();
    void cmdExport_Click();

    const std::vector<Box> boxes_{{chkViewOwned, ViewOwned},
                                  {chkViewAll, ViewAll},
                                  {chkCreate, Create},
                                  {chkUpdate, Update},
                                  {chkDelete, Delete}};
    std::vector<ActivityAccess> access_;  // by record of rptActivity
    std::string exportFile_;              // proposed for the export; once chosen, the chosen path
    bool rowWritten_ = false;             // the role is stored, though perhaps not all of its access
};

/// Registers the list of roles and their editor with the library.
void plugIn(Library& library);

}  // namespace tsln::security
