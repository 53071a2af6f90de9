#pragma once

#include <string>
#include <vector>

#include <wx/string.h>

#include "screens/Layout.h"

class wxSizer;
class wxWindow;

namespace tsln::desktop {

class ControlView;
class ScreenDialog;

/// Makes windows and sizers from a screen's layout. Windows are made in the layout's order, which is thereby
/// the tab order.
class LayoutBuilder {
  public:
    explicit LayoutBuilder(ScreenDialog& dialog);

    /// The whole screen's sizer. The caller sets it to the dialog at once.
    wxSizer* build(const Layout& layout);

  private:
    /// A layout as it stands in its parent: the window or the sizer, and how much room it takes.
    struct Part {
        wxWindow* window = nullptr;
        wxSizer* sizer = nullptr;
        ControlView* view = nullptr;
        bool isGroup = false;  ///< holds other parts, or is as big as if it did
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
    int gap_;             // between neighbours, in pixels
    wxString lastLabel_;  // names the control that follows it
};

}  // namespace tsln::desktop
