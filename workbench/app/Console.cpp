#include "workbench/app/Console.h"

#include <cstdio>

#ifdef _WIN32
#include "com/edge/Platform.h"
#include "com/edge/Wide.h"
// clang-format off: stands on those above
#include <shellapi.h>
// clang-format on
#endif

namespace tsln::workbench {

#ifdef _WIN32

void complain(const std::string& text) {
    if (GetFileType(GetStdHandle(STD_ERROR_HANDLE)) != FILE_TYPE_UNKNOWN) {
        std::fprintf(stderr, "%s\n", text.c_str());
        std::fflush(stderr);
    } else {
        MessageBoxW(nullptr, com::toWide(text).c_str(), L"Tessaline Workbench", MB_OK | MB_ICONEXCLAMATION);
    }
}

std::vector<std::string> commandLineWords(int argc, char** argv) {
    // What main() is given has been through the system's narrow code page.
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!words) return {argv, argv + argc};
    std::vector<std::string> result;
    for (int i = 0; i < count; ++i)
        result.push_back(com::toUtf8(words[i]));
    LocalFree(words);
    return result;
}

#else

void complain(const std::string& text) {
    std::fprintf(stderr, "%s\n", text.c_str());
}

std::vector<std::string> commandLineWords(int argc, char** argv) {
    return {argv, argv + argc};
}

#endif

}  // namespace tsln::workbench
