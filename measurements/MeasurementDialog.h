#pragma once

#include <cstdint>

#include "maintenance/RecordDialog.h"

namespace tsln::measurements {

/// Adds measurements of a customer, or changes one. A laser meter's transfer program types widths and heights into it.
class MeasurementDialog : public RecordDialog {
  public:
    explicit MeasurementDialog(Library& library);

    Button cmdDisto{*this, "cmdDisto", "Laser Me&ter"};
    CheckBox chkAgain{*this, "chkAgain", "&Add another measurement"};

    /// Sets the record, the customer of a new one, and the list to be told of saved measurements: an object with the
    /// member "ShowSaved", or anything else for none.
    bool open(std::int32_t measurementID, std::int32_t customerID, const Variant& owner);
    /// The key of the measurement saved last, also when the dialog was cancelled after that; without one the result of
    /// other dialogs.
    std::int32_t result() const { return lastSaved_ > 0 ? lastSaved_ : RecordDialog::result(); }

  protected:
    Layout content() override;
    std::vector<Layout> besideButtons() override;
    void addTags(StatementTags& tags) override;
    bool validate() override;
    void saved() override;

  private:
    void cmdDisto_Click();
    bool isEmpty(std::initializer_list<std::string_view> controls);
    void beginNext();

    std::int32_t customerID_ = 0;
    ObjectPtr owner_;
    std::int32_t lastSaved_ = 0;
};

/// Edits a measurement (0: a new one of the customer). Returns the key of the measurement saved last, 0 for none.
std::int32_t editMeasurement(Library& library, std::int32_t ID, std::int32_t customerID,
                             const Variant& owner);

}  // namespace tsln::measurements
