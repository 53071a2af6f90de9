#ifdef _WIN32
#include <wx/toplevel.h>
// clang-format off: needs what wx makes of it
#include <wx/msw/private.h>
// clang-format on

#include "desktop/ForeignWindows.h"

namespace tsln::desktop {
namespace {

bool isForeign(HWND window) {
    return IsWindowVisible(window) && !wxFindWinFromHandle(window);
}

BOOL CALLBACK collectForeign(HWND window, LPARAM list) {
    if (isForeign(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

/// The foreign top-level windows of this thread, the foremost first.
std::vector<HWND> foreignWindows() {
    std::vector<HWND> found;
    EnumThreadWindows(GetCurrentThreadId(), collectForeign, reinterpret_cast<LPARAM>(&found));
    return found;
}

/// The one that the user was at.
HWND foremostOf(const std::vector<HWND>& windows) {
    if (const HWND active = GetActiveWindow(); active && isForeign(active)) return active;
    for (const HWND window : windows) {
        if (IsWindowEnabled(window)) return window;
    }
    return nullptr;
}

}  // namespace

ForeignWindows::ForeignWindows() {
    const std::vector<HWND> windows = foreignWindows();
    foremost_ = foremostOf(windows);
    for (const HWND window : windows) {
        if (!IsWindowEnabled(window)) continue;
        EnableWindow(window, FALSE);
        disabled_.push_back(window);
    }
}

ForeignWindows::~ForeignWindows() {
    enable();
    if (const HWND window = static_cast<HWND>(foremost_); IsWindow(window)) SetActiveWindow(window);
}

void ForeignWindows::enable() noexcept {
    while (!disabled_.empty()) {
        const HWND window = static_cast<HWND>(disabled_.back());
        disabled_.pop_back();
        if (IsWindow(window)) EnableWindow(window, TRUE);
    }
}

void ForeignWindows::own(wxTopLevelWindow& window) const {
    if (foremost_ && !window.GetParent())
        SetWindowLongPtrW(GetHwndOf(&window), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(foremost_));
}

wxRect ForeignWindows::foremostRect() {
    const HWND window = foremostOf(foreignWindows());
    RECT rect;
    if (!window || IsIconic(window) || !GetWindowRect(window, &rect)) return {};
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

}  // namespace tsln::desktop
#endif
