#include <algorithm>

#include <wx/button.h>

#include "desktop/ControlView.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

class ButtonView : public ControlView {
  public:
    ButtonView(ScreenDialog& dialog, wxWindow* parent, Button& button)
        : ControlView(dialog, button),
          button_(button),
          window_(new wxButton(parent, wxID_ANY, toWx(button.caption()))) {
        setWindow(window_);
        window_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { press(); });
    }

    bool takesKey(const wxKeyEvent& key) override {
        if (key.GetKeyCode() != WXK_RETURN && key.GetKeyCode() != WXK_NUMPAD_ENTER) return false;
        press();
        return true;
    }

    void mnemonic() override { press(); }
    wxString caption() const override { return toWx(button_.caption()); }

  private:
    void press() {
        act([this] { button_.userPress(); });
    }

    /// The toolkit marks the default button when it draws it.
    void updateRole() {
        const bool isDefault = button_.role() == Button::Role::Default;
        if (isDefault == isDefault_) return;
        isDefault_ = isDefault;
        auto& top = static_cast<wxTopLevelWindow&>(dialog());
        if (isDefault) {
            window_->SetDefault();
        } else if (top.GetDefaultItem() == window_) {
            top.SetDefaultItem(nullptr);
        }
    }

    void updateContent() override {
        updateRole();
        const wxString caption = toWx(button_.caption());
        if (caption == window_->GetLabel()) return;
        window_->SetLabel(caption);
        // The buttons of a row were given one width, which the new caption may exceed.
        const wxSize least = window_->GetMinSize();
        window_->SetMinSize({std::max(least.x, window_->GetBestSize().x), least.y});
        dialog().layoutChanged();
    }

    Button& button_;
    wxButton* window_;
    bool isDefault_ = false;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Button& button) {
    return std::make_unique<ButtonView>(dialog, parent, button);
}

}  // namespace tsln::desktop
