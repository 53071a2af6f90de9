#pragma once

#include <optional>

#include "automation/Variant.h"

class wxRect;
class wxWindow;

namespace tsln::desktop {

/// A day taken from the calendar, or none by its button "None".
struct CalendarChoice {
    std::optional<Date> date;
};

/// Shows a calendar below or above a place on the screen, in pixels. It begins at the preset date, or at
/// today when there is none. Nothing when the user left it.
std::optional<CalendarChoice> askDate(wxWindow& owner, const wxRect& beside, std::optional<Date> preset);

}  // namespace tsln::desktop
