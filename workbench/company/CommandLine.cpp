#include "workbench/company/CommandLine.h"

#ifdef _WIN32
#include <windows.h>
// clang-format off: needs the header above
#include <shellapi.h>

#include "automation/FilePath.h"
// clang-format on
#endif

namespace tsln::workbench {

std::vector<std::string> commandLineWords(int argc, char** argv) {
    std::vector<std::string> result;
#ifdef _WIN32
    // The arguments of main() were converted to the system's narrow code page.
    int count = 0;
    if (wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count)) {
        for (int i = 0; i < count; ++i) {
            result.push_back(utf8Of(words[i]));
        }
        LocalFree(words);
        return result;
    }
#endif
    result.assign(argv, argv + argc);
    return result;
}

}  // namespace tsln::workbench
