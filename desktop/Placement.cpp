#include "desktop/Placement.h"

#include <algorithm>

namespace tsln::desktop {
namespace {

int fitLength(int wanted, int least, int most) {
    return std::max(1, std::min(std::max(wanted, least), most));
}

/// Clamps a stored value before any arithmetic: it may be any number and could overflow.
int fitStart(int wanted, int length, int from, int size) {
    return std::clamp(wanted, from, std::max(from, from + size - length));
}

}  // namespace

wxRect placeWindow(const Screen::Placement& stored, bool resizable, const Surroundings& around) {
    const wxRect& display = around.display;
    const int wantedWidth = resizable ? stored.width.value_or(around.natural.x) : around.natural.x;
    const int wantedHeight = resizable ? stored.height.value_or(around.natural.y) : around.natural.y;
    const int width = fitLength(wantedWidth, around.least.x, display.width);
    const int height = fitLength(wantedHeight, around.least.y, display.height);
    const int left = stored.left.value_or(around.owner.x + (around.owner.width - width) / 2);
    const int top = around.owner.y + (around.owner.height - height) / 2;
    return {fitStart(left, width, display.x, display.width), fitStart(top, height, display.y, display.height),
            width, height};
}

}  // namespace tsln::desktop
