#pragma once

#include "screens/Controls.h"

namespace tsln {

/// The bounds of a numeric field, and its value when the text is no number.
struct NumericBounds {
    double minimum = 0;
    double maximum = 0;
    double otherwise = 0;
};

/// Checks a whole-number field with the host's numeric-field checker, which corrects the text box in place.
///
/// The checker is the component "tslnnum5.Checker", created for each check. Its members "CheckInteger" and
/// "CheckDecimal" take the text box, the minimum, the maximum and the default. The number that it leaves in the box
/// is kept. Where the component is missing, raises an error or leaves no number, the text is corrected here: text
/// that is no number becomes the default, a number outside the bounds becomes the nearest bound. Never throws.
void checkWholeNumberField(TextBox& field, const NumericBounds& bounds) noexcept;
/// Checks a decimal-number field with the same checker.
void checkDecimalField(TextBox& field, const NumericBounds& bounds) noexcept;

}  // namespace tsln
