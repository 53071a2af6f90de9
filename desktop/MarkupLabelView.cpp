#include <algorithm>

#include "desktop/ControlView.h"
#include "desktop/MarkupPanel.h"
#include "desktop/ScreenDialog.h"
#include "screens/MarkupLabel.h"

namespace tsln::desktop {
namespace {

class MarkupLabelView : public ControlView {
  public:
    MarkupLabelView(ScreenDialog& dialog, wxWindow* parent, MarkupLabel& label)
        : ControlView(dialog, label), label_(label), panel_(new MarkupPanel(parent)) {
        setWindow(panel_);
        panel_->onLink = [this](const std::string& operation) { follow(operation); };
    }

    bool takesFocus() const override { return panel_->hasLinks(); }
    /// Text that wraps or is not left-aligned takes the available width.
    bool growsWide() const override {
        return std::ranges::any_of(label_.runs(), [](const MarkupRun& run) {
            return run.block.wraps || run.block.alignment != MarkupBlock::Alignment::Left;
        });
    }

    /// Enter follows the focused link.
    bool takesKey(const wxKeyEvent& key) override {
        if (key.GetKeyCode() != WXK_RETURN && key.GetKeyCode() != WXK_NUMPAD_ENTER) return false;
        const std::string operation = panel_->focusedLink();
        if (!operation.empty()) follow(operation);
        return !operation.empty();
    }

  private:
    void follow(const std::string& operation) {
        act([this, operation] { label_.userFollow(operation); });
    }

    void updateContent() override {
        if (label_.runs() == shown_) return;
        shown_ = label_.runs();
        panel_->setRuns(shown_);
        dialog().layoutChanged();
    }

    MarkupLabel& label_;
    MarkupPanel* panel_;
    std::vector<MarkupRun> shown_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, MarkupLabel& label) {
    return std::make_unique<MarkupLabelView>(dialog, parent, label);
}

}  // namespace tsln::desktop
