#include "workbench/tour/DrawingFaults.h"

#include <map>

#include <wx/bookctrl.h>
#include <wx/dataview.h>
#include <wx/display.h>
#include <wx/scrolwin.h>
#include <wx/splitter.h>
#include <wx/statline.h>
#include <wx/wx.h>

namespace tsln::workbench {
namespace {

/// Inspects one top-level window.
class Inspection {
  public:
    Inspection(const wxTopLevelWindow& window, std::vector<std::string>& faults)
        : window_(window), faults_(faults) {
        const int display = wxDisplay::GetFromWindow(&window);
        const wxRect area =
            wxDisplay(display == wxNOT_FOUND ? 0u : static_cast<unsigned>(display)).GetClientArea();
        if (!area.Contains(window.GetScreenRect())) tell(window, "reaches beyond the display");
        look(window);
    }

  private:
    static wxString captionOf(const wxWindow& control) {
        for (const wxString& text : {control.GetLabel(), control.GetName()}) {
            if (!text.empty()) return text.BeforeFirst('\n');
        }
        return control.GetClassInfo()->GetClassName();
    }
    void tell(const wxWindow& control, const char* what) {
        const wxString text = "\"" + window_.GetTitle() + "\": \"" + captionOf(control) + "\" " + what + ".";
        faults_.push_back(text.utf8_string());
    }

    void look(const wxWindow& parent) {
        std::vector<const wxWindow*> shown;
        for (const wxWindow* child : parent.GetChildren()) {
            // A frame's status bar is outside its client area.
            if (child->IsShown() && !child->IsTopLevel() && !dynamic_cast<const wxStatusBar*>(child))
                shown.push_back(child);
        }
        // Scrolling and split panes may be smaller than their contents.
        const bool holdsAll =
            !dynamic_cast<const wxSplitterWindow*>(&parent) && !parent.CanScroll(wxVERTICAL) &&
            !dynamic_cast<const wxBookCtrlBase*>(&parent);  // its tabs are outside its client area
        for (const wxWindow* child : shown) {
            lookAtText(*child);
            lookAtAccessKey(*child);
            if (holdsAll && !wxRect(parent.GetClientSize()).Contains(child->GetRect()))
                tell(*child, "extends beyond its window");
            look(*child);
        }
        for (std::size_t i = 0; i < shown.size(); ++i) {
            for (std::size_t j = i + 1; j < shown.size(); ++j)
                lookAtPair(*shown[i], *shown[j]);
        }
    }

    void lookAtText(const wxWindow& control) {
        const bool hasCaption =
            dynamic_cast<const wxStaticText*>(&control) ||
            (dynamic_cast<const wxAnyButton*>(&control) && !dynamic_cast<const wxBitmapButton*>(&control)) ||
            dynamic_cast<const wxCheckBox*>(&control) || dynamic_cast<const wxStaticBox*>(&control);
        if (dynamic_cast<const wxBitmapButton*>(&control)) return;  // a picture without a caption
        constexpr long mayBeCut =
            wxST_ELLIPSIZE_END | wxST_ELLIPSIZE_MIDDLE | wxST_ELLIPSIZE_START | wxST_NO_AUTORESIZE;
        const bool ellipsized =
            dynamic_cast<const wxStaticText*>(&control) && (control.GetWindowStyle() & mayBeCut) != 0;
        const wxSize size = control.GetSize(), best = control.GetBestSize();
        // The toolkit measures the same button up to two pixels wider now and then. Its margins have room for that.
        const int variation = dynamic_cast<const wxAnyButton*>(&control) ? 2 : 0;
        if (hasCaption && !ellipsized && size.x + variation < best.x) tell(control, "is cut off at its end");
        const auto* box = dynamic_cast<const wxTextCtrl*>(&control);
        const bool hasLine =
            box ? box->IsSingleLine() : dynamic_cast<const wxItemContainer*>(&control) != nullptr;
        const bool tellsHeight = hasCaption || dynamic_cast<const wxChoice*>(&control);
        const bool cutOffBelow = tellsHeight ? size.y < best.y : hasLine && size.y < control.GetCharHeight();
        if (cutOffBelow) tell(control, "is cut off below");
        if (const auto* list = dynamic_cast<const wxDataViewCtrl*>(&control)) lookAtColumns(*list);
    }

    void lookAtColumns(const wxDataViewCtrl& list) {
        if (list.HasFlag(wxDV_NO_HEADER)) return;
        for (unsigned i = 0; i < list.GetColumnCount(); ++i) {
            const wxDataViewColumn& column = *list.GetColumn(i);
            if (column.IsShown() && list.GetTextExtent(column.GetTitle()).x > column.GetWidth()) {
                const wxString what = "cuts off its column \"" + column.GetTitle() + "\"";
                tell(list, what.utf8_str());
            }
        }
    }

    void lookAtPair(const wxWindow& a, const wxWindow& b) {
        // A group box and the controls in it are siblings in the toolkit.
        for (const wxWindow* window : {&a, &b}) {
            if (dynamic_cast<const wxStaticBox*>(window) || dynamic_cast<const wxStaticLine*>(window)) return;
        }
        if (a.GetRect().Intersects(b.GetRect())) {
            const wxString what = "overlaps \"" + captionOf(b) + "\"";
            tell(a, what.utf8_str());
        }
    }

    void lookAtAccessKey(const wxWindow& control) {
        const wxString label = control.GetLabel();
        for (std::size_t i = 0; i + 1 < label.size(); ++i) {
            if (label[i] != '&') continue;
            const wxUniChar key = wxToupper(label[++i]);
            if (key == '&') continue;
            const auto [other, isNew] = accessKeys_.emplace(key, captionOf(control));
            if (!isNew) {
                const wxString what = "has the access key of \"" + other->second + "\"";
                tell(control, what.utf8_str());
            }
            return;
        }
    }

    const wxTopLevelWindow& window_;
    std::vector<std::string>& faults_;
    std::map<wxUniChar, wxString> accessKeys_;
};

}  // namespace

std::vector<std::string> drawingFaults(const wxWindow* except) {
    std::vector<std::string> faults;
    for (const wxWindow* window : wxTopLevelWindows) {
        const auto* top = dynamic_cast<const wxTopLevelWindow*>(window);
        if (top && top != except && top->IsShown()) Inspection(*top, faults);
    }
    return faults;
}

}  // namespace tsln::workbench
