#include "tests/com/driver/WindowDriver.h"

#include <algorithm>

#include "com/edge/Wide.h"

namespace tsln::test {
namespace {

constexpr DWORD patience = 20000;  // milliseconds: Wine's first window takes some seconds
constexpr DWORD pause = 20;

/// Calls `look` repeatedly until it finds something or the time limit is reached.
template <class T>
T waitFor(const std::function<T()>& look, const std::string& what) {
    const ULONGLONG end = GetTickCount64() + patience;
    do {
        if (T found = look()) return found;
        Sleep(pause);
    } while (GetTickCount64() < end);
    std::string seen;
    for (const std::string& caption : WindowDriver::captions())
        seen += " '" + caption + "'";
    throw DriverError(what + " did not appear; there are" + (seen.empty() ? " no windows" : seen));
}

std::string captionOf(HWND window) {
    wchar_t text[256];
    return com::toUtf8({text, static_cast<std::size_t>(GetWindowTextW(window, text, 256))});
}

bool isClass(HWND window, const wchar_t* name) {
    wchar_t text[64];
    GetClassNameW(window, text, 64);
    return lstrcmpiW(text, name) == 0;
}

BOOL CALLBACK collectVisible(HWND window, LPARAM list) {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

HWND findTop(const std::function<bool(HWND)>& isMeant) {
    const std::vector<HWND> windows = topWindows();
    const auto found = std::ranges::find_if(windows, isMeant);
    return found == windows.end() ? nullptr : *found;
}

/// Posts a message and waits until the window is closed or disabled. The message is posted, not sent, because
/// it may open a modal window. It is repeated, because a screen that is working ignores clicks.
void postUntilEffect(HWND window, HWND to, UINT message, WPARAM parameter, const std::string& what) {
    const auto hasEffect = [window] { return !IsWindowVisible(window) || !IsWindowEnabled(window); };
    waitFor<bool>(
        [&] {
            PostMessageW(to, message, parameter, 0);
            for (int i = 0; i < 25 && !hasEffect(); ++i)
                Sleep(pause);
            return hasEffect();
        },
        "The effect of " + what);
}

/// The window that holds the rows of a list.
bool holdsRows(HWND window) {
    return isClass(window, L"wxDataView");
}

}  // namespace

std::vector<HWND> childrenOf(HWND window) {
    std::vector<HWND> children;
    EnumChildWindows(window, collectVisible, reinterpret_cast<LPARAM>(&children));
    return children;
}

std::vector<HWND> topWindows() {
    std::vector<HWND> windows;
    EnumWindows(collectVisible, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> ownInputWindows() {
    std::vector<HWND> windows = topWindows();
    std::erase_if(windows, [](HWND window) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        return process != GetCurrentProcessId() || !IsWindowEnabled(window);
    });
    return windows;
}

HWND WindowDriver::window(const std::string& caption) {
    return waitFor<HWND>(
        [&] { return findTop([&](HWND w) { return IsWindowEnabled(w) && captionOf(w) == caption; }); },
        "The window '" + caption + "'");
}

bool WindowDriver::gone(const std::string& caption) {
    const ULONGLONG end = GetTickCount64() + patience;
    while (findTop([&](HWND w) { return captionOf(w) == caption; })) {
        if (GetTickCount64() > end) return false;
        Sleep(pause);
    }
    return true;
}

HWND WindowDriver::child(const std::string& caption, const std::function<bool(HWND)>& isMeant,
                         const std::string& what) {
    return waitFor<HWND>(
        [&]() -> HWND {
            const HWND top = window(caption);
            for (const HWND at : childrenOf(top)) {
                if (IsWindowEnabled(at) && isMeant(at)) return at;
            }
            return nullptr;
        },
        what + " of '" + caption + "'");
}

HWND WindowDriver::button(const std::string& window, const std::string& caption) {
    return child(
        window, [&](HWND w) { return isClass(w, L"Button") && captionOf(w) == caption; },
        "Button '" + caption + "'");
}

void WindowDriver::press(const std::string& window, const std::string& caption) {
    const HWND at = button(window, caption);
    postUntilEffect(GetAncestor(at, GA_ROOT), at, BM_CLICK, 0, "'" + caption + "'");
}

void WindowDriver::tick(const std::string& window, const std::string& caption) {
    const HWND at = button(window, caption);
    const LRESULT before = SendMessageW(at, BM_GETCHECK, 0, 0);
    // A screen that is working drops the click.
    waitFor<bool>(
        [&] {
            SendMessageW(at, BM_CLICK, 0, 0);
            return SendMessageW(at, BM_GETCHECK, 0, 0) != before;
        },
        "The tick of '" + caption + "'");
}

void WindowDriver::click(const std::string& window, const std::string& caption) {
    PostMessageW(button(window, caption), BM_CLICK, 0, 0);
}

void WindowDriver::choose(const std::string& window, const std::string& caption, int item) {
    const HWND at = button(window, caption);
    SetCursorPos(0, 0);  // a menu that opens below the pointer selects the item there
    const auto findMenu = [] { return findTop([](HWND w) { return isClass(w, L"#32768"); }); };
    waitFor<bool>(
        [&] {
            PostMessageW(at, BM_CLICK, 0, 0);
            for (int i = 0; i < 100 && !findMenu(); ++i)
                Sleep(pause);
            return findMenu() != nullptr;
        },
        "The menu of '" + caption + "'");
    // A menu that is just opening loses keys.
    Sleep(10 * pause);
    for (int i = 0; i < item; ++i) {
        PostMessageW(findMenu(), WM_KEYDOWN, VK_DOWN, 0);
        Sleep(pause);
    }
    waitFor<bool>(
        [&] {
            PostMessageW(findMenu(), WM_KEYDOWN, VK_RETURN, 0);
            for (int i = 0; i < 25 && findMenu(); ++i)
                Sleep(pause);
            return !findMenu();
        },
        "The effect of the menu of '" + caption + "'");
}

HWND WindowDriver::field(const std::string& caption, std::size_t number) {
    return waitFor<HWND>(
        [&]() -> HWND {
            std::size_t before = 0;
            for (const HWND at : childrenOf(window(caption))) {
                if (isClass(at, L"Edit") && before++ == number) return at;
            }
            return nullptr;
        },
        "Field " + std::to_string(number) + " of '" + caption + "'");
}

void WindowDriver::fill(const std::string& window, std::size_t number, const std::string& text) {
    // A dialog that has just opened may still be filling its fields.
    waitFor<bool>(
        [&] {
            const HWND at = field(window, number);
            SendMessageW(at, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(com::toWide(text).c_str()));
            // A list of choices notices only what is typed.
            if (const HWND list = GetParent(at); isClass(list, L"ComboBox")) {
                SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_EDITCHANGE),
                             reinterpret_cast<LPARAM>(list));
            }
            Sleep(5 * pause);
            return read(window, number) == text;
        },
        "The text '" + text + "'");
}

std::string WindowDriver::read(const std::string& window, std::size_t number) {
    const HWND at = field(window, number);
    std::wstring text(static_cast<std::size_t>(SendMessageW(at, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(at, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return com::toUtf8(text);
}

void WindowDriver::bringToFront(const std::string& caption) {
    const HWND at = window(caption);
    waitFor<bool>(
        [at] {
            SetForegroundWindow(at);
            Sleep(5 * pause);
            return GetForegroundWindow() == at;
        },
        "'" + caption + "' in front");
}

void WindowDriver::close(const std::string& caption) {
    const HWND at = window(caption);
    postUntilEffect(at, at, WM_SYSCOMMAND, SC_CLOSE, "closing '" + caption + "'");
}

void WindowDriver::selectFirstRow(const std::string& window) {
    const HWND rows = child(window, holdsRows, "The list");
    // A selected row enables the button, in a list that has one.
    const auto edit = [&]() -> HWND {
        const std::vector<HWND> parts = childrenOf(this->window(window));
        const auto found = std::ranges::find_if(
            parts, [](HWND at) { return isClass(at, L"Button") && captionOf(at) == "&Edit..."; });
        return found == parts.end() ? nullptr : *found;
    };
    waitFor<bool>(
        [&] {
            PostMessageW(rows, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 8));
            PostMessageW(rows, WM_LBUTTONUP, 0, MAKELPARAM(20, 8));
            Sleep(10 * pause);
            const HWND button = edit();
            return !button || IsWindowEnabled(button);
        },
        "A row of '" + window + "'");
}

std::vector<std::string> WindowDriver::captions() {
    std::vector<std::string> all;
    for (const HWND window : topWindows()) {
        const std::string caption = captionOf(window);
        if (!caption.empty()) all.push_back(caption + (IsWindowEnabled(window) ? "" : " (disabled)"));
    }
    return all;
}

}  // namespace tsln::test
