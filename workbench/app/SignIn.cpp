#include "workbench/app/SignIn.h"

#include <cstdlib>

#include <wx/msgdlg.h>
#include <wx/textdlg.h>

namespace tsln::workbench {

bool signInUnasked(const CompanySession& session) {
    if (!session.needsPassword()) return true;
    const char* password = std::getenv("TSLN_PASSWORD");
    if (!password) return false;
    if (session.acceptsPassword(password)) return true;
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
