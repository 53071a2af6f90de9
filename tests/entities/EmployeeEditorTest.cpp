#include "doubles/Stage.h"
#include "entities/EmployeeEditor.h"

namespace tsln::test {
namespace {

using namespace entities;

constexpr auto frmEditEmployee = "frmEditEmployee";
constexpr auto frmEmailSettings = "frmEmailSettings";
constexpr auto noDuties =
    "You have not marked this employee as a sales rep, installer or designer. You won't be able to do much with this employee without at least one of these settings. Are you sure you want to continue?";
constexpr auto askDefault = "Do you want to make this employee the default sales rep?";
constexpr auto loginAgain = "You must log out and then back in for the security changes to take affect.";

std::string employee(const std::string& first, const std::string& hash = "0ldha'sh") {
    return "<Records><Record><ID>7</ID><FirstName>" + first +
           "</FirstName><LastName>Dell</LastName><MiddleInitial>B</MiddleInitial><Phone1Label>Hut</Phone1Label>"
           "<Phone1>1</Phone1><Email1Label>Home</Email1Label><Email1>a@b</Email1><SalesRep>1</SalesRep><Installer>0</Installer>"
           "<Designer>0</Designer><Active>1</Active><Canlogin>1</Canlogin><Username>ann</Username><PasswordHash>" +
           hash +
           "</PasswordHash><Notes>n</Notes><ValidateAddresses>1</ValidateAddresses><EmailMethod>2</EmailMethod>"
           "<EmailSMTPServer>mail.x</EmailSMTPServer><EmailSenderAddress>a@x</EmailSenderAddress><EmailSMTPAuth>1</EmailSMTPAuth>"
           "<EmailSMTPUserName>u</EmailSMTPUserName><EmailSMTPPassword>s3aled</EmailSMTPPassword><EmailSMTPPort>465</EmailSMTPPort>"
           "<EmailSMTPTimeout>20</EmailSMTPTimeout><EmailSMTPAuthMethod>LOGIN</EmailSMTPAuthMethod><EmailSMTPSSL>1</EmailSMTPSSL>"
           "<EmailSMTPTLS>0</EmailSMTPTLS><Exported>0</Exported></Record></Records>";
}

/// A host with three roles, and with the employee 7, who has the role 2 and two addresses. A default sales rep is set.
struct EmployeeStage : Stage {
    EmployeeStage() { furnish(*this); }
    static void furnish(Stage& stage) {
        stage.host->rows("SELECT * FROM Employees WHERE ID = 7", employee("Ann"));
        stage.host->rows(
            "SELECT * FROM SecurityRoles ORDER BY Name",
            "<Records><Record><ID>1</ID><Name>Admin</Name></Record><Record><ID>2</ID><Name>Sales</Name></Record>"
            "<Record><ID>3</ID><Name>Viewer</Name></Record></Records>");
        stage.host->rows("SELECT * FROM EmployeeSecurityRoles WHERE EmployeeID = 7",
                         "<Records><Record><SecurityRoleID>2</SecurityRoleID></Record></Records>");
        stage.host->rows(
            "SELECT * FROM EmployeeAddresses WHERE EmployeeID = 7",
            "<Records><Record><ID>5</ID><AddressLabel>Home</AddressLabel><Address1>1 Mill St</Address1></Record>"
            "<Record><ID>6</ID><AddressLabel>Work</AddressLabel><Address1>2 Oak</Address1></Record></Records>");
        stage.host->on("Options.GetCompanyOption",
                       [](Arguments a) { return a[0].toText() == "DefaultSalesRep" ? Variant("3") : a[2]; });
        stage.host->on("Database.ExecuteNonQueryWithID", Variant(8));
        stage.host->on("Security.UserId", Variant(1));
        stage.host->on("GetSHA2", [](Arguments a) { return Variant("sha:" + a[0].toText()); });
        stage.host->on("ShowMessageStyle1", Variant(6));  // Yes
    }
    template <class Act>
    std::int32_t edit(std::int32_t ID, Act act) {
        desktop.user<EmployeeEditor>(frmEditEmployee, act);
        return library->ShowEditEmployee(ID);
    }
};

void tick(EmployeeEditor& editor, const std::string& role, bool ticked = true) {
    ReportControl& rows = editor.roles.rptRoles;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        if (rows.rowText(row, 0) == role) rows.userCheck(row, 2, ticked);
    }
}
/// Fills in what a new employee needs, with a login.
void fill(EmployeeEditor& editor) {
    editor.textBox("txtFirstName").userType(" Bo ");
    editor.textBox("txtLastName").userType("O'Hara");
    editor.checkBox("chkInstaller").userCheck(true);
    editor.checkBox("chkCanLogin").userCheck(true);
    editor.textBox("txtUserName").userType("bo");
    editor.txtPassword.userType(" pa'ss ");
    editor.txtConfirm.userType("pa'ss");
    tick(editor, "Viewer");
    editor.comboBox("cboEmailMethod").userChoose(0);
}

TEST(EmployeeEditor, ANewEmployeeIsWrittenWithADigestRolesAndAddresses) {
    EmployeeStage stage;
    EXPECT_EQ(
        stage.edit(0,
                   [](EmployeeEditor& editor) {
                       EXPECT_EQ(editor.caption(), "New Employee");
                       EXPECT_TRUE(editor.checkBox("chkActive").checked() && editor.txtPassword.password);
                       EXPECT_EQ(editor.comboBox("cboPhone3Label").text(), "Mobile");
                       fill(editor);
                       editor.textBox("txtNotes").userType("<password>");
                       editor.addresses.txtShipToAddress.userType("9 Quay");
                       editor.cmdOK.userPress();
                   }),
        8);
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre(
            "INSERT INTO Employees (FirstName, LastName, MiddleInitial, Phone1Label, Phone1, Phone2Label, Phone2, Phone3Label, Phone3, Email1Label, Email1, Email2Label, Email2, SalesRep, Installer, Designer, Active, Canlogin, Username, PasswordHash, Notes, ValidateAddresses, EmailMethod,EmailSMTPServer,EmailSenderAddress,EmailSMTPAuth,EmailSMTPUserName,EmailSMTPPassword,EmailSMTPPort,EmailSMTPTimeout,EmailSMTPAuthMethod,EmailSMTPSSL,EmailSMTPTLS,Exported)  VALUES ('Bo', 'O''Hara', '', 'Home', '', 'Work', '', 'Mobile','', 'Home', '', 'Work', '' ,0, 1, 0, 1, 1, 'bo', 'sha:pa''ss', '<password>', 0, 1, '','',0,'','',587,30,'',0,0,0)"));
    EXPECT_THAT(
        stage.onConnection(),
        ElementsAre(
            "INSERT INTO EmployeeAddresses (EmployeeID, AddressLabel, Address1, Address2, City, State, Zip, Country) VALUES(8, 'Home', '9 Quay', '', '', '', '', '')"));
    EXPECT_THAT(stage.executed(),
                ElementsAre("INSERT INTO EmployeeSecurityRoles (EmployeeID, SecurityRoleID) VALUES(8,3)"));
    EXPECT_THAT(stage.host->callsOf("Activity.RecordEmployeeActivity"), ElementsAre("8, Employee added."));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), ElementsAre("2, Employee 'Bo O'Hara was added."));
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre("5001, 8"));
    EXPECT_THAT(stage.host->callsOf("Security.ReInitializeUser"), ElementsAre("1"));
    EXPECT_FALSE(stage.told());
}

