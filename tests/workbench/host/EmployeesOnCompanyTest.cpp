#include <gmock/gmock.h>

#include "entities/EmployeeEditor.h"
#include "security/Roles.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/host/StoredSecret.h"
#include "workbench/sql/SqlSecrets.h"

namespace tsln::workbench {
namespace {

using entities::EmailSettingsDialog;
using entities::EmployeeEditor;
using security::RoleDialog;
using security::RolesScreen;
using testing::ElementsAre;

constexpr std::int32_t owen = 4, terms = 106, update = 16, remove = 32;

void select(ReportControl& rows, std::int32_t ID) {
    const std::size_t row = *rows.findRow(*rows.findRecord(ID));
    rows.userSelect(std::array{row}, row);
}
void setRoles(EmployeeEditor& editor, std::initializer_list<std::string_view> names) {
    ReportControl& rows = editor.roles.rptRoles;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        rows.userCheck(row, 2, std::ranges::find(names, rows.rowText(row, 0)) != names.end());
}
bool can(const CompanySession& session, std::int32_t right) {
    return session.sharedCode()->get("Security").object().call("CanDo", terms, right).toBoolean();
}

struct SecuredCompany : ModuleStage {
    using ModuleStage::ModuleStage;
    template <class Act>
    std::int32_t edit(std::int32_t ID, Act act) {
        desktop.user<EmployeeEditor>("frmEditEmployee", act);
        return library->ShowEditEmployee(ID);
    }
};

TEST(EmployeesOnCompany, ACopiedRoleTakesARightFromTheEmployeeWhoSignsInWithIt) {
    SecuredCompany stage;
    stage.desktop.user<RoleDialog>("frmSecurityRoles_Edit", [](RoleDialog& dialog) {
        select(dialog.rptActivity, terms);
        dialog.optPartial.userSelect();
        dialog.chkDelete.userCheck(false);
        dialog.textBox("txtName").userType("Keeper");
        dialog.cmdOK.userPress();
    });
    stage.desktop.user<RolesScreen>("frmSecurityRoles", [](RolesScreen& list) {
        select(list.rptItems, 1);
        dynamic_cast<Button&>(*list.control("cmdCopy")).userPress();
        EXPECT_EQ(list.rptItems.rowText(*list.rptItems.focusedRow(), 0), "Administrator Copy");
        list.cmdEdit.userPress();
        EXPECT_EQ(list.rptItems.rowText(*list.rptItems.focusedRow(), 0), "Keeper");
        list.cmdClose.userPress();
    });
    stage.library->ShowSecurityRoles();
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM SecurityRoleAccess WHERE SecurityRoleID = 4"), "45");
    EXPECT_EQ(
        stage.value("SELECT Access FROM SecurityRoleAccess WHERE SecurityRoleID = 4 AND Activity = 106"),
        "28");

    EXPECT_EQ(stage.edit(owen,
                         [](EmployeeEditor& editor) {
                             setRoles(editor, {"Keeper"});
                             editor.txtPassword.userType("t0psecret");
                             editor.txtConfirm.userType("t0psecret");
                             editor.cmdOK.userPress();
                         }),
              owen);
    stage.run("INSERT INTO Terms (Terms) VALUES ('Net 30')");

    CompanySession other(stage.folder.file("test.company"), "owen", stage.ui);
    EXPECT_TRUE(other.needsPassword());
    EXPECT_TRUE(other.acceptsPassword("t0psecret"));
    EXPECT_FALSE(other.acceptsPassword("T0psecret") || other.acceptsPassword(""));
    EXPECT_TRUE(can(other, update));
    EXPECT_FALSE(can(other, remove));
    stage.library->Initialize(other.sharedCode());
    stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
        select(list.rptItems, list.rptItems.id(0));
        EXPECT_TRUE(list.cmdEdit.enabled());
        EXPECT_FALSE(list.cmdDelete.enabled());
    });
    stage.library->ShowTerms();
    stage.library->Initialize(stage.session->sharedCode());
}

