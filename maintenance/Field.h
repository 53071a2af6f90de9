#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bridge/HostScreen.h"
#include "maintenance/FieldDescription.h"
#include "maintenance/Row.h"
#include "maintenance/StatementTags.h"
#include "screens/Controls.h"
#include "screens/DateBox.h"

namespace tsln {

/// One field of a record dialog: its control, how it shows a row's value, and how a statement writes it.
class Field {
  public:
    /// `validateAddresses` tells whether the record's addresses are to be validated: a field with the rule
    /// ValidateAddresses reads and writes it, and the host may change it whenever it parses an address. It and the
    /// description must outlive the field.
    Field(HostScreen& screen, const FieldDescription& description, bool& validateAddresses);

    const FieldDescription& description() const noexcept { return description_; }
    /// Null for a column without a control.
    Control* control() const;
    /// The control, for a field whose control has this type. Raises std::bad_cast for another type.
    TextBox& text() const { return dynamic_cast<TextBox&>(*control()); }
    ComboBox& combo() const { return dynamic_cast<ComboBox&>(*control()); }
    DateBox& date() const { return dynamic_cast<DateBox&>(*control()); }
    CheckBox& check() const { return dynamic_cast<CheckBox&>(*control()); }
    /// The field's label and control, as an item of a form.
    Layout layout() const;
    bool hasSeveralLines() const noexcept;

    /// Lets the host fill the list of choices. Text that was typed is kept. May raise HostError.
    void loadEntries();
    /// Shows the default of a new record: the value of the field's company option, or its first choice. May raise
    /// HostError.
    void showDefault();
    /// Selects the first entry for a new record that has no choice yet, where the description says so.
    void showFirst();
    /// Shows the row's value. May raise HostError.
    void show(const Row& row);

    /// Called when the user leaves the control. May raise HostError.
    void left();
    /// Corrects the typed value before it is saved: numbers to their bounds, text by removing blanks at both ends.
    void normalize();
    /// The message for a required field that is empty; empty when the field is filled or not required.
    std::string_view complaint() const;

    /// Adds the value of each of the field's tags. May raise HostError.
    void addTags(StatementTags& tags);
    /// The field's columns, each with its tag as a statement contains it: in quotes for text.
    std::vector<std::pair<std::string, std::string>> columns() const;

  private:
    void make();
    void chooseStored(std::int32_t number);
    void correctNumber();
    bool isText() const noexcept;

    HostScreen& screen_;
    const FieldDescription& description_;
    bool& validateAddresses_;
    std::unique_ptr<Control> control_;
};

}  // namespace tsln
