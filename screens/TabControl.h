#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// Pages of controls, one of which shows; the layout says what stands on each.
class TabControl : public Control {
  public:
    TabControl(Screen& screen, std::string name, std::vector<std::string> captions)
        : Control(screen, std::move(name)), captions_(std::move(captions)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::vector<std::string>& captions() const noexcept { return captions_; }
    /// The page that shows, from 0.
    int selected() const noexcept { return selected_; }
    /// A page that does not exist changes nothing.
    void select(int page);

    std::function<void()> onSelect;  ///< the user turned to another page
    void userSelect(int page);
    /// Adds `Item`, the page that shows.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    bool show(int page);

    std::vector<std::string> captions_;
    int selected_ = 0;
};

}  // namespace tsln
