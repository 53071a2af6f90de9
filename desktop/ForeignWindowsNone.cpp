#ifndef _WIN32
#include "desktop/ForeignWindows.h"

namespace tsln::desktop {

ForeignWindows::ForeignWindows() = default;
ForeignWindows::~ForeignWindows() = default;

void ForeignWindows::enable() noexcept {}

void ForeignWindows::own(wxTopLevelWindow&) const {}

wxRect ForeignWindows::foremostRect() {
    return {};
}

}  // namespace tsln::desktop
#endif
