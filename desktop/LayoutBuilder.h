#pragma once

#include <string>
#include <vector>

#include <wx/scrolwin.h>
#include <wx/string.h>

#include "screens/Layout.h"

class wxSizer;
class wxWindow;

namespace tsln::desktop {

class ControlView;
class ScreenDialog;

/// Makes windows and sizers from a screen's layout. It makes the windows in the layout's order, which becomes
/// the tab order.
class LayoutBuilder {
  public:
    explicit LayoutBuilder(ScreenDialog& dialog);

    struct Built {
        wxSizer* sizer = nullptr;  ///< of the whole screen; the caller must give it to the dialog at once
        wxScrolledWindow* content = nullptr;  ///< all but the last row, which has the dialog's buttons
    };
    /// Makes the windows and sizers of the whole screen.
    Built build(const Layout& layout);

  private:
    /// A built layout for its parent: a window or a sizer, and how it takes space.
    struct Part {
        wxWindow* window = nullptr;
        wxSizer* sizer = nullptr;
        ControlView* view = nullptr;
        bool isGroup = false;  ///< contains other parts, or is spaced like a part that does
        bool growsWide = false;
        bool growsHigh = false;
    };
    Part make(const Layout& layout, wxWindow* parent);
    Part makeParts(const Layout& layout, wxWindow* parent, int margin);
    Part makeControl(Control& control, wxWindow* parent, const wxString& label);
    Part makeBox(const Layout& layout, wxWindow* parent);
    Part makeForm(const Layout& layout, wxWindow* parent);
    Part makeField(const Layout& layout, wxWindow* parent);
    Part makeLabelled(const Layout& field, wxWindow* parent, wxWindow* label);
    Part fillBox(const Layout& layout, wxWindow* parent, wxSizer* sizer, wxWindow* firstLabel = nullptr);
    wxWindow* makeLabel(const Layout& field, wxWindow* parent);
    void equalizeButtons(const std::vector<Layout>& children);

    ScreenDialog& dialog_;
    int gap_;             // between adjacent parts, in pixels
    wxString lastLabel_;  // the accessible name of the next control
};

}  // namespace tsln::desktop
