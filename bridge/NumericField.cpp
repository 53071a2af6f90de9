#include "bridge/NumericField.h"

#include <algorithm>
#include <cmath>

#include "automation/NumericText.h"
#include "screens/Screen.h"

namespace tsln {
namespace {

void askHost(TextBox& field, std::string_view member, const NumericBounds& bounds) {
    const ObjectPtr checker = field.screen().desktop().createObject("tslnnum5.Checker");
    checker->call(member, field.automation(), bounds.minimum, bounds.maximum, bounds.otherwise);
}

void check(TextBox& field, std::string_view member, const NumericBounds& bounds,
           double (*shape)(double)) noexcept {
    try {
        askHost(field, member, bounds);
        if (isNumericText(field.text())) return;  // the host's number is kept in its own form
    } catch (const std::exception&) {
        // The host has no working checker: the field is corrected below.
    }
    // Text such as "$5" or "1,000" is a number to the host, but not in a statement.
    const bool plain = field.text().find_first_not_of("0123456789.-") == std::string::npos;
    const auto number = parseNumber(field.text());
    const double value = std::clamp(shape(number.value_or(bounds.otherwise)), bounds.minimum, bounds.maximum);
    if (!plain || number != value) field.setText(numberText(value));
}

}  // namespace

void checkWholeNumberField(TextBox& field, const NumericBounds& bounds) noexcept {
    check(field, "CheckInteger", bounds, [](double value) { return std::nearbyint(value); });
}

void checkDecimalField(TextBox& field, const NumericBounds& bounds) noexcept {
    check(field, "CheckDecimal", bounds, [](double value) { return value; });
}

}  // namespace tsln
