// Operates windows for tests that are written as scripts. Each argument is a step:
//   press:WINDOW|BUTTON   fill:WINDOW|FIELD|TEXT   close:WINDOW   wait:WINDOW   gone:WINDOW
//   row:WINDOW   choose:WINDOW|BUTTON|ITEM   tick:WINDOW|BUTTON
// Ends with 0 when all steps succeeded. Stops at the first step that fails, writes it to the error output and
// ends with 1.

#include <cstdio>

#include "com/edge/Wide.h"
#include "tests/com/driver/WindowDriver.h"

// clang-format off: needs the headers above first
#include <shellapi.h>
// clang-format on

using tsln::test::DriverError;
using tsln::test::WindowDriver;

namespace {

std::vector<std::string> split(const std::string& text, char at) {
    std::vector<std::string> parts{""};
    for (const char c : text) {
        if (c == at) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

void take(WindowDriver& user, const std::string& step) {
    const std::size_t colon = step.find(':');
    const std::string act = step.substr(0, colon);
    const std::vector<std::string> words = split(step.substr(std::min(step.size(), colon + 1)), '|');
    if (act == "press" && words.size() == 2) return user.press(words[0], words[1]);
    if (act == "tick" && words.size() == 2) return user.tick(words[0], words[1]);
    if (act == "fill" && words.size() == 3) return user.fill(words[0], std::stoul(words[1]), words[2]);
    if (act == "close" && words.size() == 1) return user.close(words[0]);
    if (act == "wait" && words.size() == 1) return void(user.window(words[0]));
    if (act == "gone" && words.size() == 1) {
        if (!user.gone(words[0])) throw DriverError("The window '" + words[0] + "' did not go");
        return;
    }
    if (act == "choose" && words.size() == 3) return user.choose(words[0], words[1], std::stoi(words[2]));
    if (act == "row" && words.size() == 1) return user.selectFirstRow(words[0]);
    throw DriverError("No such step");
}

}  // namespace

int main() {
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    WindowDriver user;
    for (int i = 1; i < count; ++i) {
        const std::string step = tsln::com::toUtf8(arguments[i]);
        try {
            take(user, step);
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s: %s\n", step.c_str(), error.what());
            return 1;
        }
    }
    return 0;
}
