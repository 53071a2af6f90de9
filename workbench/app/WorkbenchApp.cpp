#include "workbench/app/WorkbenchApp.h"

#include <cstdio>

#include <wx/config.h>
#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>

#include "shared/modSharedXML.h"
#include "workbench/app/AgentStart.h"
#include "workbench/app/Console.h"
#include "workbench/app/ProcessEndEvent.h"
#include "workbench/app/SettingsFolder.h"
#include "workbench/app/SignIn.h"
#include "workbench/app/WorkbenchFrame.h"
#include "workbench/tour/CustomerTour.h"
#include "workbench/tour/Gallery.h"
#include "workbench/tour/MessagesTour.h"
#include "workbench/tour/MigrationTour.h"
#include "workbench/tour/RoamingTour.h"
#include "workbench/tour/RolesTour.h"
#include "workbench/tour/Tour.h"
#include "workbench/tour/TourSteps.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

/// Prints the terms in the company database, read through a second connection.
void printTerms(const std::string& companyFile) {
    Company company(companyFile, OpenMode::ReadOnly);
    const auto rows = modSharedXML::Records::parse(
        company.read("SELECT Terms, DueDays, Discount, DiscountDays FROM Terms ORDER BY Terms"));
    std::printf("The terms in the company database:\n  %-40s %7s %8s %12s\n", "Terms", "DueDays", "Discount",
                "DiscountDays");
    for (const auto row : rows) {
        const auto field = [&](const char* name) { return modSharedXML::readText(name, row); };
        std::printf("  %-40s %7s %8s %12s\n", field("Terms").c_str(), field("DueDays").c_str(),
                    field("Discount").c_str(), field("DiscountDays").c_str());
    }
}

/// Registers the programs that come with the workbench, under the names by which the module asks for them.
void registerPrograms(CompanySession& session) {
    for (const auto& [kind, program] :
         {std::pair{"DistoTransfer", "tessaline-meter"}, {"RoamingSyncAgent", "tessaline-agent"}}) {
        wxFileName file(wxStandardPaths::Get().GetExecutablePath());
        file.SetName(program);
        if (file.FileExists()) session.registerProgram(kind, file.GetFullPath().utf8_string());
    }
}

}  // namespace

WorkbenchApp::WorkbenchApp(Options options)
    : options_(std::move(options)),
      session_(options_.company, options_.user, messages_),
      signedIn_(signInUnasked(session_)) {}

bool WorkbenchApp::OnInit() {
    // A failed assertion of the toolkit is printed; its dialog about source files would only disturb the user.
    wxSetAssertHandler([](const wxString& file, int line, const wxString&, const wxString& condition,
                          const wxString& message) {
        std::fprintf(stderr, "%s:%d: assertion %s: %s\n", file.utf8_str().data(), line,
                     condition.utf8_str().data(), message.utf8_str().data());
    });
    SetAppDisplayName("Tessaline");
    if (!signedIn_ && !askForPassword(session_)) {
        exitCode_ = exitUser;
        SetExitOnFrameDelete(false);
        CallAfter([this] { ExitMainLoop(); });
        return true;
    }
    try {
        module_ = std::make_unique<Module>(session_, [this](std::string_view commandLine, ProcessEnd end) {
            noteProcessEnd(commandLine, end);
        });
        module_->library()->call("Initialize", session_.sharedCode());
        registerPrograms(session_);
    } catch (const std::exception& error) {
        complain(error.what());
        return false;
    }

    if (!options_.show.empty()) {
        SetExitOnFrameDelete(false);
        CallAfter([this] { callOperation(); });
        return true;
    }
    const auto traced = std::make_shared<TracedObject>(module_->library(), "Library", session_.tracer());
    auto* frame = new WorkbenchFrame(session_, traced);
    SetTopWindow(frame);
    const bool forAPerson = options_.tour.empty() && options_.gallery.empty();
    if (forAPerson) {
        wxConfigBase::Set(new wxFileConfig("", "", wxString::FromUTF8(settingsFile("workbench.ini"))));
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the toolkit deletes the settings at the end
        frame->remember();
        startAgentIfWanted(session_);
    }
    frame->Show();
    if (!options_.tour.empty()) {
        std::printf(
            "A tour of terms, customers, roles, charges, measurements, messages, roaming workstations and a migration; its pictures are in %s\n",
            options_.tour.c_str());
        start(inSequence(pricingTour(session_.company(), options_.tour),
                         termsTour(session_.company(), options_.tour),
                         customerTour(session_.company(), options_.tour),
                         rolesTour(session_.company(), options_.tour),
                         messagesTour(module_->library(), session_.company(), options_.tour),
                         roamingTour(module_->library(), session_.company(), options_.tour),
                         migrationTour(module_->library(), session_.company(), options_.tour)),
              options_.tour, [this] {
                  printTerms(options_.company);
                  std::printf("All steps succeeded.\n");
              });
    }
    if (!options_.gallery.empty()) {
        std::printf("Every screen; its pictures are in %s\n", options_.gallery.c_str());
        start(galleryRound(module_->library(), session_.company(), *frame, galleryStops(), options_.gallery),
              options_.gallery, [] { std::printf("No drawing faults were found.\n"); });
    }
    return true;
}

int WorkbenchApp::OnRun() {
    const int result = wxApp::OnRun();
    return exitCode_ != 0 ? exitCode_ : result;
}

int WorkbenchApp::OnExit() {
    script_.reset();
    if (module_) module_->library()->call("PreTerminate");
    module_.reset();
    return wxApp::OnExit();
}

void WorkbenchApp::callOperation() {
    std::vector<Argument> arguments;
    for (std::size_t i = 1; i < options_.show.size(); ++i)
        arguments.emplace_back(options_.show[i]);
    try {
        const Variant result =
            module_->library()->invoke(options_.show[0], Access::Call, Arguments(arguments));
        if (!result.isEmpty() && !result.isObject()) std::printf("%s\n", result.toText().c_str());
    } catch (const std::exception& error) {
        complain(error.what());
        exitCode_ = exitFailed;
    }
    ExitMainLoop();
}

void WorkbenchApp::start(Script script, const std::string& folder, std::function<void()> tellEnd) {
    script_ = std::make_unique<ScriptRunner>(
        std::move(script), [this, folder, tellEnd = std::move(tellEnd)](const std::exception_ptr& failure) {
            try {
                if (failure) std::rethrow_exception(failure);
                tellEnd();
                GetTopWindow()->Close();
            } catch (const std::exception& error) {
                std::fflush(stdout);
                saveScreenshot(folder + "/failure.png");
                std::fprintf(stderr, "The script failed: %s\n", error.what());
                // Modal windows may be open, and no user is there to close them.
                std::_Exit(exitFailed);
            }
        });
}

void WorkbenchApp::noteProcessEnd(std::string_view commandLine, ProcessEnd end) {
    if (const auto event = processEndEvent(commandLine, end))
        session_.eventLog().record(EventLog::Error, *event);
}

}  // namespace tsln::workbench
