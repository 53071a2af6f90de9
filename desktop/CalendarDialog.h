#pragma once

#include <optional>

#include "automation/Variant.h"

class wxRect;
class wxWindow;

namespace tsln::desktop {

/// The day that the user picked; no day when the button "None" was pressed.
struct CalendarChoice {
    std::optional<Date> date;
};

/// Shows a calendar below or above the rectangle `beside`, in screen pixels. It starts at the preset date, or
/// at today without one. Returns no value when the user closed it without a choice.
std::optional<CalendarChoice> askDate(wxWindow& owner, const wxRect& beside, std::optional<Date> preset);

}  // namespace tsln::desktop
