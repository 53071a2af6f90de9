#pragma once

#include <memory>
#include <string>

#include "bridge/HostScreen.h"
#include "lists/ListDescription.h"
#include "screens/Controls.h"

namespace tsln::lists {

/// A field of an edit dialog: its control, what it shows of a row and how a statement writes it.
class FieldControl {
  public:
    /// The description must outlive it.
    FieldControl(HostScreen& screen, const EditField& description);

    const EditField& description() const noexcept { return description_; }
    Control& control() const;
    /// The text box; only for the kinds that have one.
    TextBox& text() const { return *text_; }
    Layout layout() const;

    /// Fetches the entries to choose from that the host knows. Raises HostError.
    void loadEntries(const Host& host);
    void showNew();
    void show(const Record& row);

    bool isNumeric() const noexcept;
    /// Brings a numeric field to its normal form; others stay as they are.
    void correct();
    /// What to tell the user who left a required choice open; empty when there is nothing to tell.
    std::string_view complaint() const;

    /// The value as it stands in a statement, made safe but without quotes.
    std::string statementText() const;
    /// Its tag as a statement names it, in quotes where it stands for text.
    std::string placeholder() const;

  private:
    void chooseStored(std::int32_t number);

    const EditField& description_;
    std::unique_ptr<TextBox> text_;
    std::unique_ptr<ComboBox> combo_;
    std::unique_ptr<CheckBox> check_;
};

}  // namespace tsln::lists
