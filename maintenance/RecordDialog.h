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

/// A dialog with OK and Cancel that keeps its place on the screen. Most edit one record, new or stored, as its
/// description says; one without a description shows what content() says and does with OK what save() says.
///
/// Its life: opened, filled (with the defaults of a new record or with its row), worked with, validated and saved by
/// OK. A failed validation or save leaves it open with its input. While it saves, neither OK nor Cancel can be pressed
/// and it cannot be closed.
class RecordDialog : public HostScreen {
  public:
    /// A dialog without a record. Left by its close box it counts as cancelled.
    RecordDialog(Library& library, std::string name);
    /// The description must outlive the dialog.
    RecordDialog(Library& library, std::string name, const RecordDescription& record);
    /// The dialog of a list's rows.
    RecordDialog(Library& library, const ListDescription& list);

    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    /// The dialog was left without its work done.
    bool Cancelled = true;
    /// The record, 0 or less while it is new; once a new one is saved, its key.
    std::int32_t ID = 0;

    /// Hands it the record. False when the dialog is not to be shown, and then the user has been told why.
    bool open(std::int32_t recordID);
    /// What an entry point returns: the record's key, 0 when the dialog was cancelled.
    std::int32_t result() const { return Cancelled ? 0 : ID; }

    Layout layout() override;

    /// The field of that control or column, which the description must have.
    Field& fieldOf(std::string_view name);
    TextBox& textBox(std::string_view control) { return fieldOf(control).text(); }
    ComboBox& comboBox(std::string_view control) { return fieldOf(control).combo(); }
    CheckBox& checkBox(std::string_view control) { return fieldOf(control).check(); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

    /// What stands above the buttons; by default the fields, one below the other.
    virtual Layout content();
    /// The fields of these controls as a form.
    Layout formOf(std::initializer_list<std::string_view> controls);
    /// A row for each phone number or e-mail address, its label beside its number.
    std::vector<Layout> slots(std::string_view kind, int count);
    /// What stands to the left of the buttons.
    virtual std::vector<Layout> besideButtons();

    /// The defaults of a new record that come by the fields' options are shown; those that take the first entry of
    /// their list follow.
    virtual void defaultsShown() {}
    /// The row, of a record that is there, is shown in the fields.
    virtual void rowShown([[maybe_unused]] const Row& row) {}
    /// The defaults or the row, or nothing for a record that is not there, are shown.
    virtual void filled() {}
    /// The dialog is shown for the first time.
    virtual void opened() {}
    /// Whether the record can be saved; tells the user why not. By default what the fields' rules say.
    virtual bool validate();
    /// Does the work of OK; false when it failed, which has been told then. By default writes the record.
    virtual bool save();
    /// Saves what else belongs to a master record, once its row is written. Tells its failures itself.
    virtual void saveFurther() {}
    /// What the statements write as the record's wish to have its addresses validated.
    virtual bool validateAddresses() const { return validateAddresses_; }

    const RecordDescription& record() const { return *record_; }
    bool isNew() const { return ID < 1; }
    void setValidateAddresses(bool wanted) { validateAddresses_ = wanted; }
    /// Disables the fields that a locked record keeps.
    void lockFields();
    /// Tells the user what is wrong and puts the focus into the control, on the page where it stands.
    void refuse(std::string_view message, Control* control);
    /// Enter starts a new line in the box and presses OK elsewhere.
    void keepsEnter(TextBox& box, std::function<void()> onLeave = {});

    /// Closes the dialog with its work done.
    void accept();
    /// Closes it without.
    void cancel();

  private:
    void makeFields();
    void fillFields();
    void readRow();
    void showRow(const Row& row);
    void focusFirstField();
    bool validateField(Field& field);
    std::string statement();
    void cmdOK_Click();
    void cmdExpression_Click();

    const RecordDescription* record_ = nullptr;
    std::string_view table_;
    bool validateAddresses_ = false;
    std::deque<Field> fields_;  // their handlers hold on to them
    std::unique_ptr<Button> cmdExpression_;
    bool activated_ = false;
};

/// Opens a dialog, made by `make`, on a record the way every entry point does, and returns it closed.
template <class Make>
auto openRecord(Library& library, std::string_view screenName, Make make, std::int32_t ID) {
    return library.screens().show(screenName, make, [&](auto& dialog) { return dialog.open(ID); });
}

/// The name under which a list's dialog is shown.
std::string dialogName(const ListDescription& list);

/// Opens the dialog of a list, of the class D, on a row, or on a new one for 0, and returns it closed.
template <class D = RecordDialog>
std::shared_ptr<D> runDialog(Library& library, const ListDescription& list, std::int32_t ID) {
    return openRecord(library, dialogName(list), [&] { return std::make_shared<D>(library, list); }, ID);
}

}  // namespace tsln
