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
/// "CheckDecimal" take the text box, the minimum, the maximum and the default. The number that it leaves in the
/// box stands. Where the component is missing, raises or leaves no number, the text is corrected here: one that is no
/// number becomes the default, a number outside the bounds becomes the nearest bound. Never throws.
void checkWholeNumberField(TextBox& field, const NumericBounds& bounds) noexcept;
/// Checks a decimal field, likewise.
void checkDecimalField(TextBox& field, const NumericBounds& bounds) noexcept;

}  // namespace tsln
