#pragma once

#include <functional>

#include "screens/Control.h"

namespace tsln {

/// Two panes with a movable sash between them; the layout gives their content. F6 and Shift+F6 move the
/// keyboard focus from pane to pane.
class Splitter : public Control {
  public:
    enum class Panes { SideBySide, OneBelowTheOther };
    Splitter(Screen& screen, std::string name, Panes panes = Panes::SideBySide)
        : Control(screen, std::move(name)), panes_(panes) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    Panes panes() const noexcept { return panes_; }
    /// The fraction of the space that the first pane takes, from 0 to 1. A pane never becomes smaller than
    /// its content needs.
    double position() const noexcept { return position_; }
    /// A position outside 0 to 1 is set to the nearer end. NaN is ignored.
    void setPosition(double position);

    std::function<void()> onMove;  ///< the user moved the sash
    void userMove(double position);

  private:
    bool move(double position);

    Panes panes_;
    double position_ = 0.5;
};

}  // namespace tsln
