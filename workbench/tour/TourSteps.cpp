#include "workbench/tour/TourSteps.h"

#include <cstdio>

#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {

void Album::take(const char* name, const char* shows) {
    char file[64];
    std::snprintf(file, sizeof file, "%s%02d-%s.png", begin_.c_str(), ++count_, name);
    const std::string path = folder_ + "/" + file;
    if (!saveScreenshot(path)) throw ScriptFailure("The picture " + path + " could not be saved.");
    std::printf("  %-24s %s\n", file, shows);
    std::fflush(stdout);
}

Script::Wait untilActive(const std::string& title) {
    return until("the window \"" + title + "\" has the keyboard",
                 [title] { return activeWindowTitle() == title && !popupIsOpen(); });
}

Script::Wait settled() {
    return pause(std::chrono::milliseconds(400));
}

void expect(bool came, const std::string& what) {
    if (!came) throw ScriptFailure("The company database does not show that " + what + ".");
}

Script inSequence(std::vector<Script> scripts) {
    for (Script& script : scripts) {
        // The waits within the script have their own limits.
        co_await until(
            "the tour ends", [&script] { return script.resumeIfReady(); }, std::chrono::hours(1));
        if (script.failure()) std::rethrow_exception(script.failure());
    }
}

}  // namespace tsln::workbench