TEST(EmployeeEditor, AnUntouchedPasswordStaysAndNothingOfItIsShown) {
    EmployeeStage stage;
    stage.host->rows("SELECT * FROM [Employees] WHERE ID = 7", employee("Ann"));
    EXPECT_EQ(stage.edit(7,
                         [&](EmployeeEditor& editor) {
                             EXPECT_EQ(editor.caption(), "Edit Employee");
                             EXPECT_EQ(editor.txtPassword.text(), "(HIDDENPASSWORD)");
                             EXPECT_EQ(editor.lblEmailSettings.caption(), "Mail server: mail.x, port 465");
                             editor.comboBox("cboEmailMethod").userChoose(0);
                             EXPECT_EQ(editor.lblEmailSettings.caption(), "");
                             editor.comboBox("cboEmailMethod").userChoose(1);
                             EXPECT_EQ(editor.addresses.txtShipToAddress.text().substr(0, 9), "1 Mill St");
                             editor.addresses.Hyperlink_DeleteAddress();
                             tick(editor, "Sales", false);
                             tick(editor, "Admin");
                             tick(editor, "Viewer");
                             tick(editor, "Viewer", false);
                             stage.host->on("Database.ExecuteNonQuery", [&](Arguments) {
                                 stage.host->rows("SELECT * FROM [Employees] WHERE ID = 7",
                                                  employee("Anna", "newdigest"));
                                 return Variant(true);
                             });
                             editor.textBox("txtFirstName").userType("Anna");
                             editor.cmdOK.userPress();
                         }),
              7);
    EXPECT_THAT(stage.host->callsOf("GetSHA2"), IsEmpty());
    EXPECT_THAT(
        stage.executed(),
        ElementsAre(
            "UPDATE Employees SET FirstName = 'Anna', LastName = 'Dell', MiddleInitial = 'B', Phone1Label = 'Hut', Phone1 = '1', Phone2Label = '', Phone2 = '', Phone3Label = '', Phone3 = '', Email1Label = 'Home', Email1 = 'a@b', Email2Label = '', Email2 = '', SalesRep = 1, Installer = 0, Designer = 0, Active = 1, Canlogin = 1, Username = 'ann', PasswordHash = '0ldha''sh', Notes = 'n', ValidateAddresses = 1, EmailMethod = 2,EmailSMTPServer='mail.x',EmailSenderAddress='a@x',EmailSMTPAuth=1,EmailSMTPUserName='u',EmailSMTPPassword='s3aled',EmailSMTPPort=465,EmailSMTPTimeout=20,EmailSMTPAuthMethod='LOGIN',EmailSMTPSSL=1,EmailSMTPTLS=0,Exported=0 WHERE ID = 7",
            "INSERT INTO EmployeeSecurityRoles (EmployeeID, SecurityRoleID) VALUES(7,1)",
            "DELETE FROM EmployeeSecurityRoles WHERE EmployeeID = 7 AND SecurityRoleID = 2"));
    EXPECT_THAT(
        stage.onConnection(),
        ElementsAre(
            "DELETE FROM EmployeeAddresses WHERE ID = 5",
            "UPDATE EmployeeAddresses SET AddressLabel = 'Work', Address1 = '2 Oak', Address2 = '', City = '', State = '', Zip = '', Country = '' WHERE ID = 6"));
    EXPECT_THAT(
        stage.host->callsOf("Activity.RecordEmployeeActivity"),
        ElementsAre("7, Employee updated:\r\nFirstName: Ann to Anna\r\nPasswordHash: (hidden) to (hidden)"));
    EXPECT_THAT(stage.host->callsOf("FixForSQLInsert"), Not(Contains(HasSubstr("ha'sh"))));
    EXPECT_THAT(stage.host->callsOf("FixForSQLInsert"), Not(Contains(HasSubstr("s3aled"))));
}

