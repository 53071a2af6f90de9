#include <wx/checkbox.h>

#include "desktop/ControlView.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

class CheckBoxView : public ControlView {
  public:
    CheckBoxView(ScreenDialog& dialog, wxWindow* parent, CheckBox& box)
        : ControlView(dialog, box),
          box_(box),
          window_(new wxCheckBox(parent, wxID_ANY, toWx(box.caption()))) {
        setWindow(window_);
        window_->Bind(wxEVT_CHECKBOX,
                      [this](wxCommandEvent&) { act([this] { box_.userCheck(window_->GetValue()); }); });
    }

    void mnemonic() override {
        window_->SetFocus();
        window_->SetValue(!window_->GetValue());
        act([this] { box_.userCheck(window_->GetValue()); });
    }
    wxString caption() const override { return toWx(box_.caption()); }

  private:
    void updateContent() override {
        if (window_->GetValue() != box_.checked()) window_->SetValue(box_.checked());
    }

    CheckBox& box_;
    wxCheckBox* window_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, CheckBox& box) {
    return std::make_unique<CheckBoxView>(dialog, parent, box);
}

}  // namespace tsln::desktop
