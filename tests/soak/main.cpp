// A user who does anything, anywhere, for long: any operation, any control, any text. Nothing may crash, be left open, or
// grow.
//
//   test_soak scripted|windows [ACTS] [SEED]
//
// "scripted" works the screens without windows, "windows" works real windows on the display. A fault is printed with the
// latest acts and the seed that repeats them.

#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "doubles/TempDirectory.h"
#include "tests/soak/Diary.h"
#include "tests/soak/ScriptedUser.h"
#include "tests/soak/Soak.h"
#include "tests/soak/WindowUser.h"

namespace {

using namespace tsln;
using namespace tsln::soak;

void runScripted(RandomUser& user, const std::string& folder, std::size_t acts) {
    Soak* running = nullptr;
    Soak soak(user, folder, [&](Soak::ComponentFactory components) {
        auto desktop = std::make_unique<ScriptedUser>(user, folder, [&] { running->callOperation(); });
        desktop->components = std::move(components);
        return desktop;
    });
    running = &soak;
    soak.run(acts, 0, [] {});
}

}  // namespace

int main(int count, char** arguments) {
    const std::vector<std::string> words(arguments, arguments + count);
    const bool windows = count > 1 && words[1] == "windows";
    if (count < 2 || (!windows && words[1] != "scripted")) {
        std::fputs("test_soak scripted|windows [ACTS] [SEED]\n", stderr);
        return 2;
    }
    const std::size_t acts = count > 2 ? std::stoul(words[2]) : 100'000;
    const unsigned seed =
        count > 3 ? static_cast<unsigned>(std::stoul(words[3])) : std::random_device()() % 1'000'000;
    const std::string title = words[1] + " " + std::to_string(acts) + " " + std::to_string(seed);
    std::printf("test_soak %s\n", title.c_str());
    diary::begin("To repeat it: test_soak " + title);

    const test::TempDirectory temporary;  // what the module writes there goes with it
    const test::TempFolder folder("tessaline soak ", workbench::fastFolder());
    RandomUser user(seed);
    if (windows) {
        runWindows(user, folder.path(), acts);
    } else {
        runScripted(user, folder.path(), acts);
    }
    return 0;
}
