#pragma once

#include <functional>
#include <memory>
#include <string>

#include <wx/wx.h>

#include "workbench/app/MessageWindows.h"
#include "workbench/app/Module.h"
#include "workbench/app/Options.h"
#include "workbench/host/CompanySession.h"
#include "workbench/tour/Script.h"

namespace tsln::workbench {

/// The workbench program: the module, the substitute host, and their windows.
class WorkbenchApp : public wxApp {
  public:
    /// Opens the company. Throws like the constructor of CompanySession.
    explicit WorkbenchApp(Options options);

    bool OnInit() override;
    int OnRun() override;
    int OnExit() override;

  private:
    void callOperation();
    /// Runs a script that drives the program, then ends the program. A picture of a failure is saved in `folder`.
    void start(Script script, const std::string& folder, std::function<void()> tellEnd);
    void noteProcessEnd(std::string_view commandLine, ProcessEnd end);

    const Options options_;
    MessageWindows messages_;
    CompanySession session_;
    const bool signedIn_;  // without asking for a password
    std::unique_ptr<Module> module_;
    std::unique_ptr<ScriptRunner> script_;
    int exitCode_ = 0;
};

}  // namespace tsln::workbench
