#ifndef _WIN32
#include "desktop/ForeignWindows.h"

namespace tsln::desktop {

ForeignWindows::ForeignWindows() = default;
ForeignWindows::~ForeignWindows() = default;

void ForeignWindows::disable() {}

void ForeignWindows::enable() noexcept {}

void ForeignWindows::own(wxTopLevelWindow&, std::function<void()>) {}

void ForeignWindows::passQuitOn() noexcept {}

wxRect ForeignWindows::foremostRect() {
    return {};
}

}  // namespace tsln::desktop
#endif
