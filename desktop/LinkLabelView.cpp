#include <wx/hyperlink.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/LinkLabel.h"

namespace tsln::desktop {
namespace {

class LinkLabelView : public ControlView {
  public:
    LinkLabelView(ScreenDialog& dialog, wxWindow* parent, LinkLabel& label)
        : ControlView(dialog, label), label_(label), panel_(new wxPanel(parent)) {
        setWindow(panel_);
        panel_->SetSizer(new wxBoxSizer(wxHORIZONTAL));
    }

    /// Enter follows the link that has the keyboard.
    bool takesKey(const wxKeyEvent& key) override {
        if (key.GetKeyCode() != WXK_RETURN && key.GetKeyCode() != WXK_NUMPAD_ENTER) return false;
        for (const Link& link : links_) {
            if (!hasKeyboard(*link.window)) continue;
            follow(link.operation);
            return true;
        }
        return false;
    }

  private:
    struct Link {
        wxHyperlinkCtrl* window;
        std::string operation;
    };

    void follow(const std::string& operation) {
        act([this, operation] { label_.userFollow(operation); });
    }

    void updateContent() override {
        if (label_.parts() == shown_) return;
        shown_ = label_.parts();
        links_.clear();
        panel_->DestroyChildren();
        for (const LinkLabel::Part& part : shown_)
            add(part);
        dialog().layoutChanged();
    }

    void add(const LinkLabel::Part& part) {
        const wxString text = toWx(part.text);
        const auto flags = wxSizerFlags().CentreVertical();
        if (part.operation.empty()) {
            panel_->GetSizer()->Add(new wxStaticText(panel_, wxID_ANY, text), flags);
            return;
        }
        auto* link = new wxHyperlinkCtrl(panel_, wxID_ANY, text, "", wxDefaultPosition, wxDefaultSize,
                                         wxBORDER_NONE | wxHL_ALIGN_LEFT);
        link->SetVisitedColour(link->GetNormalColour());
        link->SetToolTip("");
        // Not skipped: the toolkit would look for a page of that name.
        link->Bind(wxEVT_HYPERLINK,
                   [this, operation = part.operation](wxHyperlinkEvent&) { follow(operation); });
        links_.push_back({link, part.operation});
        panel_->GetSizer()->Add(link, flags);
    }

    LinkLabel& label_;
    wxPanel* panel_;
    std::vector<LinkLabel::Part> shown_;
    std::vector<Link> links_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, LinkLabel& label) {
    return std::make_unique<LinkLabelView>(dialog, parent, label);
}

}  // namespace tsln::desktop
