#include <algorithm>

#include <wx/event.h>
#include <wx/textctrl.h>

#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

constexpr int shortField = 20;  // characters; shorter boxes keep their width instead of filling the row
constexpr int textMargin = 6;   // pixels at 96 per inch between multi-line text and the border
constexpr int linesOfText = 5;  // the minimum height of a multi-line box

/// The text for the window. Line ends are CR LF in controls and LF in the toolkit's windows.
wxString shownText(const TextBox& box) {
    wxString text = toWx(box.text());
    if (box.multiLine) text.Replace("\r\n", "\n");
    return text;
}

std::string typedText(const TextBox& box, wxString text) {
    if (box.multiLine) {
        text.Replace("\r\n", "\n");
        text.Replace("\n", "\r\n");
    }
    return fromWx(text);
}

// The number of positions that a line end takes in a multi-line window.
#ifdef __WXMSW__
constexpr long lineEndUnits = 2;
#else
constexpr long lineEndUnits = 1;
#endif

/// Converts between positions in a window's text and in the control's text. The control counts characters,
/// with CR LF for a line end. The window may count UTF-16 units: two for a character outside the first plane.
class Positions {
  public:
    explicit Positions(const wxString& shown) : shown_(shown) {}

    std::size_t characters(long units) const {
        return advance([&](long unit, std::size_t) { return unit < units; }).second;
    }
    long units(std::size_t characters) const {
        return advance([&](long, std::size_t character) { return character < characters; }).first;
    }

  private:
    template <class GoesOn>
    std::pair<long, std::size_t> advance(GoesOn goesOn) const {
        std::pair<long, std::size_t> at{0, 0};
        for (const wxUniChar c : shown_) {
            if (!goesOn(at.first, at.second)) break;
            const bool isSecondHalf = (c.GetValue() & ~0x3FFU) == 0xDC00;
            at.first += c == '\n' ? lineEndUnits : 1;
            at.second += c == '\n' ? 2U : isSecondHalf ? 0U : 1U;
        }
        return at;
    }

    wxString shown_;
};

class TextBoxView : public ControlView {
  public:
    TextBoxView(ScreenDialog& dialog, wxWindow* parent, TextBox& box)
        : ControlView(dialog, box),
          box_(box),
          window_(new wxTextCtrl(parent, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize, styleOf(box))) {
        setWindow(window_);
        wxSize least(window_->GetSizeFromTextSize(widthOfCharacters(*window_, box.widthInCharacters)).x,
                     boxHeight(*window_));
        if (box.multiLine) {
            least.y = linesOfText * window_->GetCharHeight() + window_->FromDIP(10);
            setTextMargin(*window_, window_->FromDIP(textMargin));
        }
        window_->SetMinSize(least);
        if (!box.cueText.empty() && !box.multiLine) window_->SetHint(toWx(box.cueText));
        if (!box.multiLine) pasteAsOneLine(*window_, *window_);
        window_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { act([] {}); });
        if (box.onContextMenu) window_->Bind(wxEVT_CONTEXT_MENU, &TextBoxView::onContextMenu, this);
    }

    void settle() override {
        const wxString text = window_->GetValue();
        const TextBox::Selection selection = shownSelection(text);
        if (text == known_) return box_.userSelect(selection);
        known_ = text;
        box_.userType(typedText(box_, text), selection);
    }

    bool takesKey(const wxKeyEvent& key) override {
        const int code = key.GetKeyCode();
        if (!box_.onEnterKey || key.HasAnyModifiers() || (code != WXK_RETURN && code != WXK_NUMPAD_ENTER))
            return false;
        bool used = false;
        act([&] { used = box_.userEnter(); });
        return used;
    }

    /// The platform may select all text on focus. A selection that the screen has set since is restored.
    void takeFocus() override {
        ControlView::takeFocus();
        if (selectionsFocused_ != box_.selectionsMade()) showSelection();
        selectionsFocused_ = box_.selectionsMade();
    }

    wxPoint popupPosition() const override {
        return popupAt_ != wxDefaultPosition ? popupAt_ : window_->ClientToScreen(wxPoint(0, 0));
    }

    bool wantsKey(int keyCode) const override { return box_.multiLine && keyCode != WXK_ESCAPE; }
    bool growsWide() const override { return box_.multiLine || box_.widthInCharacters >= shortField; }
    bool growsHigh() const override { return box_.multiLine; }

  private:
    static long styleOf(const TextBox& box) {
        return (box.multiLine ? long(wxTE_MULTILINE) : 0L) | (box.rightAligned ? long(wxTE_RIGHT) : 0L) |
               (box.password ? long(wxTE_PASSWORD) : 0L);
    }

    TextBox::Selection shownSelection(const wxString& text) const {
        long from = 0, to = 0;
        window_->GetSelection(&from, &to);
        const Positions positions(text);
        const std::size_t start = positions.characters(from);
        return {start, positions.characters(to) - start};
    }

    void showSelection() {
        const Positions positions(window_->GetValue());
        const auto [start, length] = box_.selection();
        window_->SetSelection(positions.units(start), positions.units(start + length));
        window_->ShowPosition(positions.units(start + length));
    }

    void onContextMenu(wxContextMenuEvent& event) {
        popupAt_ = event.GetPosition();
        window_->SetFocus();  // the commands of the menu act on the box
        act([this] { box_.userContextMenu(); });
        popupAt_ = wxDefaultPosition;
    }

    void updateContent() override {
        const wxString text = shownText(box_);
        // A text that is already longer than the limit must not be cut.
        if (box_.maxLength && !box_.multiLine) window_->SetMaxLength(std::max(box_.maxLength, text.size()));
        const wxString now = window_->GetValue();
        const bool asShown = text == shown_ && now == shownAs_;
        if (text != now && !asShown) {
            window_->ChangeValue(text);
            // Selects the new text as a move of the focus by Tab does, so that typing replaces it.
            if (window_->HasFocus() && !box_.multiLine && !box_.locked()) window_->SelectAll();
        }
        shown_ = text;
        shownAs_ = known_ = window_->GetValue();
        if (selectionsShown_ != box_.selectionsMade()) showSelection();
        selectionsShown_ = box_.selectionsMade();
        if (window_->IsEditable() == box_.locked()) window_->SetEditable(!box_.locked());
    }

    TextBox& box_;
    wxTextCtrl* window_;
    // A window may change a text that it is given (line ends, control characters). Only changes by the user
    // may be reported to the control.
    wxString shown_;                       // the last text given to the window
    wxString shownAs_;                     // the window's text after that
    wxString known_;                       // the window's text when last reported or set
    wxPoint popupAt_ = wxDefaultPosition;  // where the pointer opened the context menu
    // The values of TextBox::selectionsMade() at the last showSelection() and at the last takeFocus().
    int selectionsShown_ = 0;
    int selectionsFocused_ = 0;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, TextBox& box) {
    return std::make_unique<TextBoxView>(dialog, parent, box);
}

}  // namespace tsln::desktop
