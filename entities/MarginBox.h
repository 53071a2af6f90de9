#pragma once

#include <string>

#include "bridge/HostScreen.h"
#include "screens/Controls.h"

namespace tsln::entities {

/// A margin: stored as a fraction, shown and typed as a percentage between -100,000 and 10,000.
class MarginBox {
  public:
    MarginBox(HostScreen& screen, std::string name);

    TextBox box;

    void show(float fraction);
    /// Puts what was typed into the form of a number within the bounds.
    void correct();
    /// The fraction as a statement writes it.
    std::string fraction() const;
};

}  // namespace tsln::entities
