#ifdef _WIN32
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include <wx/string.h>

#include "automation/FilePath.h"
#include "desktop/Process.h"
#include "desktop/Text.h"

namespace tsln::desktop {

ProcessEnd runProcess(std::string_view commandLine, const std::function<void()>& idle) {
    std::wstring line = toWx(commandLine).ToStdWstring();  // CreateProcess modifies it
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS, nullptr, nullptr,
                        &startup, &process)) {
        return {};
    }
    CloseHandle(process.hThread);
    while (MsgWaitForMultipleObjects(1, &process.hProcess, FALSE, INFINITE, QS_ALLINPUT) ==
           WAIT_OBJECT_0 + 1) {
        idle();
    }
    DWORD exitCode = 0;
    GetExitCodeProcess(process.hProcess, &exitCode);
    CloseHandle(process.hProcess);
    return {.started = true, .exitCode = static_cast<int>(exitCode)};
}

bool openDetached(std::string_view file, std::string_view arguments) {
    // The shell would look for a name without a folder in the current folder first.
    if (!pathOf(file).is_absolute() && file.find("://") == file.npos) return false;
    constexpr INT_PTR lastErrorCode = 32;
    const HINSTANCE result = ShellExecuteW(nullptr, L"open", toWx(file).wc_str(), toWx(arguments).wc_str(),
                                           nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(result) > lastErrorCode;
}

}  // namespace tsln::desktop
#endif
