#include <algorithm>
#include <limits>

#include <wx/gauge.h>

#include "desktop/ControlView.h"
#include "screens/ProgressBar.h"

namespace tsln::desktop {
namespace {

constexpr int leastWidth = 200;  // pixels at 96 per inch

class ProgressBarView : public ControlView {
  public:
    ProgressBarView(ScreenDialog& dialog, wxWindow* parent, ProgressBar& bar)
        : ControlView(dialog, bar),
          bar_(bar),
          gauge_(new wxGauge(parent, wxID_ANY, 100, wxDefaultPosition, wxDefaultSize,
                             wxGA_HORIZONTAL | wxGA_SMOOTH)) {
        setWindow(gauge_);
        gauge_->SetMinSize({gauge_->FromDIP(leastWidth), gauge_->GetBestSize().y});
    }

    bool takesFocus() const override { return false; }
    bool onlyShows() const override { return true; }
    bool growsWide() const override { return true; }

  private:
    void updateContent() override {
        // The toolkit's ranges start at 0 and must not be empty.
        constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
        const std::int64_t range = std::int64_t{bar_.maximum()} - bar_.minimum();
        const std::int64_t done = std::int64_t{bar_.value()} - bar_.minimum();
        const std::int64_t divisor = range / most + 1;
        const int shownRange = static_cast<int>(std::max<std::int64_t>(range / divisor, 1));
        if (gauge_->GetRange() != shownRange) gauge_->SetRange(shownRange);
        gauge_->SetValue(static_cast<int>(done / divisor));
    }

    ProgressBar& bar_;
    wxGauge* gauge_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ProgressBar& bar) {
    return std::make_unique<ProgressBarView>(dialog, parent, bar);
}

}  // namespace tsln::desktop
