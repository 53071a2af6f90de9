#pragma once

#include <chrono>
#include <cstdio>
#include <string>
#include <utility>

#include "workbench/tour/Script.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {

/// Numbers, titles and saves the pictures of a tour.
class TourAlbum {
  public:
    /// `begin` starts the names of the files.
    explicit TourAlbum(std::string folder, std::string begin = {})
        : folder_(std::move(folder)), begin_(std::move(begin)) {}

    /// Saves a picture of the display. `shows` describes it.
    void take(const char* name, const char* shows) {
        char file[64];
        std::snprintf(file, sizeof file, "%s%02d-%s.png", begin_.c_str(), ++count_, name);
        const std::string path = folder_ + "/" + file;
        if (!saveScreenshot(path)) throw ScriptFailure("The picture " + path + " could not be saved.");
        std::printf("  %-24s %s\n", file, shows);
        std::fflush(stdout);
    }

  private:
    std::string folder_, begin_;
    int count_ = 0;
};

inline Script::Wait untilActive(const std::string& title) {
    return until("the window \"" + title + "\" has the keyboard",
                 [title] { return activeWindowTitle() == title && !popupIsOpen(); });
}

/// Waits until windows are drawn and a list shows its rows.
inline Script::Wait settled() {
    return pause(std::chrono::milliseconds(400));
}

}  // namespace tsln::workbench
