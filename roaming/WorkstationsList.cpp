#include "roaming/WorkstationsList.h"

#include <map>

#include "maintenance/modSharedReportControl.h"
#include "roaming/ResetDateDialog.h"
#include "roaming/SyncAgent.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"
#include "shared/modSharedXML.h"

namespace tsln::roaming {
namespace {

using modSharedSQL::format;

enum Column : std::size_t { Name, AssignedTo, Status };

constexpr std::string_view computerOption = "SyncComputerName";

}  // namespace

const ListDescription workstationsList{
    .open = Operation::ShowRoamingWorkstations,
    .edit = Operation::ShowEditRoamingWorkstation,
    .screenName = "frmRoamingWorkstations",
    .caption = "Roaming Workstations",
    .table = "RoamingWorkstations",
    .view = "vwScreen_RoamingWorkstations",
    .orderBy = "Name",
    .columns = {{"Name", 130, "Name"},
                {"Assigned To", 145, "EmployeeName"},
                {"Status", 150, "SyncState"},
                {"Last Send", 165, "LastSentTo", ListColumn::Show::DateTime},
                {"Last Receive", 165, "LastReceivedFrom", ListColumn::Show::DateTime},
                {"Last Known Version", 130, "LastKnownAppVersion"}},
    .securityArea = 502,
    .deleteFailure = "There was a problem deleting one or more roaming workstations.",
    .asksToDelete = true,
    .dialog = {
        .newCaption = "New Roaming Workstation",
        .editCaption = "Edit Roaming Workstation",
        .fields = {fields::name("txtName", "&Name:", "Name", "<n>", "You must enter a valid name.", "A roaming workstation with this name already exists."),
                   fields::trimmed("txtDescription", "&Description:", "Description", "<d>"),
                   fields::key("cboAssignedTo", "&Assigned to:", "AssignedTo", "<at>", &Common::LoadSalesReps),
                   fields::amount("txtReferenceCode", "&Reference code:", "ReferenceCode", "<rc>").wide(4)},
        .saveFailure = "There was a problem saving this roaming workstation.",
        .insert = "INSERT INTO RoamingWorkstations (Name,Description,AssignedTo,ReferenceCode) VALUES('<n>', '<d>', <at>, <rc>)",
        .update = "UPDATE RoamingWorkstations SET Name = '<n>', Description = '<d>', AssignedTo =  <at>, ReferenceCode = <rc> WHERE ID = <id>",
    },
    .contextMenu = true,
};

const WorkstationsList::Option WorkstationsList::options[] = {
    {"EnableSync", &WorkstationsList::chkEnableSync, false},
    {"StartAgent", &WorkstationsList::chkStartAgent, true},
    {"DebugSyncAgent", &WorkstationsList::chkDebugSyncAgent, true},
};

WorkstationsList::WorkstationsList(Library& library, const ListDescription& description)
    : ListScreen(library, description) {
    cmdThisComputer.onClick = [this] { cmdThisComputer_Click(); };
    cmdResetDate.onClick = [this] { cmdResetDate_Click(); };
}

std::vector<Layout> WorkstationsList::furtherButtons() {
    return {layout::item(cmdResetDate)};
}

std::vector<Layout> WorkstationsList::belowList() {
    using namespace tsln::layout;
    return {framed(grpSync, column({item(chkEnableSync), row({fill(lblSyncComputer), item(cmdThisComputer)}),
                                    item(chkStartAgent), item(chkDebugSyncAgent)}))};
}

/// The host is asked once for each state.
void WorkstationsList::completeRows(ListRows& rows) const {
    std::map<std::int32_t, std::string> names;
    for (std::size_t record = 0; record < rows.records.count(); ++record) {
        const std::int32_t state = modSharedXML::toLong(rows.records.cell(record, Status));
        const auto [name, isNew] = names.try_emplace(state);
        if (isNew) name->second = host().common().GetFriendlySyncState(state);
        rows.records.setCell(record, Status, name->second);
    }
}

void WorkstationsList::updateButtons() {
    ListScreen::updateButtons();
    cmdResetDate.setEnabled(cmdEdit.enabled());
}

void WorkstationsList::deleteSelected() {
    if (!host().AskMessageStyle1(
            "Are you sure you want delete the selected Roaming Workstations?",
            "Any Roaming Workstation that has already been setup will need to be reset in order for it to continue syncing with this main company.")) {
        return;
    }
    for (const std::size_t record : selectedRecords()) {
        const std::int32_t ID = rptItems.id(record);
        // The event log keeps the identity code: with it, whoever resets the workstation recognizes it.
        const std::string code = textOf(host().database().ExecuteScaler(format(
                                            "SELECT UniqueID FROM RoamingWorkstations WHERE ID = {0}", ID)),
                                        "ExecuteScaler");
        if (!host().database().ExecuteNonQuery(format("DELETE FROM RoamingWorkstations WHERE ID = {0}", ID)))
            return reportDatabaseFailure(description().deleteFailure);
        const std::string event = format("Roaming Workstation '{0}' [{1}] was deleted.", nameOf(record), code);
        rptItems.removeRecord(record);
        handle([&] { host().RecordEvent(event); });  // the row is deleted, whether or not that is recorded
    }
}

// Options ---------------------------------------------------------------------------------------------

void WorkstationsList::Form_Load() {
    ListScreen::Form_Load();
    enableOptions(false);
    readOptions();
    // Options that could not be read are not overwritten.
    mayChange_ = can(Right::Edit);
    enableOptions(mayChange_);
}

void WorkstationsList::enableOptions(bool enabled) {
    for (const Option& option : options)
        (this->*option.box).setEnabled(enabled);
    cmdThisComputer.setEnabled(enabled);
}

void WorkstationsList::readOptions() {
    const Options stored = host().options();
    for (const Option& option : options) {
        const std::string value = stored.GetCompanyOption(option.name, optionSection, "0").toText();
        (this->*option.box).setChecked(modSharedXML::toBoolean(value));
    }
    computer_ = textOf(stored.GetCompanyOption(computerOption, optionSection, ""), "GetCompanyOption");
    showComputer();
}

void WorkstationsList::showComputer() {
    lblSyncComputer.setCaption("Responsible computer: " + (computer_.empty() ? "(none)" : computer_));
}

void WorkstationsList::cmdThisComputer_Click() {
    if (!host().AskMessageStyle1(
            "Are you sure you want to make this computer responsible for the Roaming Workstation Agent?", ""))
        return;
    computer_ = desktop().computerName();
    showComputer();
}

void WorkstationsList::cmdResetDate_Click() {
    const std::int32_t ID = selectedID();
    if (ID > 0 && resetSendDate(library(), ID)) showChanged(ID);
}

bool WorkstationsList::Form_QueryUnload(bool byCloseBox) {
    if (!ListScreen::Form_QueryUnload(byCloseBox)) return false;
    if (!mayChange_) return true;
    if (!chkEnableSync.checked() &&
        !ask("You have not enabled synchronization for this company. Are you sure you want to continue?"))
        return false;
    if (computer_.empty() &&
        !ask(
            "You have not indicated what computer will be responsible for syncing this company. Are you sure you want to continue?"))
        return false;
    storeOptions();
    return true;
}

void WorkstationsList::storeOptions() {
    const bool responsible = modSharedStrings::equalNoCase(computer_, desktop().computerName());
    for (const Option& option : options) {
        const bool wanted = (this->*option.box).checked();
        host().options().SetCompanyOption(option.name, optionSection, wanted ? 1 : 0);
        if (option.ofComputer)
            desktop().writeSetting(settingsKey, option.name, wanted && responsible ? "1" : "0");
    }
    host().options().SetCompanyOption(computerOption, optionSection, computer_);
}

}  // namespace tsln::roaming
