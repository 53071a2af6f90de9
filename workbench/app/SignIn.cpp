#include "workbench/app/SignIn.h"

#include <cstdlib>
#include <optional>

#include <wx/msgdlg.h>
#include <wx/textdlg.h>
#include <wx/utils.h>

namespace tsln::workbench {
namespace {

constexpr auto passwordVariable = "TSLN_PASSWORD";

}  // namespace

bool signInUnasked(const CompanySession& session) {
    // Programs that the workbench starts must not inherit the password.
    const char* given = std::getenv(passwordVariable);
    const std::optional<std::string> password = given ? std::optional<std::string>(given) : std::nullopt;
    wxUnsetEnv(passwordVariable);
    if (!session.needsPassword()) return true;
    if (!password) return false;
    if (session.acceptsPassword(*password)) return true;
    throw SignInError("The password of the user '" + session.user().login + "' is not correct.");
}

bool askForPassword(const CompanySession& session) {
    const wxString question = "Password of " + wxString::FromUTF8(session.user().name) + ":";
    for (;;) {
        wxPasswordEntryDialog dialog(nullptr, question, "Sign In");
        if (dialog.ShowModal() != wxID_OK) return false;
        if (session.acceptsPassword(dialog.GetValue().utf8_string())) return true;
        wxMessageBox("The password is not correct.", "Sign In", wxOK | wxICON_EXCLAMATION);
    }
}

}  // namespace tsln::workbench
