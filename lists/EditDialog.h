#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bridge/HostScreen.h"
#include "lists/ListDescription.h"
#include "screens/Controls.h"

namespace tsln::lists {

/// The edit dialog of a lookup table: adds one row or changes one. What row it is stands in the description,
/// which must outlive it.
class EditDialog : public HostScreen {
  public:
    EditDialog(Library& library, const EditDescription& description);

    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    /// The row that is edited, 0 for a new one; once a new row is saved, its key.
    std::int32_t ID = 0;
    /// The dialog was left by its Cancel button. The title bar's close box does not count.
    bool Cancelled = false;

    Layout layout() override;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload(bool byCloseBox) override;
    void Form_Unload() override;

  private:
    /// A field of the description with its control.
    struct Field {
        const EditField& description;
        std::unique_ptr<TextBox> text;    ///< every kind but Check
        std::unique_ptr<CheckBox> check;  ///< Check
    };

    void cmdOK_Click();
    void cmdCancel_Click();
    void loadRow();
    void fill(Field& field, const Record& row);
    void checkNumber(Field& field);
    bool validate();
    bool save();
    std::string filled(std::string_view statement) const;
    std::string value(const Field& field) const;

    const EditDescription& description_;
    std::vector<Field> fields_;
    bool activated_ = false;
    bool busy_ = false;
};

/// Shows the dialog on a row, or on a new one for ID 0. The saved row's key, 0 when it was cancelled.
std::int32_t showDialog(Library& library, const EditDescription& description, std::int32_t ID);

}  // namespace tsln::lists
