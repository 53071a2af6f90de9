#pragma once

#include <functional>
#include <optional>
#include <string>

#include "screens/Control.h"

namespace tsln {

/// An entry field for a date with a drop-down calendar. It holds a text: a date, "None" for no date, or other
/// text that the user typed, which the screen detects by isValid().
class DateBox : public Control {
  public:
    DateBox(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::string& text() const noexcept { return text_; }
    void setText(std::string text);
    /// The date in the text; no value when the text is "None" or not a date.
    std::optional<Date> date() const;
    /// Sets the text to the date as month/day/year, or to "None" for no date or a date out of Date's range.
    void setDate(std::optional<Date> date);
    /// The text is "None", in any letter case.
    bool isNone() const;
    /// The text is "None" or a date.
    bool isValid() const;

    std::function<void()> onChange;
    void userType(std::string text);
    /// The user picked a day in the calendar, or "None".
    void userPick(std::optional<Date> date);
    /// Adds `Text`.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::string text_ = "None";
};

}  // namespace tsln
