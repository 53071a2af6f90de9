#pragma once

#include <cstdint>

#include "screens/Control.h"

namespace tsln {

/// Shows the progress of work. A change is drawn at the next Desktop::yield().
class ProgressBar : public Control {
  public:
    ProgressBar(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    std::int32_t minimum() const noexcept { return minimum_; }
    std::int32_t maximum() const noexcept { return maximum_; }
    std::int32_t value() const noexcept { return value_; }
    /// A maximum below the minimum is set to the minimum. The value is moved into the range.
    void setRange(std::int32_t minimum, std::int32_t maximum);
    /// A value outside the range is set to the nearer end.
    void setValue(std::int32_t value);
    void step(std::int32_t by = 1);
    /// Adds `Min`, `Max` and `Value`.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::int32_t minimum_ = 0;
    std::int32_t maximum_ = 100;
    std::int32_t value_ = 0;
};

}  // namespace tsln