TEST(EmployeesOnCompany, AnEmployeeIsAddedAndReadBack) {
    SecuredCompany stage;
    stage.desktop.answers = {MessageAnswer::Yes};  // the default sales rep
    const std::int32_t ID = stage.edit(0, [&](EmployeeEditor& editor) {
        editor.textBox("txtFirstName").userType("Zo\xC3\xAB");
        editor.textBox("txtLastName").userType("O'Neil");
        editor.checkBox("chkSalesRep").userCheck(true);
        editor.addresses.txtShipToAddress.userType("9 Quay Rd\r\nMerriden Falls, WI 53099\r\nUSA");
        setRoles(editor, {"Sales"});
        editor.comboBox("cboEmailMethod").userChoose(1);
        stage.desktop.user<EmailSettingsDialog>("frmEmailSettings", [](EmailSettingsDialog& dialog) {
            dialog.cboPreset.userChoose(0);
            dialog.txtPassword.userType("m\xC3\xA4il pass");
            dialog.cmdOK.userPress();
        });
        editor.cmdEmailSettings.userPress();
        editor.cmdOK.userPress();
    });
    ASSERT_GT(ID, 0);
    const std::string where = " FROM Employees WHERE ID = " + std::to_string(ID);
    EXPECT_EQ(
        stage.value("SELECT FirstName + '|' + LastName + '|' + EmailSMTPServer + '|' + PasswordHash" + where),
        "Zo\xC3\xAB|O'Neil|smtp.aol.com|");
    EXPECT_EQ(readSecret(stage.value("SELECT EmailSMTPPassword" + where)), "m\xC3\xA4il pass");
    EXPECT_EQ(stage.value("SELECT OptionValue FROM CompanyOptions WHERE OptionName = 'DefaultSalesRep'"),
              std::to_string(ID));
    stage.edit(ID, [](EmployeeEditor& editor) {
        EXPECT_EQ(editor.txtPassword.text(), "");
        EXPECT_EQ(editor.addresses.txtShipToAddress.text(), "9 Quay Rd\r\nMerriden Falls, WI 53099\r\nUSA");
        EXPECT_EQ(editor.roles.tickedCount(), 1U);
        editor.textBox("txtNotes").userType("new");
        editor.cmdOK.userPress();
    });
    EXPECT_THAT(stage.history(Operation::ShowEditEmployee, ID),
                ElementsAre("Employee updated:\r\nNotes:  to new", "Employee added."));
}

TEST(EmployeesOnCompany, StatementsAreShownWithoutTheirSecrets) {
    const std::pair<const char*, const char*> cases[] = {
        {"UPDATE Employees SET a = 'x', PasswordHash = 'h''h', b = 'y' WHERE ID = 1",
         "UPDATE Employees SET a = 'x', PasswordHash = '(hidden)', b = 'y' WHERE ID = 1"},
        {"INSERT INTO Employees (a, [passwordhash], EmailSMTPPassword) VALUES ('x', 'h', 's')",
         "INSERT INTO Employees (a, [passwordhash], EmailSMTPPassword) VALUES ('x', '(hidden)', '(hidden)')"},
        {"INSERT INTO E (PasswordHash, a) VALUES (UPPER('h'), 'x'), ('i', 'y')",
         "INSERT INTO E (PasswordHash, a) VALUES (UPPER('(hidden)'), 'x'), ('(hidden)', 'y')"},
        {"SELECT ID FROM Employees WHERE PASSWORDHASH IN ('h', 'i') AND a = 'x'",
         "SELECT ID FROM Employees WHERE PASSWORDHASH IN ('(hidden)', '(hidden)') AND a = 'x'"},
        {"UPDATE Employees SET PasswordHash = 'h", "(hidden)"},
        {"SELECT 'PasswordHash = ''h'''", "SELECT 'PasswordHash = ''h'''"},
    };
    for (const auto& [statement, shown] : cases) {
        EXPECT_TRUE(namesSecrets(statement));
        EXPECT_EQ(withoutSecrets(statement), shown);
    }
    EXPECT_FALSE(namesSecrets("SELECT Password FROM Employees"));
    // Errors keep their text unless they quote a value.
    constexpr auto wrong = "UPDATE Employees SET PasswordHash = [h4sh], Phone1 = 'in' WHERE ID = 1";
    EXPECT_EQ(withoutSecrets(wrong),
              "UPDATE Employees SET PasswordHash = [(hidden)], Phone1 = 'in' WHERE ID = 1");
    for (const char* kept : {"The company is in use by another program.", "no such table: Staff"})
        EXPECT_EQ(errorWithoutSecrets(wrong, kept), kept);
    for (const char* quoting :
         {"no such column: h4sh", "near \"h4sh\": syntax error", "Invalid column name 'h4sh'."})
        EXPECT_EQ(errorWithoutSecrets(wrong, quoting), "A statement about passwords failed.");
}

