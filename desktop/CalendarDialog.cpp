#include "desktop/CalendarDialog.h"

#include <algorithm>

#include <wx/button.h>
#include <wx/calctrl.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/sizer.h>

#include "automation/DateText.h"
#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

constexpr int firstYear = 1601;  // the first year of the platforms' calendar controls
constexpr int lastYear = 9999;

wxDateTime toCalendarDay(std::optional<Date> date) {
    const auto time = date ? toCalendar(*date) : std::nullopt;
    if (!time || time->year < firstYear) return wxDateTime::Today();
    return {static_cast<wxDateTime::wxDateTime_t>(time->day), static_cast<wxDateTime::Month>(time->month - 1),
            time->year};
}

std::optional<Date> toDate(const wxDateTime& day) {
    return fromCalendar({day.GetYear(), day.GetMonth() + 1, day.GetDay(), 0, 0, 0});
}

class CalendarDialog : public wxDialog {
  public:
    CalendarDialog(wxWindow& owner, std::optional<Date> preset)
        : wxDialog(&owner, wxID_ANY, "Choose a date"),
          calendar_(
              new wxCalendarCtrl(this, wxID_ANY, wxDefaultDateTime, wxDefaultPosition, wxDefaultSize, 0)) {
        calendar_->SetDate(toCalendarDay(preset));
        auto* buttons = new wxBoxSizer(wxHORIZONTAL);
        none_ = new wxButton(this, wxID_CLEAR, "&None");
        auto* ok = new wxButton(this, wxID_OK);
        buttons->Add(none_);
        buttons->AddStretchSpacer();
        buttons->Add(ok, wxSizerFlags().Border(wxLEFT));
        buttons->Add(new wxButton(this, wxID_CANCEL), wxSizerFlags().Border(wxLEFT));
        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(calendar_, wxSizerFlags(1).Expand().Border());
        column->Add(buttons, wxSizerFlags().Expand().Border());
        SetSizerAndFit(column);
        ok->SetDefault();
        none_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_CLEAR); });
        calendar_->Bind(wxEVT_CALENDAR_DOUBLECLICKED, [this](wxCalendarEvent&) { EndModal(wxID_OK); });
        calendar_->Bind(wxEVT_CALENDAR_SEL_CHANGED, [this](wxCalendarEvent&) { tellDay(); });
        Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& key) {
            if (!takesKey(key)) key.Skip();
        });
        calendar_->SetFocus();
        tellDay();
    }

    void placeBeside(const wxRect& place) {
        const int display = wxDisplay::GetFromPoint(place.GetPosition());
        const wxRect area =
            wxDisplay(display == wxNOT_FOUND ? 0U : static_cast<unsigned>(display)).GetClientArea();
        const wxSize size = GetSize();
        const bool fitsBelow = place.GetBottom() + size.y <= area.GetBottom();
        const int top = fitsBelow ? place.GetBottom() + 1 : place.GetTop() - size.y;
        Move(std::clamp(place.x, area.x, std::max(area.x, area.GetRight() - size.x)),
             std::clamp(top, area.y, std::max(area.y, area.GetBottom() - size.y)));
    }

    wxDateTime day() const { return calendar_->GetDate(); }

  private:
    /// Moves the chosen day by the arrow keys. On one platform the calendar's own arrow keys do not choose a
    /// day.
    bool takesKey(const wxKeyEvent& key) {
        if (key.HasAnyModifiers() || !hasKeyboard(*calendar_)) return false;
        switch (key.GetKeyCode()) {
            case WXK_LEFT:
                return move(wxDateSpan::Days(-1));
            case WXK_RIGHT:
                return move(wxDateSpan::Day());
            case WXK_UP:
                return move(wxDateSpan::Weeks(-1));
            case WXK_DOWN:
                return move(wxDateSpan::Week());
            case WXK_PAGEUP:
                return move(wxDateSpan::Months(-1));
            case WXK_PAGEDOWN:
                return move(wxDateSpan::Month());
            case WXK_HOME:
                return moveTo(wxDateTime(day()).SetDay(1));
            case WXK_END:
                return moveTo(wxDateTime(day()).SetToLastMonthDay(day().GetMonth(), day().GetYear()));
            case WXK_RETURN:
            case WXK_NUMPAD_ENTER:
                EndModal(wxID_OK);
                return true;
            default:
                return false;
        }
    }

    bool move(const wxDateSpan& span) { return moveTo(day() + span); }
    bool moveTo(const wxDateTime& to) {
        if (to.GetYear() >= firstYear && to.GetYear() <= lastYear) calendar_->SetDate(to);
        tellDay();
        return true;
    }
    void tellDay() {
        if (const auto date = toDate(day())) setAccessibleName(*calendar_, toWx(dateText(*date)));
    }

    wxCalendarCtrl* calendar_;
    wxButton* none_;
};

}  // namespace

std::optional<CalendarChoice> askDate(wxWindow& owner, const wxRect& beside, std::optional<Date> preset) {
    CalendarDialog dialog(owner, preset);
    dialog.placeBeside(beside);
    switch (dialog.ShowModal()) {
        case wxID_OK:
            return CalendarChoice{toDate(dialog.day())};
        case wxID_CLEAR:
            return CalendarChoice{};
        default:
            return std::nullopt;
    }
}

}  // namespace tsln::desktop
