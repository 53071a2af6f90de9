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

/// A field of a record dialog at work: its control, what it shows of a row and how a statement writes it.
class Field {
  public:
    /// `validateAddresses` is the record's wish to have its addresses validated: a field of that rule reads and
    /// writes it, the host may change it whenever it parses an address. It and the description must outlive the
    /// field.
    Field(HostScreen& screen, const FieldDescription& description, bool& validateAddresses);

    const FieldDescription& description() const noexcept { return description_; }
    /// Null for a column without a control.
    Control* control() const;
    /// The control of a field that has one of that kind; another raises std::bad_cast.
    TextBox& text() const { return dynamic_cast<TextBox&>(*control()); }
    ComboBox& combo() const { return dynamic_cast<ComboBox&>(*control()); }
    DateBox& date() const { return dynamic_cast<DateBox&>(*control()); }
    CheckBox& check() const { return dynamic_cast<CheckBox&>(*control()); }
    /// Its label and control, to stand in a form.
    Layout layout() const;
    bool hasSeveralLines() const noexcept;

    /// Has the host fill the list. A text that was typed stays. May raise HostError.
    void loadEntries();
    /// Gives a new record the value of its company option or its first choice. May raise HostError.
    void showDefault();
    /// Gives a new record that has no choice yet the first entry, where the field takes it.
    void showFirst();
    /// May raise HostError.
    void show(const Row& row);

    /// The user left the control. May raise HostError.
    void left();
    /// Puts what was typed into the form that is saved: numbers within their bounds, text without blanks at its ends.
    void normalize();
    /// What to tell the user who left a required field empty; empty when there is nothing to tell.
    std::string_view complaint() const;

    /// Adds the value of each of its tags. May raise HostError.
    void addTags(StatementTags& tags) const;
    /// Its columns, each with its tag as a statement has it: in quotes where it stands for text.
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