TEST(EmployeeEditor, EachRefusalNamesItsFieldAndSavesNothing) {
    using Arrange = std::function<void(EmployeeStage&, EmployeeEditor&)>;
    const struct {
        const char* message;
        bool question;
        const char* control;
        int page;
        Arrange arrange;
    } cases[] = {
        {"You must enter a name for this employee.", false, "txtFirstName", 0,
         [](auto&, EmployeeEditor& e) { e.textBox("txtFirstName").userType("  "); }},
        {"This name is already in use.", false, "txtFirstName", 0,
         [](auto&, EmployeeEditor& e) { e.textBox("txtFirstName").userType("(administrator)"); }},
        {"You must supply a unique user name for this employee.", false, "txtUserName", 1,
         [](auto&, EmployeeEditor& e) { e.textBox("txtUserName").userType(" "); }},
        {"An employee with the user name 'bo' already exists.", false, "txtUserName", 1,
         [](EmployeeStage& s, auto&) {
             s.host->on("Common.RecordExists",
                        [](Arguments a) { return Variant(a[1].toText() == "UserName"); });
         }},
        {noDuties, true, "chkSalesRep", 0,
         [](auto&, EmployeeEditor& e) { e.checkBox("chkInstaller").userCheck(false); }},
        {"Passwords must be at least 4 characters long.", false, "txtPassword", 1,
         [](auto&, EmployeeEditor& e) { e.txtPassword.userType(" \xC3\xA9\xC3\xA9\xC3\xA9 "); }},
        {"Passwords must be at least 4 characters long.", false, "txtPassword", 1,
         [](auto&, EmployeeEditor& e) { e.txtPassword.userType(""); }},
        {"The password has not been correctly confirmed. Please check the password and confirm fields.",
         false, "txtConfirm", 1, [](auto&, EmployeeEditor& e) { e.txtConfirm.userType("PA'SS"); }},
        {"You must choose an email sending method.", false, "cboEmailMethod", 2,
         [](auto&, EmployeeEditor& e) { e.comboBox("cboEmailMethod").setListIndex(-1); }},
    };
    for (const auto& c : cases) {
        EmployeeStage stage;
        stage.edit(0, [&](EmployeeEditor& editor) {
            fill(editor);
            c.arrange(stage, editor);
            editor.TabControl1.userSelect(3);
            editor.cmdOK.userPress();
            EXPECT_TRUE(editor.shown()) << c.message;
            EXPECT_EQ(editor.focusedControl(), editor.control(c.control)) << c.message;
            EXPECT_EQ(editor.TabControl1.selected(), c.page) << c.message;
        });
        EXPECT_THAT(stage.desktop.boxes,
                    ElementsAre(Box{c.message, c.question ? MessageButtons::YesNo : MessageButtons::Ok,
                                    c.question ? MessageIcon::Question : MessageIcon::Exclamation}));
        EXPECT_THAT(stage.inserted(), IsEmpty());
    }
}

