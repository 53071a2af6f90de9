#pragma once

#include <string>
#include <utility>
#include <vector>

#include <wx/app.h>

#include "automation/Object.h"
#include "workbench/tour/Script.h"

namespace tsln::workbench {

/// Numbers, titles and saves the pictures of a tour.
class Album {
  public:
    /// The folder must exist. `begin` starts the names of the files; their numbers begin after `count`.
    explicit Album(std::string folder, std::string begin = {}, int count = 0)
        : folder_(std::move(folder)), begin_(std::move(begin)), count_(count) {}

    /// Saves a picture of the display. `shows` describes it.
    void take(const char* name, const char* shows);

  private:
    std::string folder_, begin_;
    int count_;
};

/// Waits until the window with this title has the keyboard.
Script::Wait untilActive(const std::string& title);
/// Waits until windows are drawn and a list shows its rows.
Script::Wait settled();
/// Calls an operation of the module from the event loop, because it returns only after its window is closed.
template <class... A>
void open(const ObjectPtr& library, const char* operation, A... arguments) {
    wxTheApp->CallAfter([=] { library->call(operation, arguments...); });
}
/// Ends the script unless the company database shows what the step did.
void expect(bool came, const std::string& what);

/// Runs the scripts to their ends, one after the other. The first failure ends all.
Script inSequence(std::vector<Script> scripts);

template <class... Scripts>
Script inSequence(Script first, Scripts... further) {
    std::vector<Script> scripts;
    scripts.push_back(std::move(first));
    (scripts.push_back(std::move(further)), ...);
    return inSequence(std::move(scripts));
}

}  // namespace tsln::workbench
