#include "workbench/company/CommandLine.h"

#include "workbench/sql/TextOrder.h"

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

std::optional<std::string> optionValue(std::string_view word, std::string_view option) {
    if (word.size() < option.size() || compareText(word.substr(0, option.size()), option) != 0) return {};
    std::string_view value = word.substr(option.size());
    // A host that starts programs without a shell leaves the quotes.
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        value = value.substr(1, value.size() - 2);
    return std::string(value);
}

}  // namespace tsln::workbench
