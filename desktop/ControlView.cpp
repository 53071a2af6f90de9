#include "desktop/ControlView.h"

#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/CheckList.h"
#include "screens/ColorBox.h"
#include "screens/CommandBars.h"
#include "screens/Controls.h"
#include "screens/DateBox.h"
#include "screens/MarkupLabel.h"
#include "screens/OptionButton.h"
#include "screens/Picture.h"
#include "screens/ProgressBar.h"
#include "screens/PropertyGrid.h"
#include "screens/ReportControl.h"
#include "screens/Splitter.h"
#include "screens/TabControl.h"

namespace tsln::desktop {
namespace {

class ViewMaker : public ControlVisitor {
  public:
    ViewMaker(ScreenDialog& dialog, wxWindow* parent) : dialog_(dialog), parent_(parent) {}
    ControlViewPtr view;

    void visit(Button& button) override { make(button); }
    void visit(CheckBox& box) override { make(box); }
    void visit(CheckList& list) override { make(list); }
    void visit(ColorBox& box) override { make(box); }
    void visit(ComboBox& box) override { make(box); }
    void visit(CommandBars&) override {}  // has no window; askPopup() shows its popups
    void visit(DateBox& box) override { make(box); }
    void visit(Frame& frame) override { make(frame); }
    void visit(Label& label) override { make(label); }
    void visit(MarkupLabel& label) override { make(label); }
    void visit(OptionButton& button) override { make(button); }
    void visit(Picture& picture) override { make(picture); }
    void visit(ProgressBar& bar) override { make(bar); }
    void visit(PropertyGrid& grid) override { make(grid); }
    void visit(ReportControl& report) override { make(report); }
    void visit(Splitter& splitter) override { make(splitter); }
    void visit(TabControl& tabs) override { make(tabs); }
    void visit(TextBox& box) override { make(box); }

  private:
    template <class Kind>
    void make(Kind& control) {
        view = makeView(dialog_, parent_, control);
    }

    ScreenDialog& dialog_;
    wxWindow* parent_;
};

}  // namespace

void ControlView::update() {
    const bool enabled = control_.enabled() && (holdsOthers() || onlyShows() || dialog_.takesInput(control_));
    if (window_->IsThisEnabled() != enabled) window_->Enable(enabled);
    if (window_->IsShown() != control_.visible()) {
        window_->Show(control_.visible());
        if (label_) label_->Show(control_.visible());
        dialog_.layoutChanged();
    }
    if (const wxString tip = toWx(control_.toolTip); tip != window_->GetToolTipText())
        window_->SetToolTip(tip);
    updateContent();
}

const std::vector<wxWindow*>& ControlView::panes() const {
    static const std::vector<wxWindow*> none;
    return none;
}

wxPoint ControlView::popupPosition() const {
    return window_->ClientToScreen({0, window_->GetClientSize().y});
}

void ControlView::act(const std::function<void()>& what) {
    if (!dialog_.cancelsJob(control_)) dialog_.act(what);
}

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Control& control) {
    ViewMaker maker(dialog, parent);
    control.accept(maker);
    return std::move(maker.view);
}

int widthOfCharacters(const wxWindow& window, int characters) {
    return characters * window.GetCharWidth();
}

}  // namespace tsln::desktop
