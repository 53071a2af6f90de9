#include <algorithm>
#include <array>

#include "maintenance/ListKinds.h"
#include "maintenance/TextFile.h"
#include "maintenance/modSharedReportControl.h"
#include "security/Roles.h"

namespace tsln::security {
namespace {

using modSharedSQL::doubleQuotes;
using modSharedSQL::format;

enum Column : std::size_t { Role, CurrentAccess, Updated, Number, ValidAccess, Group };

constexpr int descriptionWidth = 34;  // characters

}  // namespace

RoleDialog::RoleDialog(Library& library, const ListDescription& list) : RecordDialog(library, list) {
    rptActivity.accessibleName = "Activities";
    rptActivity.columns = {{.caption = "Role", .width = 190},
                           {.caption = "CurrentAccess", .width = 160},
                           {.caption = "Updated", .width = 70, .kind = ReportColumn::Kind::Check},
                           {.caption = "Activity", .width = 70, .rightAligned = true, .numeric = true},
                           {.caption = "ValidAccess", .width = 150},
                           {.caption = "Group", .width = 90}};
    rptActivity.groupBy({.column = Group, .order = ReportControl::Grouping::Order::ByAppearance});
    rptActivity.onSelectionChanged = [this] { showPermissions(); };
    txtActivityDescription.multiLine = true;
    txtActivityDescription.widthInCharacters = descriptionWidth;
    txtActivityDescription.accessibleName = "Description of the activity";
    txtActivityDescription.setLocked(true);

    optNone.onClick = [this] { change([](ActivityAccess& access) { access.setNone(); }); };
    optFull.onClick = [this] { change([](ActivityAccess& access) { access.setFull(); }); };
    optPartial.onClick = [this] { change([](ActivityAccess& access) { access.setPartial(); }); };
    for (const Box& box : boxes_) {
        box.box.onClick = [this, &box] {
            change([&](ActivityAccess& access) { access.grant(box.bit, box.box.checked()); });
        };
    }
    cmdExport.onClick = [this] { cmdExport_Click(); };
    // A new role whose access could not be saved exists: its list must show it.
    cmdCancel.onClick = [this] { rowWritten_ ? accept() : cancel(); };
    showPermissions();
}

Layout RoleDialog::content() {
    using namespace tsln::layout;
    const Layout permissions =
        framed(grpPermissions, column({item(lblPermissions), fill(txtActivityDescription),
                                       row({item(optNone), item(optFull), item(optPartial)}),
                                       row({item(chkViewOwned), item(chkViewAll)}),
                                       row({item(chkCreate), item(chkUpdate), item(chkDelete)})}));
    return column({RecordDialog::content(), stretch(row({fill(rptActivity), permissions}))});
}

std::vector<Layout> RoleDialog::besideButtons() {
    return {layout::item(cmdExport)};
}

// Filling ---------------------------------------------------------------------------------------------

void RoleDialog::filled() {
    cmdExport.setEnabled(!isNew() && cmdOK.enabled());
    exportFile_ = fileName(textBox("txtName").text(), ".xml");
    std::map<std::int32_t, std::int32_t> stored;
    if (!isNew()) {
        // Without the stored access the dialog would show every activity as forbidden.
        const bool usable = cmdOK.enabled();
        cmdOK.setEnabled(false);
        const Records rows = host().database().ExecuteRead(
            format("SELECT * FROM SecurityRoleAccess WHERE SecurityRoleID = {0}", ID));
        for (const Record row : rows)
            stored[modSharedXML::readLong("Activity", row)] |= modSharedXML::readLong("Access", row);
        cmdOK.setEnabled(usable);
    }
    listActivities(stored);
}

void RoleDialog::listActivities(const std::map<std::int32_t, std::int32_t>& stored) {
    access_.clear();
    rptActivity.clearRecords();
    for (const SecuredActivity& activity : activities()) {
        const auto found = stored.find(activity.number);
        const std::int32_t access = found == stored.end() ? 0 : found->second;
        access_.emplace_back(activity.validAccess, access);
        const std::string current = accessText(access, activity.validAccess);
        const std::string number = std::to_string(activity.number);
        const std::string valid = accessNames(activity.validAccess);
        const std::array<std::string_view, 6> cells{activity.name, current, "0",
                                                    number,        valid,   activity.groupName};
        rptActivity.addRecord(activity.number, cells);
    }
    rptActivity.populate();
    showPermissions();
}

// The permissions of the selected activity ------------------------------------------------------------

ActivityAccess* RoleDialog::shownAccess() {
    const auto record = modSharedReportControl::focusedRecord(rptActivity);
    return record ? &access_.at(*record) : nullptr;
}

void RoleDialog::showPermissions() {
    const auto record = modSharedReportControl::focusedRecord(rptActivity);
    const SecuredActivity* activity = record ? &activities()[*record] : nullptr;
    const ActivityAccess* access = shownAccess();
    lblPermissions.setCaption(activity ? format("Permissions for {0}", activity->name)
                                       : "No activity selected");
    txtActivityDescription.setText(std::string(activity ? activity->description : ""));
    for (OptionButton* option : level.buttons())
        option->setEnabled(access != nullptr);
    level.clear();
    if (access) (access->isNone() ? optNone : access->isFull() ? optFull : optPartial).setSelected(true);
    enableBoxes();
}

void RoleDialog::enableBoxes() {
    const ActivityAccess* access = shownAccess();
    for (const auto& [box, bit] : boxes_) {
        box.setChecked(access && access->allows(bit) && access->has(bit));
        box.setEnabled(access && optPartial.selected() && access->allows(bit));
    }
}

void RoleDialog::change(const std::function<void(ActivityAccess&)>& how) {
    const auto record = modSharedReportControl::focusedRecord(rptActivity);
    if (!record) return;
    ActivityAccess& access = access_.at(*record);
    const std::int32_t before = access.access();
    how(access);
    enableBoxes();
    if (access.access() == before) return;
    rptActivity.setCell(*record, CurrentAccess,
                        accessText(access.access(), activities()[*record].validAccess));
    rptActivity.setCell(*record, Updated, "1");
}

// OK --------------------------------------------------------------------------------------------------

bool RoleDialog::validate() {
    if (RecordDialog::validate()) return true;
    goTo(textBox("txtName"));
    return false;
}

/// Without this question the access of a role that another user deleted would be stored, and belong to no role.
bool RoleDialog::exists() {
    const Records role =
        host().database().ExecuteRead(format("SELECT * FROM SecurityRoles WHERE ID = {0}", ID));
    if (role.count() > 0) return true;
    lblMissing.setVisible(true);
    tell(lblMissing.caption(), MessageIcon::Exclamation);
    return false;
}

bool RoleDialog::save() {
    if (!isNew() && !exists()) return false;
    if (!writeRow()) {
        reportSaveFailure();
        return false;
    }
    rowWritten_ = true;
    return saveAccess();
}

/// What is written is no longer marked: after a failure, the next OK writes the rest.
bool RoleDialog::saveAccess() {
    const Database database = host().database();
    for (std::size_t record = 0; record < access_.size(); ++record) {
        if (!rptActivity.checked(record, Updated)) continue;
        const std::int32_t activity = rptActivity.id(record);
        const std::int32_t access = access_[record].access();
        const bool saved =
            database.ExecuteNonQuery(
                format("DELETE FROM SecurityRoleAccess WHERE SecurityRoleID = {0} AND Activity = {1}", ID,
                       activity)) &&
            (access == 0 ||
             database.ExecuteNonQuery(format(
                 "INSERT INTO SecurityRoleAccess (SecurityRoleID, Activity, Access) VALUES({0},{1},{2})", ID,
                 activity, access)));
        if (!saved) {
            reportSaveFailure();
            return false;
        }
        rptActivity.setCell(record, Updated, "0");
    }
    return true;
}

// Export ----------------------------------------------------------------------------------------------

void RoleDialog::cmdExport_Click() {
    const std::string role =
        doubleQuotes(host()
                         .database()
                         .ExecuteScaler(format("SELECT UniqueID FROM SecurityRoles WHERE ID = {0}", ID))
                         .toText());
    const ExportPart parts[] = {
        {"SecurityRoles", format("SELECT * FROM vwExporting_SecurityRoles WHERE UniqueID = '{0}'", role)},
        {"SecurityRoleAccess",
         format("SELECT * FROM vwExporting_SecurityRoleAccess WHERE SecurityRoleUniqueID = '{0}'", role)}};
    const auto exported = exportParts(*this, parts, exportFile_);
    if (!exported) return;
    if (*exported) {
        tell("This security role has been exported.", MessageIcon::Information);
    } else {
        tell("There was a problem exporting this security role.", MessageIcon::Exclamation);
    }
}

}  // namespace tsln::security
