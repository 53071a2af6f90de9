#include <algorithm>
#include <cmath>

#include <wx/splitter.h>

#include "desktop/ControlView.h"
#include "screens/Splitter.h"

namespace tsln::desktop {
namespace {

class SplitterView : public ControlView {
  public:
    SplitterView(ScreenDialog& dialog, wxWindow* parent, Splitter& splitter)
        : ControlView(dialog, splitter),
          splitter_(splitter),
          window_(new wxSplitterWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                       wxSP_LIVE_UPDATE | wxSP_3DSASH | wxSP_NOBORDER)) {
        setWindow(window_);
        window_->SetMinimumPaneSize(1);  // so that the user cannot close a pane
        window_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
            event.Skip();
            updateContent();
        });
        window_->Bind(wxEVT_SPLITTER_SASH_POS_CHANGING, [this](wxSplitterEvent& event) {
            event.SetSashPosition(withinLimits(event.GetSashPosition()));
        });
        window_->Bind(wxEVT_SPLITTER_SASH_POS_CHANGED, [this](wxSplitterEvent& event) {
            const int at = event.GetSashPosition();
            if (length() > 0 && at != shown_) act([&] { splitter_.userMove(double(at) / length()); });
            shown_ = at;
        });
    }

    bool takesFocus() const override { return false; }
    bool holdsOthers() const override { return true; }
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }

    void addPart(wxWindow* part) override {
        parts_.push_back(part);
        if (parts_.size() < 2) return;
        if (isSideBySide()) {
            window_->SplitVertically(parts_[0], parts_[1]);
        } else {
            window_->SplitHorizontally(parts_[0], parts_[1]);
        }
    }
    const std::vector<wxWindow*>& panes() const override { return parts_; }

  private:
    bool isSideBySide() const { return splitter_.panes() == Splitter::Panes::SideBySide; }
    int along(const wxSize& size) const { return isSideBySide() ? size.x : size.y; }
    int length() const { return along(window_->GetClientSize()); }

    /// The nearest sash position at which both panes have their minimum size, or else the first pane.
    int withinLimits(int position) const {
        if (parts_.size() < 2) return position;
        const int first = along(parts_[0]->GetEffectiveMinSize());
        const int second = along(parts_[1]->GetEffectiveMinSize()) + window_->GetSashSize();
        return std::max(std::min(position, length() - second), first);
    }

    void updateContent() override {
        if (!window_->IsSplit() || length() <= 0) return;
        shown_ = withinLimits(static_cast<int>(std::lround(splitter_.position() * length())));
        if (shown_ != window_->GetSashPosition()) window_->SetSashPosition(shown_);
    }

    Splitter& splitter_;
    wxSplitterWindow* window_;
    std::vector<wxWindow*> parts_;
    int shown_ = 0;  // the sash position, in pixels
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Splitter& splitter) {
    return std::make_unique<SplitterView>(dialog, parent, splitter);
}

}  // namespace tsln::desktop
