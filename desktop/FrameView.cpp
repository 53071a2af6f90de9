#include <wx/panel.h>
#include <wx/statbox.h>

#include "desktop/ControlView.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

/// A frame is the parent of the windows within it, so they are disabled and hidden with it.
class FrameView : public ControlView {
  public:
    FrameView(ScreenDialog& dialog, wxWindow* parent, Frame& frame) : ControlView(dialog, frame) {
        if (frame.caption().empty()) {
            setWindow(new wxPanel(parent));
        } else {
            setWindow(new wxStaticBox(parent, wxID_ANY, toWx(frame.caption())));
        }
    }

    bool takesFocus() const override { return false; }
    bool holdsOthers() const override { return true; }

  private:
    void updateContent() override {}
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Frame& frame) {
    return std::make_unique<FrameView>(dialog, parent, frame);
}

}  // namespace tsln::desktop
