#include "workbench/app/SignIn.h"

#include <cstdlib>

#include <wx/msgdlg.h>
#include <wx/textdlg.h>

#include "workbench/app/Console.h"

namespace tsln::workbench {

bool signIn(const CompanySession& session) {
    if (!session.needsPassword()) return true;
    if (const char* password = std::getenv("TSLN_PASSWORD")) {
        if (session.acceptsPassword(password)) return true;
        complain("The password of the user '" + session.user().login + "' is not correct.");
        return false;
    }
    for (;;) {
        wxPasswordEntryDialog dialog(
            nullptr, "Password of " + wxString::FromUTF8(session.user().name) + ":", "Sign In");
        if (dialog.ShowModal() != wxID_OK) return false;
        if (session.acceptsPassword(dialog.GetValue().utf8_string())) return true;
        wxMessageBox("The password is not correct.", "Sign In", wxOK | wxICON_EXCLAMATION);
    }
}

}  // namespace tsln::workbench
