#pragma once

#include <cstdint>
#include <functional>

#include "screens/Control.h"

namespace tsln {

/// A colour, shown as a swatch on a button that opens the system's colour dialog.
class ColorBox : public Control {
  public:
    ColorBox(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    /// 0x00BBGGRR. Any other number is kept unchanged; the lower three bytes give the colour shown.
    std::int32_t color() const noexcept { return color_; }
    void setColor(std::int32_t color);

    std::function<void()> onChange;  ///< the user chose another colour
    void userChoose(std::int32_t color);
    /// Adds `SelectedColor`.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::int32_t color_ = 0;
};

}  // namespace tsln
