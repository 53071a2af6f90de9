#include "desktop/ControlView.h"

#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/CheckList.h"
#include "screens/Controls.h"
#include "screens/LinkLabel.h"
#include "screens/Picture.h"
#include "screens/ReportControl.h"
#include "screens/TabControl.h"

namespace tsln::desktop {

void ControlView::update() {
    if (window_->IsThisEnabled() != control_.enabled()) window_->Enable(control_.enabled());
    if (window_->IsShown() != control_.visible()) {
        window_->Show(control_.visible());
        if (label_) label_->Show(control_.visible());
        dialog_.layoutChanged();
    }
    if (const wxString tip = toWx(control_.toolTip); tip != window_->GetToolTipText())
        window_->SetToolTip(tip);
    updateContent();
}

wxPoint ControlView::popupPosition() const {
    return window_->ClientToScreen({0, window_->GetClientSize().y});
}

void ControlView::act(const std::function<void()>& what) {
    dialog_.act(what);
}

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Control& control) {
    if (auto* label = dynamic_cast<Label*>(&control)) return makeView(dialog, parent, *label);
    if (auto* button = dynamic_cast<Button*>(&control)) return makeView(dialog, parent, *button);
    if (auto* textBox = dynamic_cast<TextBox*>(&control)) return makeView(dialog, parent, *textBox);
    if (auto* checkBox = dynamic_cast<CheckBox*>(&control)) return makeView(dialog, parent, *checkBox);
    if (auto* checkList = dynamic_cast<CheckList*>(&control)) return makeView(dialog, parent, *checkList);
    if (auto* comboBox = dynamic_cast<ComboBox*>(&control)) return makeView(dialog, parent, *comboBox);
    if (auto* report = dynamic_cast<ReportControl*>(&control)) return makeView(dialog, parent, *report);
    if (auto* frame = dynamic_cast<Frame*>(&control)) return makeView(dialog, parent, *frame);
    if (auto* link = dynamic_cast<LinkLabel*>(&control)) return makeView(dialog, parent, *link);
    if (auto* picture = dynamic_cast<Picture*>(&control)) return makeView(dialog, parent, *picture);
    if (auto* tabs = dynamic_cast<TabControl*>(&control)) return makeView(dialog, parent, *tabs);
    return nullptr;
}

int widthOfCharacters(const wxWindow& window, int characters) {
    return characters * window.GetCharWidth();
}

}  // namespace tsln::desktop
