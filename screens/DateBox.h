#pragma once

#include <functional>
#include <optional>
#include <string>

#include "screens/Control.h"

namespace tsln {

/// An entry field for a date, with a calendar that drops down. It holds a text: a date, "None" for no date,
/// or whatever the user has typed instead, which the screen refuses by asking isValid().
class DateBox : public Control {
  public:
    DateBox(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::string& text() const noexcept { return text_; }
    void setText(std::string text);
    /// The date that the text names; nothing when it is "None" or no date.
    std::optional<Date> date() const;
    /// Writes the date as month/day/year, and "None" for no date or one out of the platform's range.
    void setDate(std::optional<Date> date);
    /// The text is "None", in any letter case.
    bool isNone() const;
    /// The text is "None" or a date.
    bool isValid() const;

    std::function<void()> onChange;
    /// The user typed.
    void userType(std::string text);
    /// The user took a day from the calendar, or "None" there.
    void userPick(std::optional<Date> date);
    /// Adds `Text`.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::string text_ = "None";
};

}  // namespace tsln