TEST(EmployeeEditor, NoRoleAndSeveralRolesAreAskedAbout) {
    const struct {
        std::vector<std::string> roles;
        const char* begin;
        const char* end;
    } cases[] = {
        {{},
         "You have not selected any security roles for this employee.",
         "If you don't select at least one security role then this employee won't be able to do much with the software. Are you sure you want to continue?"},
        {{"Admin", "Viewer"},
         "You have selected more than one security role for this employee. It is recommended that you only select one security role.",
         "Selecting multiple security roles makes it difficult to manage which settings are being applied. Are you sure you want to continue?"},
    };
    for (const auto& c : cases) {
        for (const bool yes : {true, false}) {
            EmployeeStage stage;
            stage.host->on("ShowMessageStyle1", Variant(yes ? 6 : 7));
            EXPECT_EQ(stage.edit(0,
                                 [&](EmployeeEditor& editor) {
                                     fill(editor);
                                     tick(editor, "Viewer", false);
                                     for (const std::string& role : c.roles)
                                         tick(editor, role);
                                     editor.cmdOK.userPress();
                                     if (!yes) {
                                         EXPECT_EQ(editor.focusedControl(), editor.control("rptRoles"));
                                     }
                                 }),
                      yes ? 8 : 0);
            EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"),
                        ElementsAre(std::string(c.begin) + ", " + c.end + ", 4"));
            EXPECT_THAT(stage.executed(), SizeIs(yes ? c.roles.size() : 0));
        }
    }
}

