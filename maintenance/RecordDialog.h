#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/HostScreen.h"
#include "maintenance/Field.h"
#include "maintenance/ListDescription.h"
#include "maintenance/RecordDescription.h"
#include "screens/Controls.h"

namespace tsln {

/// A dialog with OK and Cancel that remembers its place on the screen. Most dialogs edit one record, new or stored,
/// by their description. A dialog without a description overrides content() and save().
///
/// Its life: opened, filled with the defaults of a new record or with the row, edited, validated and saved by OK. A
/// failed validation or save leaves it open with its input. While it saves, OK and Cancel are disabled and it cannot
/// be closed.
class RecordDialog : public HostScreen {
  public:
    /// A dialog without a record. Its close box counts as Cancel.
    RecordDialog(Library& library, std::string name);
    /// The description must outlive the dialog.
    RecordDialog(Library& library, std::string name, const RecordDescription& record);
    /// The dialog of a list's rows.
    RecordDialog(Library& library, const ListDescription& list);

    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};
    /// Shown when the record of an existing key has no row. It cannot be saved then.
    Label lblMissing{*this, "lblMissing",
                     "This record does not exist. It may have been deleted by another user."};

    /// True unless the dialog was closed with its work done.
    bool Cancelled = true;
    /// The record's key; 0 or less while the record is new. Saving a new record sets it.
    std::int32_t ID = 0;

    /// Sets the record. Returns false when the dialog must not be shown; the user has been told why.
    bool open(std::int32_t recordID);
    /// The result of an entry point: the record's key, 0 when the dialog was cancelled.
    std::int32_t result() const { return Cancelled ? 0 : ID; }

    Layout layout() override;

    /// The field with this control or column, which must exist in the description.
    Field& fieldOf(std::string_view name);
    const Field& fieldOf(std::string_view name) const;
    TextBox& textBox(std::string_view control) { return fieldOf(control).text(); }
    ComboBox& comboBox(std::string_view control) { return fieldOf(control).combo(); }
    CheckBox& checkBox(std::string_view control) { return fieldOf(control).check(); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

    /// The layout above the buttons; by default the fields, one below the other.
    virtual Layout content();
    /// A form of the fields with these controls.
    Layout formOf(std::initializer_list<std::string_view> controls);
    /// One row for each phone number or e-mail address: its label beside its number or address.
    std::vector<Layout> slots(std::string_view kind, int count);
    /// Further controls to the left of the buttons.
    virtual std::vector<Layout> besideButtons();

    /// Called before the fields are filled, for choices that depend on the record.
    virtual void filling() {}
    /// Called after a new record's defaults from options are shown, before further fields select their first entry.
    virtual void defaultsShown() {}
    /// Called after an existing row is shown in the fields.
    virtual void rowShown([[maybe_unused]] const Row& row) {}
    /// Called after the fields are filled, also when the record does not exist.
    virtual void filled() {}
    /// Called when the dialog is shown for the first time.
    virtual void opened() {}
    /// Returns whether the record can be saved, and tells the user why not. By default checks the rules of the
    /// fields.
    virtual bool validate();
    /// Corrects the fields' values as they are saved: trims texts, corrects numbers.
    void normalizeFields();
    /// Does the work of OK; by default writes the record. Returns false when that failed and the failure was
    /// reported.
    virtual bool save();
    /// Runs the INSERT, which sets the `ID`, or the UPDATE. Returns false when the database refused it.
    bool writeRow();
    /// Adds the values of tags that belong to no field and come before those of the fields, such as the key of the
    /// record's owner. May raise HostError.
    virtual void addTags([[maybe_unused]] StatementTags& tags) {}
    /// Called after OK has saved; by default closes the dialog as done.
    virtual void saved() { accept(); }
    /// Tells the user that the record could not be written.
    virtual void reportSaveFailure() {
        reportDatabaseFailure(record_->saveFailure, record_->saveExplanation);
    }
    /// Saves further data of a master record, after its row is written. Reports its own failures.
    virtual void saveFurther() {}
    /// How messages and the event log call a master record; by default the text of its first field.
    virtual std::string recordName() const;
    /// The value that the statements write for the rule ValidateAddresses.
    virtual bool validateAddresses() const { return validateAddresses_; }
    /// The value that the INSERT writes for a field with the rule Computed.
    virtual std::string computed([[maybe_unused]] std::string_view column) const { return "NULL"; }
    /// The complete INSERT of a new record or UPDATE of a stored one. May raise HostError.
    std::string statement();

    const RecordDescription& record() const { return *record_; }
    bool isNew() const { return ID < 1; }
    void setValidateAddresses(bool wanted) { validateAddresses_ = wanted; }
    /// Whether addresses are to be validated, for a piece of the dialog that lets the host parse further addresses.
    bool& validateAddressesFlag() noexcept { return validateAddresses_; }
    /// Disables the fields that cannot be changed in a locked record.
    void lockFields();
    /// Shows the message, then focuses the control, on its page.
    void refuse(std::string_view message, Control* control);
    /// Focuses the control, on its page.
    void goTo(Control& control);
    /// Lets Enter start a new line in this box. Elsewhere Enter presses OK.
    void keepsEnter(TextBox& box, std::function<void()> onLeave = {});

    /// Closes the dialog as done.
    void accept();
    /// Closes the dialog as cancelled.
    void cancel();

  private:
    void makeFields();
    void fillFields();
    /// Returns false when the record has no row.
    bool readRow();
    void showRow(const Row& row);
    void focusFirstField();
    bool validateField(Field& field);
    void cmdOK_Click();
    void cmdExpression_Click();

    const RecordDescription* record_ = nullptr;
    std::string_view table_;
    bool validateAddresses_ = false;
    std::deque<Field> fields_;  // a deque: their handlers refer to them
    std::unique_ptr<Button> cmdExpression_;
    bool activated_ = false;
};

/// Opens a dialog, created by `make`, on a record, as every entry point does. Returns the closed dialog.
template <class Make>
auto openRecord(Library& library, std::string_view screenName, Make make, std::int32_t ID) {
    return library.screens().show(screenName, make, [&](auto& dialog) { return dialog.open(ID); });
}

/// The screen name of a list's dialog.
std::string dialogName(const ListDescription& list);

/// Opens a list's dialog, of the class D, on a row (0: a new one). Returns the closed dialog.
template <class D = RecordDialog>
std::shared_ptr<D> runDialog(Library& library, const ListDescription& list, std::int32_t ID) {
    return openRecord(
        library, dialogName(list), [&] { return std::make_shared<D>(library, list); }, ID);
}

}  // namespace tsln
