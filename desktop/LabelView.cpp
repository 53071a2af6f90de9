#include <wx/stattext.h>

#include "desktop/ControlView.h"
#include "desktop/LineBreaks.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

constexpr int widestLine = 480;  // pixels at 96 per inch; longer text is wrapped

class LabelView : public ControlView {
  public:
    LabelView(ScreenDialog& dialog, wxWindow* parent, Label& label)
        : ControlView(dialog, label), label_(label), text_(new wxStaticText(parent, wxID_ANY, {})) {
        setWindow(text_);
    }

    bool takesFocus() const override { return false; }
    bool onlyShows() const override { return true; }

  private:
    void updateContent() override {
        const wxString caption = toWx(label_.caption());
        if (caption == caption_) return;
        caption_ = caption;
        text_->SetLabel(caption);
        const int most = text_->FromDIP(widestLine);
        // The toolkit's own wrapping does not break a long word, such as a path.
        if (text_->GetBestSize().x > most) text_->SetLabel(wrapped(caption, most));
        dialog().layoutChanged();
    }

    wxString wrapped(const wxString& caption, int most) const {
        const auto widthOf = [this](const wxString& line) {
            return text_->GetTextExtent(wxControl::RemoveMnemonics(line)).x;
        };
        wxString all;
        for (const wxString& line : wrapLines(caption, most, widthOf))
            all << (all.empty() ? "" : "\n") << line;
        return all;
    }

    Label& label_;
    wxStaticText* text_;
    wxString caption_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Label& label) {
    return std::make_unique<LabelView>(dialog, parent, label);
}

}  // namespace tsln::desktop
