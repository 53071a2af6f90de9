#pragma once

#include "screens/Controls.h"

namespace tsln {

/// The bounds of a numeric field and what stands in it when its text is no number.
struct NumericBounds {
    double minimum = 0;
    double maximum = 0;
    double otherwise = 0;
};

/// Checks a whole-number field with the host's numeric-field checker, which corrects the text box in place.
///
/// The checker is the component "tslnnum5.Checker", created for each check; its members "CheckInteger" and
/// "CheckDecimal" take the text box, the minimum, the maximum and the default. Whatever it leaves behind, or
/// when it is missing or raises, the field holds a plain number within the bounds afterwards: text that is no
/// number becomes the default, a number outside becomes the nearest bound. Never throws.
void checkWholeNumberField(TextBox& field, const NumericBounds& bounds) noexcept;
/// The same for a decimal field.
void checkDecimalField(TextBox& field, const NumericBounds& bounds) noexcept;

}  // namespace tsln