TEST(EmployeesOnCompany, AProtectedTextIsReadByTheHostAlone) {
    for (const std::string& text :
         {std::string("x"), std::string("p\xC3\xA4ss'word"), std::string(500, 'y')}) {
        const std::string stored = protectSecret(text);
        EXPECT_EQ(readSecret(stored), text);
        EXPECT_NE(protectSecret(text), stored) << "equal passwords look different";
        std::string damaged = stored;
        damaged[40] = damaged[40] == '0' ? '1' : '0';
        for (const std::string& wrong : {damaged, stored.substr(2), std::string("plain"), stored + "00"})
            EXPECT_THROW(readSecret(wrong), HostError);
    }
    EXPECT_EQ(protectSecret("") + readSecret(""), "");
}

TEST(EmployeesOnCompany, RightsFollowTheRolesAtOnce) {
    SecuredCompany stage;
    EXPECT_TRUE(can(*stage.session, remove));
    stage.desktop.user<RoleDialog>("frmSecurityRoles_Edit", [](RoleDialog& dialog) {
        select(dialog.rptActivity, terms);
        dialog.optNone.userSelect();
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditSecurityRole(1), 1);
    EXPECT_FALSE(can(*stage.session, update));
    EXPECT_EQ(
        stage.value("SELECT COUNT(*) FROM SecurityRoleAccess WHERE SecurityRoleID = 1 AND Activity = 106"),
        "0");

    stage.ui.replies = {{MessageAnswer::Yes}};
    stage.edit(1, [](EmployeeEditor& editor) {
        setRoles(editor, {});
        editor.textBox("txtFirstName").userType("Danae");
        editor.cmdOK.userPress();
    });
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM EmployeeSecurityRoles WHERE EmployeeID = 1"), "0");
    EXPECT_FALSE(stage.part("Security")->call("CanDo", 501, 4).toBoolean());
    EXPECT_EQ(stage.session->user().name, "Danae Whitfield");
}

TEST(EmployeesOnCompany, AnExportedRoleIsImportedWithItsAccess) {
    SecuredCompany stage;
    const std::string file = stage.folder.file("role.xml");
    stage.desktop.files = {file};
    stage.desktop.user<RoleDialog>("frmSecurityRoles_Edit",
                                   [](RoleDialog& dialog) { dialog.cmdExport.userPress(); });
    stage.library->ShowEditSecurityRole(3);
    const std::string sum =
        "SELECT COUNT(*) + SUM(Access) * 1000 FROM SecurityRoleAccess a INNER JOIN SecurityRoles r ON r.ID = a.SecurityRoleID WHERE r.Name = 'Sales'";
    const std::string before = stage.value(sum);
    stage.run("DELETE FROM SecurityRoles WHERE ID = 3");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM SecurityRoleAccess WHERE SecurityRoleID = 3"), "0");
    const ObjectPtr engine = stage.session->createObject("tslniee5.Engine");
    engine->call("Initialize", stage.session->sharedCode());
    EXPECT_TRUE(engine->call("ImportFile", file).toBoolean()) << stage.lastEvent();
    EXPECT_EQ(stage.value(sum), before);
}

}  // namespace
}  // namespace tsln::workbench
