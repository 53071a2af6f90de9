#pragma once

#include "lists/ListReferences.h"
#include "maintenance/RecordDialog.h"

namespace tsln::lists {

/// Points everything that refers to one entry of a list at another entry.
class MoveListReferences : public RecordDialog {
  public:
    explicit MoveListReferences(Library& library);

    Label lblHeading{*this, "lblHeading", ""};
    TextBox txtName{*this, "txtName"};
    ComboBox cboReplacement{*this, "cboReplacement"};

    /// Hands it the entry whose references move. False when there is no such list, which has been told.
    bool initialize(std::int16_t listCode, std::int32_t entry);

  protected:
    Layout content() override;
    void opened() override;
    bool save() override;

  private:
    bool mayMoveTo(std::int32_t replacement);
    /// How many references were moved; nothing when an update failed, which has been told.
    std::optional<std::int64_t> move(std::int32_t replacement);

    const ReferencedList* list_ = nullptr;
};

/// Shows the dialog; true when it was cancelled.
bool moveListReferences(Library& library, std::int16_t listCode, std::int32_t ID);

}  // namespace tsln::lists
