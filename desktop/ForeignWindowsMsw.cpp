#ifdef _WIN32
#include <wx/toplevel.h>
// clang-format off: must follow the wx headers
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

/// The active window, or else the foremost enabled one; null without one.
HWND foremostOf(const std::vector<HWND>& windows) {
    if (const HWND active = GetActiveWindow(); active && isForeign(active)) return active;
    for (const HWND window : windows) {
        if (IsWindowEnabled(window)) return window;
    }
    return nullptr;
}

constexpr wchar_t lostProperty[] = L"tslnmaint5.lost";
constexpr wchar_t procedureProperty[] = L"tslnmaint5.procedure";

/// Restores the window's own procedure and returns it.
WNDPROC unwatch(HWND window) {
    RemovePropW(window, lostProperty);
    const auto own = reinterpret_cast<WNDPROC>(RemovePropW(window, procedureProperty));
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own));
    return own;
}

LRESULT CALLBACK watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DESTROY) {
        const auto own = reinterpret_cast<WNDPROC>(GetPropW(window, procedureProperty));
        return CallWindowProcW(own, window, message, wParam, lParam);
    }
    const auto onLost = static_cast<std::function<void()>*>(GetPropW(window, lostProperty));
    const WNDPROC own = unwatch(window);
    (*onLost)();
    return CallWindowProcW(own, window, message, wParam, lParam);
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

void ForeignWindows::disable() {
    for (void* const window : disabled_) {
        const HWND handle = static_cast<HWND>(window);
        if (IsWindow(handle) && IsWindowEnabled(handle)) EnableWindow(handle, FALSE);
    }
}

ForeignWindows::~ForeignWindows() {
    enable();
    if (const HWND owned = static_cast<HWND>(owned_); IsWindow(owned)) unwatch(owned);
    if (const HWND window = static_cast<HWND>(foremost_); IsWindow(window)) SetActiveWindow(window);
}

void ForeignWindows::enable() noexcept {
    while (!disabled_.empty()) {
        const HWND window = static_cast<HWND>(disabled_.back());
        disabled_.pop_back();
        if (IsWindow(window)) EnableWindow(window, TRUE);
    }
}

void ForeignWindows::own(wxTopLevelWindow& window, std::function<void()> onLost) {
    if (!foremost_ || window.GetParent()) return;
    const HWND owned = GetHwndOf(&window);
    SetWindowLongPtrW(owned, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(foremost_));
    owned_ = owned;
    onLost_ = std::move(onLost);
    // The toolkit reports only windows that it destroys itself.
    SetPropW(owned, lostProperty, &onLost_);
    SetPropW(owned, procedureProperty, reinterpret_cast<HANDLE>(GetWindowLongPtrW(owned, GWLP_WNDPROC)));
    SetWindowLongPtrW(owned, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watch));
}

void ForeignWindows::passQuitOn() noexcept {
    PostQuitMessage(0);
}

wxRect ForeignWindows::foremostRect() {
    const HWND window = foremostOf(foreignWindows());
    RECT rect;
    if (!window || IsIconic(window) || !GetWindowRect(window, &rect)) return {};
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

}  // namespace tsln::desktop
#endif
