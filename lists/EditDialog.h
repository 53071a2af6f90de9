#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lists/FieldControl.h"
#include "lists/ListDescription.h"
#include "lists/TaskDialog.h"
#include "shared/modSharedSQL.h"

namespace tsln::lists {

/// The edit dialog of a lookup table: adds one row or changes one. What row it is stands in the description,
/// which must outlive it. Left by the title bar it does not count as cancelled. A dialog with ways of its own
/// derives and overrides just those.
class EditDialog : public TaskDialog {
  public:
    EditDialog(Library& library, const ListDescription& description);
    /// The name under which a list's dialog is shown.
    static std::string screenName(const ListDescription& description);

    /// The row that is edited, 0 for a new one; once a new row is saved, its key.
    std::int32_t ID = 0;

  protected:
    bool Form_QueryUnload(bool byCloseBox) override;
    Layout content() override { return fieldLayout(); }
    std::vector<Layout> furtherButtons() override;
    void opened() override;
    void cmdOK_Click() override;

    /// The field of that control, which the description must have.
    FieldControl& field(std::string_view control);
    /// The fields as they stand above the buttons.
    virtual Layout fieldLayout();
    virtual void showField(FieldControl& field, const Record& row) { field.show(row); }
    /// Adds what takes the place of the field's tags in the statements.
    virtual void addTags(FieldControl& field, std::vector<modSharedSQL::Tag>& tags);
    /// The row, or the empty dialog for a new one, is shown.
    virtual void loaded() {}

  private:
    void cmdExpression_Click();
    void loadRow();
    bool validate();
    bool save();
    std::string insertStatement() const;
    std::string updateStatement() const;
    std::string filled(std::string_view statement);

    const ListDescription& list_;
    const DialogDescription& description_;
    std::vector<FieldControl> fields_;
    std::unique_ptr<Button> cmdExpression_;
    bool busy_ = false;
};

/// Shows the dialog, of the class D, on a row, or on a new one for ID 0, and returns it closed.
template <class D = EditDialog>
std::shared_ptr<D> runDialog(Library& library, const ListDescription& description, std::int32_t ID) {
    return library.screens().show(
        EditDialog::screenName(description), [&] { return std::make_shared<D>(library, description); },
        [&](D& dialog) { dialog.ID = ID; });
}

/// Shows the dialog; the saved row's key, 0 when it was cancelled.
template <class D = EditDialog>
std::int32_t showDialog(Library& library, const ListDescription& description, std::int32_t ID) {
    const auto closed = runDialog<D>(library, description, ID);
    return closed->Cancelled ? 0 : closed->ID;
}

}  // namespace tsln::lists
