#pragma once

#include "lists/ListReferences.h"
#include "maintenance/RecordDialog.h"

namespace tsln::lists {

/// Moves all references from one entry of a list to another entry.
class MoveListReferences : public RecordDialog {
  public:
    explicit MoveListReferences(Library& library);

    Label lblHeading{*this, "lblHeading", ""};
    TextBox txtName{*this, "txtName"};
    ComboBox cboReplacement{*this, "cboReplacement"};

    /// Sets the entry whose references are moved. Returns false for an unknown list code, after showing an error.
    bool initialize(std::int16_t listCode, std::int32_t entry);

  protected:
    Layout content() override;
    void opened() override;
    bool save() override;

  private:
    bool mayMoveTo(std::int32_t replacement);
    /// Returns the number of moved references, or nothing when an update failed and the failure was reported.
    std::optional<std::int64_t> move(std::int32_t replacement);

    const ReferencedList* list_ = nullptr;
};

/// Shows the dialog. Returns true when it was cancelled.
bool moveListReferences(Library& library, std::int16_t listCode, std::int32_t ID);

}  // namespace tsln::lists
