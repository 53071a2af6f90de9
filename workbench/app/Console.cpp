#include "workbench/app/Console.h"

#include <cstdio>

#ifdef _WIN32
#include "com/edge/Platform.h"
#include "com/edge/Wide.h"
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

#else

void complain(const std::string& text) {
    std::fprintf(stderr, "%s\n", text.c_str());
}

#endif

}  // namespace tsln::workbench
