#pragma once

#include "bridge/HostScreen.h"
#include "lists/ListReferences.h"
#include "screens/Controls.h"

namespace tsln::lists {

/// Points everything that refers to one entry of a list at another entry.
class MoveListReferences : public HostScreen {
  public:
    explicit MoveListReferences(Library& library);

    Label lblHeading{*this, "lblHeading", ""};
    TextBox txtName{*this, "txtName"};
    ComboBox cboReplacement{*this, "cboReplacement"};
    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    bool Cancelled = true;  ///< closing it by the title bar moves nothing

    /// Hands it the entry whose references move. False when there is no such list, which has been told.
    bool initialize(std::int16_t listCode, std::int32_t ID);
    Layout layout() override;

  protected:
    void Form_Load() override { restoreWindowPosition(*this); }
    void Form_Activate() override;
    void Form_Unload() override { saveWindowPosition(*this); }

  private:
    void cmdOK_Click();
    bool mayMoveTo(std::int32_t replacement);
    /// How many references were moved; nothing when an update failed, which has been told.
    std::optional<std::int64_t> move(std::int32_t replacement);

    const ReferencedList* list_ = nullptr;
    std::int32_t ID_ = 0;
    bool activated_ = false;
};

/// Shows the dialog; true when it was cancelled.
bool moveListReferences(Library& library, std::int16_t listCode, std::int32_t ID);

}  // namespace tsln::lists
