#include "screens/DateBox.h"

#include <cmath>

#include "automation/DateText.h"
#include "screens/ControlMembers.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

constexpr char none[] = "None";

/// The date without the time of day.
std::string textOf(std::optional<Date> date) {
    if (!date || !isInRange(*date)) return none;
    const Date day{std::trunc(date->days)};
    // dateText() writes day zero as a time, midnight, without a date.
    return day.days == 0 ? "12/30/1899" : dateText(day);
}

}  // namespace

void DateBox::setText(std::string text) {
    if (text_ == text) return;
    text_ = std::move(text);
    changed();
    fire(onChange);
}

std::optional<Date> DateBox::date() const {
    return readDateText(modSharedStrings::trim(text_));
}

void DateBox::setDate(std::optional<Date> date) {
    setText(textOf(date));
}

bool DateBox::isNone() const {
    return modSharedStrings::equalNoCase(modSharedStrings::trim(text_), none);
}

bool DateBox::isValid() const {
    return isNone() || date();
}

void DateBox::userType(std::string text) {
    if (!enabled() || text_ == text) return;
    text_ = std::move(text);
    fire(onChange);
}

void DateBox::userPick(std::optional<Date> date) {
    if (enabled()) setDate(date);
}

Variant DateBox::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<DateBox> members[] = {
        {"Text", [](DateBox& self, Arguments) { return Variant(self.text_); },
         [](DateBox& self, Arguments a) { self.setText(a[0].toText()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

}  // namespace tsln
