#include "measurements/MeasurementDialog.h"

#include <algorithm>

#include "measurements/MeasurementsList.h"
#include "shared/modSharedStrings.h"

namespace tsln::measurements {
namespace {

/// The name under which the host knows the transfer program of the laser meter.
constexpr std::string_view transferProgram = "DistoTransfer";
constexpr std::string_view emptyTitle = "Empty Measurement";

}  // namespace

MeasurementDialog::MeasurementDialog(Library& library) : RecordDialog(library, measurementsList) {
    cmdDisto.onClick = [this] { cmdDisto_Click(); };
    textBox("txtWidth").onEnterKey = [this] {
        textBox("txtHeight").setFocus();
        return true;
    };
}

bool MeasurementDialog::open(std::int32_t measurementID, std::int32_t customerID, const Variant& owner) {
    customerID_ = customerID;
    if (owner.isObject()) owner_ = owner.toObject();
    return RecordDialog::open(measurementID);
}

Layout MeasurementDialog::content() {
    using namespace tsln::layout;
    const auto one = [this](std::string_view control) { return fieldOf(control).layout(); };
    return form({one("cboLocation"), one("cboRoom"), one("cboItem"), one("cboMount"),
                 row({one("txtWidth"), one("txtHeight"), item(cmdDisto)}), one("txtNote")});
}

std::vector<Layout> MeasurementDialog::besideButtons() {
    return {layout::item(chkAgain)};
}

void MeasurementDialog::addTags(StatementTags& tags) {
    if (isNew()) tags.plain("<cid>", customerID_);
}

bool MeasurementDialog::isEmpty(std::initializer_list<std::string_view> controls) {
    return std::ranges::all_of(controls, [this](std::string_view control) {
        Control& box = *fieldOf(control).control();
        const auto* combo = dynamic_cast<const ComboBox*>(&box);
        return modSharedStrings::trim(combo ? combo->text() : textBox(control).text()).empty();
    });
}

bool MeasurementDialog::validate() {
    if (isEmpty({"cboLocation"})) {
        refuse("You must enter a location.", &comboBox("cboLocation"));
        return false;
    }
    // A measurement with a size is not an empty one, even when nothing tells what was measured.
    const bool sizeless = isEmpty({"txtWidth", "txtHeight"});
    if (sizeless && isEmpty({"cboRoom", "cboItem", "cboMount", "txtNote"}) &&
        !ask("Are you sure you want to create an empty measurement?", emptyTitle)) {
        return false;
    }
    return !sizeless ||
           ask("Are you sure you want to create a measurement with no width or height?", emptyTitle);
}

void MeasurementDialog::saved() {
    lastSaved_ = ID;
    if (!chkAgain.checked()) return accept();
    if (owner_) {
        try {
            owner_->call("ShowSaved", ID);
        } catch (const std::exception&) {
            // The measurement is saved. A list that cannot show it now shows it when it is loaded again.
        }
    }
    beginNext();
}

/// The next measurement is usually of the next opening of the same room: the size and the note are of one opening, the
/// rest is kept.
void MeasurementDialog::beginNext() {
    ID = 0;
    setCaption(std::string(record().newCaption));
    for (const std::string_view control : {"txtWidth", "txtHeight", "txtNote"})
        textBox(control).setText("");
    textBox("txtWidth").setFocus();
}

void MeasurementDialog::cmdDisto_Click() {
    const std::string program = host().options().ExternalProgram(transferProgram);
    if (program.empty())
        return tell("The Leica Disto Transfer software cannot be located.", MessageIcon::Exclamation);
    // The program types into the control that has the focus.
    textBox("txtWidth").setFocus();
    desktop().shellOpen(program, "");
}

std::int32_t editMeasurement(Library& library, std::int32_t ID, std::int32_t customerID,
                             const Variant& owner) {
    return library.screens()
        .show(
            dialogName(measurementsList), [&] { return std::make_shared<MeasurementDialog>(library); },
            [&](MeasurementDialog& dialog) { return dialog.open(ID, customerID, owner); })
        ->result();
}

}  // namespace tsln::measurements
