#include <cstdio>
#include <memory>

#include "workbench/app/WorkbenchApp.h"
#include "workbench/host/SecurityObject.h"

#ifdef __WXGTK__
#include <gdk/gdk.h>
#endif

using namespace tsln::workbench;

int main(int argc, char** argv) {
    int exitCode = 0;
    const auto options = readCommandLine(argc, argv, exitCode);
    if (!options) return exitCode;

    std::unique_ptr<WorkbenchApp> app;
    try {
        app = std::make_unique<WorkbenchApp>(*options);
    } catch (const SignInError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return exitUser;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return exitCompany;
    }
#ifdef __WXGTK__
    // The toolkit itself ends the program over a missing display, without a word that helps.
    GdkDisplay* display = gdk_display_open(nullptr);
    if (!display) {
        std::fprintf(stderr, "There is no display to open windows on.\n");
        return exitDisplay;
    }
    gdk_display_close(display);
#endif
    wxApp::SetInstance(app.release());  // wx deletes it
    int programOnly = 1;
    return wxEntry(programOnly, argv);
}
