#include "workbench/tour/RolesTour.h"

#include <memory>

#include <wx/defs.h>
#include <wx/process.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>
#include <wx/window.h>

#include "workbench/host/TextOf.h"
#include "workbench/tour/TourSteps.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

constexpr const char* password = "terms only";

int number(Company& company, const std::string& sql) {
    return company.scalar(sql).toLong();
}

void pressTimes(int key, int times, int modifiers = wxMOD_NONE) {
    for (int i = 0; i < times; ++i)
        press(key, modifiers);
}

/// Tells when a started program has ended.
class Ending : public wxProcess {
  public:
    explicit Ending(std::shared_ptr<bool> ended) : ended_(std::move(ended)) {}
    void OnTerminate(int, int) override {
        *ended_ = true;
        delete this;
    }

  private:
    std::shared_ptr<bool> ended_;
};

/// Starts this program once more, in which the user signs in and opens the terms.
std::shared_ptr<bool> startAs(const std::string& user, const std::string& companyFile) {
    const std::string program = wxStandardPaths::Get().GetExecutablePath().utf8_string();
    auto ended = std::make_shared<bool>(false);
    wxSetEnv("TSLN_PASSWORD", password);
    const long started = wxExecute(wxString::FromUTF8("\"" + program + "\" --company \"" + companyFile +
                                                      "\" --user " + user + " --show ShowTerms"),
                                   wxEXEC_ASYNC, new Ending(ended));
    wxUnsetEnv("TSLN_PASSWORD");
    if (started <= 0) throw ScriptFailure("The second workbench could not be started.");
    return ended;
}

}  // namespace

Script rolesTour(Company& company, std::string folder) {
    Album album(folder, "roles-");
    co_await untilActive("Tessaline Workbench");
    press('a', wxMOD_CONTROL);
    type("ShowSecurityRoles");
    co_await settled();
    press(WXK_RETURN);
    co_await untilActive("Security Roles");
    co_await settled();
    press(WXK_HOME);
    co_await settled();
    press('y', wxMOD_ALT);
    co_await until("the role is copied", [&] {
        return number(company, "SELECT COUNT(*) FROM SecurityRoles WHERE Name = 'Administrator Copy'") == 1;
    });
    co_await settled();
    album.take("copied", "Copy: a second role with all rights of the administrator");

    press('e', wxMOD_ALT);
    co_await untilActive("Edit Security Role");
    co_await settled();
    type("Keeper of terms");
    pressTimes(WXK_TAB, 2);
    co_await settled();
    for (int row = 0; row < 10 && !wxWindow::FindWindowByLabel("Permissions for Terms"); ++row) {
        press(WXK_DOWN);
        co_await settled();
    }
    press('p', wxMOD_ALT);
    co_await settled();
    press('l', wxMOD_ALT);
    co_await settled();
    album.take("permissions", "the copy loses the right to delete terms");
    press('n', wxMOD_ALT);
    press(WXK_RETURN);
    co_await untilActive("Security Roles");
    expect(
        number(
            company,
            "SELECT COUNT(*) FROM SecurityRoleAccess a INNER JOIN SecurityRoles r ON r.ID = a.SecurityRoleID "
            "WHERE r.Name = 'Keeper of terms' AND a.Activity = 106 AND a.Access = 28") == 1,
        "the role may do all with terms but delete them");
    press(WXK_ESCAPE);

    co_await untilActive("Tessaline Workbench");
    press('a', wxMOD_CONTROL);
    type("ShowEditEmployee");
    co_await settled();
    press('b', wxMOD_ALT);
    co_await untilActive("Employees");
    co_await settled();
    press(WXK_HOME);
    press(WXK_DOWN);  // Owen Marchbanks
    co_await settled();
    press(WXK_RETURN);
    co_await untilActive("Edit Employee");
    co_await settled();
    album.take("employee", "the employee editor");
    press(WXK_PAGEDOWN, wxMOD_CONTROL);
    co_await settled();
    press('p', wxMOD_ALT);
    type(password);
    press(WXK_TAB);
    type(password);
    press(WXK_TAB);
    co_await settled();
    for (const int key : {int(WXK_DOWN), int(WXK_DOWN), int(WXK_SPACE), int(WXK_DOWN), int(WXK_SPACE)}) {
        press(key);  // the first one goes to the first row
        co_await settled();
    }
    album.take("login", "a password, and the new role instead of the old one");
    press(WXK_RETURN);
    co_await untilActive("Tessaline");
    co_await settled();
    album.take("default-rep", "the company has no default sales rep yet");
    press(WXK_RETURN);
    co_await untilActive("Employees");
    expect(
        number(
            company,
            "SELECT COUNT(*) FROM EmployeeSecurityRoles e INNER JOIN SecurityRoles r ON r.ID = e.SecurityRoleID "
            "WHERE e.EmployeeID = 4 AND r.Name = 'Keeper of terms'") == 1 &&
            number(company, "SELECT COUNT(*) FROM EmployeeSecurityRoles WHERE EmployeeID = 4") == 1,
        "the employee has the new role alone");
    press(WXK_ESCAPE);

    co_await untilActive("Tessaline Workbench");
    const int terms = number(company, "SELECT COUNT(*) FROM Terms");
    const auto ended = startAs("owen", company.path());
    co_await until("the second workbench has the keyboard", [] { return activeWindowTitle().empty(); });
    co_await pause(std::chrono::milliseconds(2000));
    press(WXK_HOME);
    co_await pause(std::chrono::milliseconds(500));
    album.take("signed-in", "signed in as this employee: Delete is disabled");
    press('d', wxMOD_ALT);
    press(WXK_DELETE);
    co_await pause(std::chrono::milliseconds(500));
    expect(number(company, "SELECT COUNT(*) FROM Terms") == terms && !*ended, "nothing was deleted");
    press(WXK_ESCAPE);
    const bool* const hasEnded = ended.get();
    co_await until("the second workbench has ended", [hasEnded] { return *hasEnded; });
    co_await untilActive("Tessaline Workbench");
}

}  // namespace tsln::workbench
