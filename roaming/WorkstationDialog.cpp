#include "roaming/WorkstationDialog.h"

#include <algorithm>

#include "bridge/SyncState.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::roaming {
namespace {

using modSharedSQL::format;

constexpr std::string_view codeBox = "txtReferenceCode";
constexpr std::size_t codeLength = 2;

/// True for the texts "10" to "99".
bool isReferenceCode(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return text.size() == codeLength && std::ranges::all_of(text, isDigit) && text.front() != '0';
}

}  // namespace

WorkstationDialog::WorkstationDialog(Library& library, const ListDescription& list)
    : RecordDialog(library, list) {
    textBox(codeBox).maxLength = codeLength;
}

/// The list has the active sales representatives. An employee who is none of them any more keeps the workstation.
void WorkstationDialog::rowShown(const Row& row) {
    ComboBox& combo = comboBox("cboAssignedTo");
    const std::int32_t employee = row.number("AssignedTo");
    if (employee == 0 || combo.chosen() == employee) return;
    combo.setListIndex(combo.addItem(host().common().GetEmployeeName(employee), employee));
}

bool WorkstationDialog::validate() {
    if (!RecordDialog::validate()) return false;
    TextBox& box = textBox(codeBox);
    box.setText(modSharedStrings::trim(box.text()));
    if (!isReferenceCode(box.text())) {
        refuse("You must enter a reference code between 10 and 99.", &box);
        return false;
    }
    if (!host().common().RecordExists("RoamingWorkstations", "ReferenceCode", box.text(), ID)) return true;
    refuse("A roaming workstation with this reference code already exists.", &box);
    return false;
}

void WorkstationDialog::saved() {
    // The workstation is saved. A failure to hand out its code is reported, and the next save hands it out.
    handle([this] { handOutIdentity(); });
    accept();
}

void WorkstationDialog::handOutIdentity() {
    const Database database = host().database();
    const Variant state =
        database.ExecuteScaler(format("SELECT SyncState FROM RoamingWorkstations WHERE ID = {0}", ID));
    if (!state.isNull() && state.toLong() != NotSetUp) return;
    const std::string code =
        textOf(database.ExecuteScaler(format("SELECT UniqueID FROM RoamingWorkstations WHERE ID = {0}", ID)),
               "ExecuteScaler");
    if (code.empty()) return;  // another user has deleted the workstation
    desktop().setClipboardText(code);
    host().ShowMessageStyle1(
        "A identity code has been assigned to this Roaming Workstation.",
        "This identity code will be need to be entered at the remote Roaming Workstation in order for it to request an initial sync. This identity code has been copied to the clipboard.");
}

}  // namespace tsln::roaming
