#include <memory>

#include "workbench/app/Console.h"
#include "workbench/app/Migrating.h"
#include "workbench/app/WorkbenchApp.h"
#include "workbench/company/CommandLine.h"
#include "workbench/company/LoadPath.h"
#include "workbench/host/SecurityObject.h"

#ifdef __WXGTK__
#include <gdk/gdk.h>
#endif

using namespace tsln::workbench;

int main(int argc, char** argv) {
    restrictLoadPath();
    int exitCode = 0;
    const std::vector<std::string> words = commandLineWords(argc, argv);
    std::vector<const char*> pointers;
    pointers.reserve(words.size());
    for (const std::string& word : words)
        pointers.push_back(word.c_str());
    const auto options = readCommandLine(static_cast<int>(pointers.size()), pointers.data(), exitCode);
    if (!options) return exitCode;
    if (!options->make42.empty()) return makeOldCompany(*options);

    std::unique_ptr<WorkbenchApp> app;
    try {
        if (!options->migrate.empty()) return migrateOldCompany(*options);
        app = std::make_unique<WorkbenchApp>(*options);
    } catch (const SignInError& error) {
        complain(error.what());
        return exitUser;
    } catch (const std::exception& error) {
        complain(error.what());
        return exitCompany;
    }
#ifdef __WXGTK__
    // Without a display the toolkit ends the program, and its message does not help the user.
    GdkDisplay* display = gdk_display_open(nullptr);
    if (!display) {
        complain("There is no display to open windows on.");
        return exitDisplay;
    }
    gdk_display_close(display);
#endif
    wxApp::SetInstance(app.release());  // wx deletes it
    int programOnly = 1;
    return wxEntry(programOnly, argv);
}