TEST(EmployeeEditor, WhoMayLogInHasAPasswordOrHadNone) {
    const struct {
        const char* what;
        std::int32_t ID;
        const char* hash;  // stored
        bool logsIn;
        const char* typed;
        bool saved;
        const char* written;
    } cases[] = {
        {"no login needs no password", 0, "", false, "", true, "''"},
        {"a password is kept for later", 0, "", false, "abcd", true, "'sha:abcd'"},
        {"a stored password is replaced", 7, "x", true, "abcd", true, "'sha:abcd'"},
        {"a stored password cannot be emptied", 7, "x", true, "", false, ""},
        {"but where there is no login", 7, "x", false, "", true, "''"},
        {"who logged in without one may go on", 7, "", true, "", true, "''"},
        {"the marker typed where none is stored is a password", 0, "", true, "(HIDDENPASSWORD)", true,
         "'sha:(HIDDENPASSWORD)'"},
    };
    for (const auto& c : cases) {
        EmployeeStage stage;
        stage.host->rows("SELECT * FROM Employees WHERE ID = 7", employee("Ann", c.hash));
        const auto ID = stage.edit(c.ID, [&](EmployeeEditor& editor) {
            if (c.ID == 0) fill(editor);
            editor.checkBox("chkCanLogin").userCheck(c.logsIn);
            editor.txtPassword.userType(c.typed);
            editor.txtConfirm.userType(c.typed);
            editor.cmdOK.userPress();
        });
        EXPECT_EQ(ID > 0, c.saved) << c.what;
        if (!c.saved) continue;
        const std::string statement = c.ID == 0 ? stage.inserted().front() : stage.executed().front();
        EXPECT_THAT(statement, HasSubstr(c.ID == 0 ? ", " + std::string(c.written) + ", '',"
                                                   : "PasswordHash = " + std::string(c.written)))
            << c.what;
    }
}

TEST(EmployeeEditor, TheBuiltInAdministratorKeepsItsName) {
    EmployeeStage stage;
    stage.host->rows("SELECT * FROM Employees WHERE ID = 7", employee("(Administrator)"));
    EXPECT_EQ(stage.edit(7,
                         [](EmployeeEditor& editor) {
                             EXPECT_FALSE(editor.textBox("txtFirstName").enabled());
                             editor.checkBox("chkSalesRep").userCheck(false);
                             editor.cmdOK.userPress();
                         }),
              7)
        << "the name is no duplicate, and duties are not asked about";
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
}

TEST(EmployeeEditor, ACompanyWithoutADefaultSalesRepIsOfferedThisOne) {
    const struct {
        const char* stored;
        bool rep, yes;
        std::size_t asked, set, told;
    } cases[] = {{"", true, true, 1, 1, 0},
                 {"-1", true, false, 1, 0, 1},
                 {"0", false, true, 0, 0, 1},
                 {"3", true, true, 0, 0, 0},
                 {"none", true, true, 1, 1, 0}};
    for (const auto& c : cases) {
        EmployeeStage stage;
        stage.host->on("Options.GetCompanyOption", [&](Arguments a) {
            return a[0].toText() == "DefaultSalesRep" ? Variant(c.stored) : a[2];
        });
        stage.desktop.answers = {c.yes ? MessageAnswer::Yes : MessageAnswer::No};
        EXPECT_EQ(stage.edit(0,
                             [&](EmployeeEditor& editor) {
                                 fill(editor);
                                 editor.checkBox("chkSalesRep").userCheck(c.rep);
                                 editor.cmdOK.userPress();
                             }),
                  8);
        EXPECT_THAT(stage.desktop.boxes, SizeIs(c.asked));
        if (c.asked) {
            EXPECT_EQ(stage.desktop.boxes[0].text, askDefault);
        }
        EXPECT_EQ(
            stage.host->callsOf("Options.SetCompanyOption"),
            c.set ? std::vector<std::string>{"DefaultSalesRep, Customers, 8"} : std::vector<std::string>{});
        EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), SizeIs(c.told));
        if (c.told) {
            EXPECT_THAT(
                stage.host->callsOf("ShowMessageStyle1"),
                Each(HasSubstr(
                    "You don't have a default sales rep selected in Application Settings. If you don't select a default rep then the (Administrator) user will be used as the default sales rep for new customers. It's recommended that you change the default sales rep to something other than the Administrator user.")));
        }
    }
}

TEST(EmployeeEditor, TheSignedInUserIsReadAgainAndToldToLogIn) {
    EmployeeStage stage;
    stage.host->on("Security.UserId", Variant(7));
    stage.edit(7, [](EmployeeEditor& editor) {
        tick(editor, "Sales", false);
        editor.cmdOK.userPress();
    });
    EXPECT_THAT(stage.host->callsOf("Security.ReInitializeUser"), ElementsAre("7"));
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(information(loginAgain)));
    EXPECT_THAT(stage.executed(),
                Contains("DELETE FROM EmployeeSecurityRoles WHERE EmployeeID = 7 AND SecurityRoleID = 2"));
}

