#include "screens/Splitter.h"

#include <algorithm>
#include <cmath>

namespace tsln {

bool Splitter::move(double position) {
    if (std::isnan(position)) return false;
    const double within = std::clamp(position, 0.0, 1.0);
    if (within == position_) return false;
    position_ = within;
    return true;
}

void Splitter::setPosition(double position) {
    if (move(position)) changed();
}

void Splitter::userMove(double position) {
    if (enabled() && move(position)) fire(onMove);
}

}  // namespace tsln
