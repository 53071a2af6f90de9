#pragma once

#include "screens/Control.h"

namespace tsln {

/// A small picture beside a text.
class Picture : public Control {
  public:
    enum class Kind { Lock };
    Picture(Screen& screen, std::string name, Kind kind) : Control(screen, std::move(name)), kind_(kind) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    Kind kind() const noexcept { return kind_; }

  private:
    Kind kind_;
};

}  // namespace tsln