TEST(EmployeeEditor, MailSettingsComeFromAProviderAndThePasswordIsProtectedByTheHost) {
    EmployeeStage stage;
    stage.host->on("Common.ComplexEncrypt", [](Arguments a) { return Variant("sealed'" + a[0].toText()); });
    stage.desktop.user<EmailSettingsDialog>(frmEmailSettings, [](EmailSettingsDialog& dialog) {
        EXPECT_EQ(dialog.txtPassword.text(), "(HIDDENPASSWORD)");
        dialog.chkAuth.userCheck(false);
        EXPECT_FALSE(dialog.txtPassword.enabled());
        dialog.txtServer.userType(" ");
        dialog.cmdOK.userPress();
        EXPECT_EQ(dialog.focusedControl(), &dialog.txtServer);
        dialog.cboPreset.userChoose(1);
        EXPECT_TRUE(dialog.chkAuth.checked() && dialog.chkTLS.checked() && !dialog.chkSSL.checked());
        dialog.txtTimeout.userType("9999");
        dialog.txtPassword.userType("s3cret");
        dialog.cmdOK.userPress();
    });
    stage.desktop.user<EmailSettingsDialog>(frmEmailSettings, [](EmailSettingsDialog& dialog) {
        dialog.txtServer.userType("lost");
        dialog.cmdCancel.userPress();
    });
    stage.edit(7, [](EmployeeEditor& editor) {
        editor.cmdEmailSettings.userPress();
        editor.cmdEmailSettings.userPress();
        editor.comboBox("cboEmailMethod").userChoose(0);
        EXPECT_FALSE(editor.cmdEmailSettings.enabled());
        editor.cmdOK.userPress();
    });
    EXPECT_THAT(
        stage.executed(),
        Contains(HasSubstr(
            "EmailMethod = 1,EmailSMTPServer='smtp.gmail.com',EmailSenderAddress='a@x',EmailSMTPAuth=1,EmailSMTPUserName='u',EmailSMTPPassword='sealed''s3cret',EmailSMTPPort=587,EmailSMTPTimeout=600,EmailSMTPAuthMethod='LOGIN',EmailSMTPSSL=0,EmailSMTPTLS=1")));
    for (const EmailPreset& preset : emailPresets())
        EXPECT_TRUE(preset.ssl != preset.tls && preset.port > 0) << preset.name;
}

TEST(EmployeeEditor, ATestMessageIsSentWithTheStoredSettingsOfTheUser) {
    for (const auto& [user, edited] : {std::pair(1, 7), {7, 7}, {1, 1}}) {
        EmployeeStage stage;
        stage.host->rows("SELECT * FROM Employees WHERE ID = 1", employee("Ann"));
        stage.host->on("Security.UserId", Variant(user));
        stage.desktop.user<EmailSettingsDialog>(frmEmailSettings, [](EmailSettingsDialog& dialog) {
            dialog.cmdTest.userPress();
            dialog.txtPort.userType("25");
            dialog.cmdTest.userPress();
        });
        stage.edit(edited, [](EmployeeEditor& editor) { editor.cmdEmailSettings.userPress(); });
        std::vector<std::string> sent;
        if (user == edited) {
            sent = {"3, " + std::to_string(user) +
                    ", Test message, This message was sent to test the e-mail settings."};
        }
        EXPECT_EQ(stage.host->callsOf("SendEmailMessageWithTemplateAndUI"), sent);
        EXPECT_THAT(stage.desktop.boxes, SizeIs(sent.size())) << "changed settings must be saved first";
    }
}

TEST(EmployeeEditor, WhatTheCompanyLacksIsNotAskedFor) {
    EmployeeStage stage;
    stage.host->on("Security.CompanyFeatureEnabled", Variant(false));
    EXPECT_EQ(stage.edit(0,
                         [](EmployeeEditor& editor) {
                             fill(editor);
                             editor.comboBox("cboEmailMethod").setListIndex(-1);
                             EXPECT_FALSE(editor.TabControl1.isPageVisible(2));
                             editor.cmdOK.userPress();
                         }),
              8);
}

