#include <wx/choice.h>
#include <wx/combobox.h>
#ifdef __WXMSW__
#include <wx/msw/private.h>
#endif

#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

/// The common part of the two kinds of list. `Window` is the toolkit's list, with or without free text.
template <class Window>
class ListView : public ControlView {
  public:
    bool growsWide() const override { return true; }

    /// On Windows an open list handles Enter and Esc. Elsewhere an open list receives all keys anyway.
    bool wantsKey([[maybe_unused]] int keyCode) const override {
#ifdef __WXMSW__
        return ::SendMessage(GetHwndOf(list_), CB_GETDROPPEDSTATE, 0, 0) != 0;
#else
        return false;
#endif
    }

  protected:
    ListView(ScreenDialog& dialog, ComboBox& box, Window* list)
        : ControlView(dialog, box), box_(box), list_(list) {
        setWindow(list);
        // GTK gives an empty list no height for a text, and the list is filled after the layout is made.
        list->SetSelection(list->Append("X"));
        list->SetMinSize(list->GetSizeFromTextSize(widthOfCharacters(*list, box.widthInCharacters)));
        list->Clear();
    }

    void choose() {
        act([this] {
            if (const int index = list_->GetSelection(); index != box_.listIndex()) box_.userChoose(index);
        });
    }

    void updateContent() override {
        const auto& entries = box_.entries();
        wxArrayString texts;
        texts.reserve(entries.size());
        for (const ComboBox::Entry& entry : entries)
            texts.push_back(toWx(entry.text));
        if (texts != shown_) {
            list_->Set(texts);
            shown_ = texts;
        }
        if (list_->GetSelection() != box_.listIndex()) list_->SetSelection(box_.listIndex());
    }

    ComboBox& box_;
    Window* list_;

  private:
    wxArrayString shown_;
};

class ChoiceView : public ListView<wxChoice> {
  public:
    ChoiceView(ScreenDialog& dialog, wxWindow* parent, ComboBox& box)
        : ListView(dialog, box, new wxChoice(parent, wxID_ANY)) {
        list_->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { choose(); });
    }
};

class EditableView : public ListView<wxComboBox> {
  public:
    EditableView(ScreenDialog& dialog, wxWindow* parent, ComboBox& box)
        : ListView(dialog, box, new wxComboBox(parent, wxID_ANY)) {
        leaveInnerButtonOutOfTabOrder(*list_);
        pasteAsOneLine(*list_, *list_);
        list_->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent&) { choose(); });
        list_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { type(); });
    }

  private:
    void type() {
        // The window also reports a change of text when an entry is chosen.
        const int selected = list_->GetSelection();
        const wxString text = list_->GetValue();
        if (text == toWx(box_.text()) || (selected != wxNOT_FOUND && text == list_->GetString(selected)))
            return;
        act([this, &text] { box_.userType(fromWx(text)); });
    }

    void updateContent() override {
        ListView::updateContent();
        if (const wxString text = toWx(box_.text()); text != list_->GetValue()) list_->ChangeValue(text);
    }
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ComboBox& box) {
    if (box.editable) return std::make_unique<EditableView>(dialog, parent, box);
    return std::make_unique<ChoiceView>(dialog, parent, box);
}

}  // namespace tsln::desktop
