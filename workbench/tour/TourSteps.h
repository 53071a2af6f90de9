#pragma once

#include <string>

#include "workbench/tour/Script.h"

namespace tsln::workbench {

/// Numbers, titles and saves the pictures of a tour.
class Album {
  public:
    /// The numbers begin after `count`.
    explicit Album(std::string folder, int count = 0) : folder_(std::move(folder)), count_(count) {}

    /// Saves a picture of the display. `shows` describes it.
    void take(const char* name, const char* shows);

  private:
    std::string folder_;
    int count_;
};

/// Waits until the window with this title has the keyboard.
Script::Wait untilActive(const std::string& title);
/// Waits until windows are drawn and a list shows its rows.
Script::Wait settled();
/// Ends the script unless the company database shows what the step did.
void expect(bool came, const std::string& what);

}  // namespace tsln::workbench
