#pragma once

#include <functional>

#include "screens/Control.h"

namespace tsln {

/// Two panes with a sash between them that the user can move; the layout says what stands in each. F6 and
/// Shift+F6 move the keyboard from pane to pane.
class Splitter : public Control {
  public:
    enum class Panes { SideBySide, OneBelowTheOther };
    Splitter(Screen& screen, std::string name, Panes panes = Panes::SideBySide)
        : Control(screen, std::move(name)), panes_(panes) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    Panes panes() const noexcept { return panes_; }
    /// The part of the room that the first pane takes, from 0 to 1. No pane becomes smaller than what stands
    /// in it needs, whatever the position.
    double position() const noexcept { return position_; }
    /// A position outside of 0 to 1 becomes the nearer end; what is no number changes nothing.
    void setPosition(double position);

    std::function<void()> onMove;  ///< the user moved the sash
    void userMove(double position);

  private:
    bool move(double position);

    Panes panes_;
    double position_ = 0.5;
};

}  // namespace tsln
