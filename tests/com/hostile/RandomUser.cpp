#include "tests/com/hostile/RandomUser.h"

#include <algorithm>

#include "com/edge/Wide.h"
#include "tests/com/driver/WindowDriver.h"

namespace tsln::test {
namespace {

constexpr UINT between = 10;  // milliseconds

std::wstring classOf(HWND window) {
    wchar_t text[64];
    GetClassNameW(window, text, 64);
    return text;
}

BOOL CALLBACK collect(HWND window, LPARAM list) {
    if (IsWindowVisible(window) && IsWindowEnabled(window))
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

void postKey(HWND to, WPARAM key) {
    PostMessageW(to, WM_KEYDOWN, key, 1);
    PostMessageW(to, WM_KEYUP, key, static_cast<LPARAM>(0xc0000001));
}

}  // namespace

std::vector<HWND> windowsOfThread() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

RandomUser* RandomUser::current_ = nullptr;

RandomUser::RandomUser(Random& chance) : chance_(chance), timer_(SetTimer(nullptr, 0, between, onTimer)) {
    current_ = this;
}

RandomUser::~RandomUser() {
    KillTimer(nullptr, timer_);
    current_ = nullptr;
}

void CALLBACK RandomUser::onTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (current_) current_->act();
}

void RandomUser::act() {
    const std::vector<HWND> windows = windowsOfThread();
    if (windows.empty()) return;
    const HWND front = windows.front();
    if (left_ <= 0) {
        if (++waited_ % 5 == 0) close(front);  // gives the last try time
        return;
    }
    --left_;
    ++done_;
    actIn(front);
}

/// A window may refuse to close as long as it works or asks a question.
void RandomUser::close(HWND window) {
    last_ = "close";
    const int tries = tries_++;
    if (classOf(window) == L"#32768") return postKey(window, VK_ESCAPE);
    if (tries % 4 == 3) {  // a question of its own, without a close box
        std::vector<HWND> buttons;
        EnumChildWindows(window, collect, reinterpret_cast<LPARAM>(&buttons));
        const bool takesInput = std::erase_if(buttons, [](HWND at) { return classOf(at) != L"Button"; }) > 4;
        if (!buttons.empty() && !takesInput)
            PostMessageW(buttons[chance_.below(buttons.size())], BM_CLICK, 0, 0);
    }
    // A question without a close box takes the answer "No"; a message only "OK".
    PostMessageW(window, WM_COMMAND, tries % 3 == 2 ? IDOK : tries % 3 == 1 ? IDNO : IDCANCEL, 0);
    PostMessageW(window, WM_CLOSE, 0, 0);
}

void RandomUser::actIn(HWND window) {
    if (classOf(window) == L"#32768") {  // a menu
        last_ = "menu";
        return postKey(window, chance_.of<WPARAM>({VK_DOWN, VK_DOWN, VK_UP, VK_RETURN, VK_ESCAPE}));
    }
    if (chance_.oneIn(60)) return close(window);
    std::vector<HWND> parts;
    EnumChildWindows(window, collect, reinterpret_cast<LPARAM>(&parts));
    if (parts.empty()) return close(window);
    const HWND part = parts[chance_.below(parts.size())];
    const std::wstring kind = classOf(part);
    last_ = com::toUtf8(kind);
    work(part, kind);
}

void RandomUser::work(HWND part, const std::wstring& kind) {
    if (kind == L"Button") {
        PostMessageW(part, BM_CLICK, 0, 0);
    } else if (kind == L"Edit" && !chance_.oneIn(3)) {
        PostMessageW(part, EM_SETSEL, 0, chance_.oneIn(2) ? -1 : 0);
        for (std::size_t length = chance_.below(12); length > 0; --length)
            PostMessageW(part, WM_CHAR,
                         chance_.of<WPARAM>({'1', '2', '0', '.', '-', 'a', 'Z', '\'', '"', '%', '&', 0xe9}),
                         1);
    } else if (kind == L"ComboBox" && chance_.oneIn(2)) {
        PostMessageW(part, CB_SHOWDROPDOWN, chance_.below(2), 0);
    } else if (chance_.oneIn(2)) {
        RECT area;
        GetClientRect(part, &area);
        const auto x = static_cast<int>(chance_.below(static_cast<std::size_t>(std::max(area.right, 1L))));
        const auto y = static_cast<int>(chance_.below(static_cast<std::size_t>(std::max(area.bottom, 1L))));
        const LPARAM at = MAKELPARAM(x, y);
        PostMessageW(part, WM_LBUTTONDOWN, MK_LBUTTON, at);
        PostMessageW(part, WM_LBUTTONUP, 0, at);
        if (chance_.oneIn(4)) {
            PostMessageW(part, WM_LBUTTONDBLCLK, MK_LBUTTON, at);
            PostMessageW(part, WM_LBUTTONUP, 0, at);
        }
    } else {
        postKey(part, chance_.of<WPARAM>({VK_DOWN, VK_UP, VK_END, VK_HOME, VK_RETURN, VK_SPACE, VK_INSERT,
                                          VK_DELETE, VK_TAB, VK_F2, VK_ESCAPE}));
    }
}

}  // namespace tsln::test