TEST(EmployeeEditor, FailuresAreToldAndTheRestIsSaved) {
    for (const std::int32_t ID : {0, 7}) {
        EmployeeStage stage;
        stage.host->on("Database.ExecuteNonQuery", Variant(false));
        stage.host->on("Database.ExecuteNonQueryWithID", Variant(0));
        EXPECT_EQ(stage.edit(ID,
                             [&](EmployeeEditor& editor) {
                                 if (ID == 0) fill(editor);
                                 editor.cmdOK.userPress();
                                 EXPECT_TRUE(editor.shown());
                                 EXPECT_EQ(editor.txtPassword.text(), ID == 0 ? "pa'ss" : "(HIDDENPASSWORD)");
                             }),
                  0);
        EXPECT_THAT(stage.failures(), ElementsAre(std::string("The employee '") +
                                                  (ID == 0 ? "Bo O'Hara could not be added., "
                                                           : "Ann Dell could not be updated., ") +
                                                  explanation + ", the database's own words"));
    }
    EmployeeStage stage;
    stage.host->failStatement = "DELETE FROM EmployeeAddresses WHERE ID = 5";
    stage.host->on("Database.ExecuteNonQuery",
                   [](Arguments a) { return Variant(!a[0].toText().starts_with("INSERT")); });
    EXPECT_EQ(stage.edit(7,
                         [](EmployeeEditor& editor) {
                             editor.addresses.Hyperlink_DeleteAddress();
                             tick(editor, "Admin");
                             tick(editor, "Sales", false);
                             editor.cmdOK.userPress();
                         }),
              7);
    EXPECT_THAT(stage.host->callsOf("ShowADOErrorMessage"), SizeIs(1));
    EXPECT_THAT(stage.failures(),
                ElementsAre(HasSubstr("One or more of the security roles could not be saved.")));
    EXPECT_THAT(stage.executed(), SizeIs(3));
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre("5003, 7"));
}

TEST(EmployeeEditor, EveryHostFaultIsReportedAndKeepsTheInput) {
    for (const std::int32_t ID : {0, 7}) {
        sweepFaults(
            [&](Stage& stage) {
                EmployeeStage::furnish(stage);
                stage.desktop.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
                stage.host->on("Options.GetCompanyOption", [](Arguments a) { return a[2]; });
                stage.host->on("Security.UserId", Variant(7));
                stage.desktop.user<EmailSettingsDialog>(frmEmailSettings, [](EmailSettingsDialog& dialog) {
                    dialog.cmdTest.userPress();
                    dialog.txtServer.userType("mail.y");
                    dialog.chkAuth.userCheck(true);
                    dialog.txtPassword.userType("s3cret");
                    dialog.cmdOK.userPress();
                    if (dialog.shown()) {
                        EXPECT_EQ(dialog.txtPassword.text(), "s3cret");
                    }
                });
                stage.desktop.user<EmployeeEditor>(frmEditEmployee, [&](EmployeeEditor& editor) {
                    fill(editor);
                    editor.comboBox("cboEmailMethod").userChoose(1);
                    editor.cmdEmailSettings.userPress();
                    editor.addresses.txtShipToAddress.userType("9 Quay");
                    tick(editor, "Sales", false);
                    editor.cmdOK.userPress();
                    if (!editor.shown()) return;
                    EXPECT_TRUE(stage.told() || editor.lblMissing.visible());
                    EXPECT_THAT(editor.txtPassword.text(), HasSubstr("pa'ss"));
                    EXPECT_TRUE(editor.cmdCancel.enabled());
                    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), IsEmpty());
                });
                stage.library->ShowEditEmployee(ID);
            },
            [](Stage& stage) {
                // A digest is never empty where one was typed.
                for (const auto& statement : stage.inserted())
                    EXPECT_THAT(statement, Not(HasSubstr("'bo', '',")));
            });
    }
}

}  // namespace
}  // namespace tsln::test
