#ifndef _WIN32
#include "desktop/ForeignWindows.h"

#include <utility>

namespace tsln::desktop {

ForeignWindows::ForeignWindows() = default;
ForeignWindows::~ForeignWindows() = default;

void ForeignWindows::disable() {}

void ForeignWindows::enable() noexcept {}

void ForeignWindows::own(wxTopLevelWindow&, std::function<void()> onLost) {
    onLost_ = std::move(onLost);  // there is no owner that the system could destroy: never called
}

void ForeignWindows::passQuitOn() noexcept {}

wxRect ForeignWindows::foremostRect() {
    return {};
}

}  // namespace tsln::desktop
#endif
