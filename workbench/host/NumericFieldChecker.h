#pragma once

#include "automation/Object.h"

namespace tsln::workbench {

/// The component "tslnnum5.Checker": corrects a text box in place.
///
/// "CheckInteger" and "CheckDecimal" take the text box, the minimum, the maximum and the default. Text that is no
/// number becomes the default, a number outside the bounds becomes the nearest bound, whole numbers are rounded half
/// to even. The box then shows the number without separators or currency signs.
class NumericFieldChecker : public Object {
  public:
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;
};

}  // namespace tsln::workbench
