#include <wx/combobox.h>

#include "desktop/ControlView.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

class ComboBoxView : public ControlView {
  public:
    ComboBoxView(ScreenDialog& dialog, wxWindow* parent, ComboBox& box)
        : ControlView(dialog, box),
          box_(box),
          window_(new wxComboBox(parent, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize, 0, nullptr,
                                 box.editable ? 0L : wxCB_READONLY)) {
        setWindow(window_);
        const wxSize least = window_->GetSizeFromTextSize(widthOfCharacters(*window_, box.widthInCharacters));
        window_->SetMinSize(least);
        window_->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent&) { choose(); });
        window_->Bind(wxEVT_COMBOBOX_DROPDOWN, [this](wxCommandEvent& event) {
            open_ = true;
            event.Skip();
        });
        window_->Bind(wxEVT_COMBOBOX_CLOSEUP, [this](wxCommandEvent& event) {
            open_ = false;
            event.Skip();
        });
        if (box.editable) {
            window_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { type(); });
        }
    }

    bool growsWide() const override { return true; }
    /// An open list deals with Enter and Esc itself.
    bool wantsKey(int) const override { return open_; }

  private:
    void choose() {
        act([this] {
            if (const int index = window_->GetSelection(); index != box_.listIndex()) box_.userChoose(index);
        });
    }

    void type() {
        // Choosing an entry writes its text too; that is no typing.
        const int selected = window_->GetSelection();
        const wxString text = window_->GetValue();
        if (text == toWx(box_.text()) || (selected != wxNOT_FOUND && text == window_->GetString(selected)))
            return;
        act([this, &text] { box_.userType(fromWx(text)); });
    }

    void updateContent() override {
        const auto& entries = box_.entries();
        wxArrayString texts;
        texts.reserve(entries.size());
        for (const ComboBox::Entry& entry : entries)
            texts.push_back(toWx(entry.text));
        if (texts != shown_) {
            window_->Set(texts);
            shown_ = texts;
        }
        if (window_->GetSelection() != box_.listIndex()) window_->SetSelection(box_.listIndex());
        if (const wxString text = toWx(box_.text()); box_.editable && text != window_->GetValue()) {
            window_->ChangeValue(text);
        }
    }

    ComboBox& box_;
    wxComboBox* window_;
    wxArrayString shown_;
    bool open_ = false;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ComboBox& box) {
    return std::make_unique<ComboBoxView>(dialog, parent, box);
}

}  // namespace tsln::desktop
