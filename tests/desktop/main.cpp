#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>

namespace {

/// Reports a failed assertion of the toolkit as a test failure instead of a message box.
void onToolkitCheck(const wxString& file, int line, const wxString&, const wxString& condition,
                    const wxString& message) {
    ADD_FAILURE() << file << ":" << line << ": " << condition << " " << message;
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    wxApp::SetInstance(new wxApp);
    if (!wxEntryStart(argc, argv)) return 1;
    wxTheApp->CallOnInit();
    wxTheApp->SetExitOnFrameDelete(false);
    wxSetAssertHandler(onToolkitCheck);
    const int result = RUN_ALL_TESTS();
    wxEntryCleanup();
    return result;
}
