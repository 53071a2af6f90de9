#include <gmock/gmock.h>

#include "doubles/HexPattern.h"
#include "screens/Controls.h"
#include "screens/Screen.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/host/ExpressionText.h"
#include "workbench/host/MessageMembers.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

using testing::HasSubstr;

/// Calls "Part.Member" or "Member". Returns the result, or "!" and the error text.
std::string asked(const HostStage& stage, std::string_view path, std::vector<Variant> values) {
    const std::size_t dot = path.find('.');
    std::vector<Argument> arguments(values.begin(), values.end());
    try {
        const ObjectPtr object =
            dot == path.npos ? stage.session->sharedCode() : stage.part(path.substr(0, dot));
        const Variant result =
            object->invoke(path.substr(dot == path.npos ? 0 : dot + 1), Access::Call, Arguments(arguments));
        return result.isObject() ? (result.toObject() ? "object" : "nothing") : result.toText();
    } catch (const HostError& error) {
        return "!" + error.text();
    }
}

struct Question {
    std::string_view path;
    std::vector<Variant> arguments;
    std::string_view answer;  ///< for an error: the beginning of its text
};

void expectAnswers(const HostStage& stage, const std::vector<Question>& questions) {
    for (const Question& c : questions) {
        const std::string answer = asked(stage, c.path, c.arguments);
        EXPECT_EQ(c.answer.starts_with("!") ? answer.substr(0, c.answer.size()) : answer, c.answer)
            << c.path << " " << (c.arguments.empty() ? "" : textOf(c.arguments[0]));
    }
}

TEST(Members, AnswersComeFromTheCompany) {
    const HostStage stage;
    const std::string count = "SELECT COUNT(*) AS MyCount FROM PaymentMethods";
    expectAnswers(
        stage, {
                   {"Database.ExecuteScaler", {count}, "5"},
                   {"database.EXECUTESCALER", {count, "", "0"}, "5"},
                   {"Database.ExecuteScaler", {"SELECT SyncState FROM Company WHERE ID = 99", "", "0"}, "0"},
                   {"Database.ExecuteScaler", {"SELECT SyncState FROM Company WHERE ID = 99"}, ""},
                   {"Database.ExecuteScaler", {"SELECT BillToAddress2 FROM Company", "", "none"}, "none"},
                   {"Database.ExecuteScaler",
                    {"SELECT ID, Name FROM Company", "Name", ""},
                    "Lanternlight Window Coverings"},
                   {"Database.ExecuteScaler", {"SELECT Wrong FROM Company"}, "!"},
                   {"Database.ExecuteScaler", {}, "!Argument not optional"},
                   {"Database.ExecuteRead", {"SELECT ID FROM Company"}, "object"},
                   {"Database.ExecuteRead", {"SELECT * FROM NoSuchTable"}, "!"},
                   {"Database.ExecuteRead", {"DELETE FROM Orders"}, "!"},
                   {"Database.ExecuteNonQuery", {"UPDATE Company SET TagLine1 = 'new'"}, "True"},
                   {"Database.ExecuteNonQuery", {"UPDATE NoSuchTable SET a = 1"}, "False"},
                   {"Database.ExecuteNonQueryWithID", {"INSERT INTO Terms (Terms) VALUES('a')"}, "1"},
                   {"Database.ExecuteNonQueryWithID", {"  insert into Terms (Terms) VALUES('b')"}, "2"},
                   {"Database.ExecuteNonQueryWithID", {"DELETE FROM Terms WHERE ID = 2"}, "0"},
                   {"Database.LastSQLErrorDescription", {}, "Only an INSERT makes a row with an identifier."},
                   {"Database.LastSQLError", {}, "-1"},
                   {"Database.ExecuteNonQueryWithID", {"INSERT INTO NoSuchTable (a) VALUES(1)"}, "0"},

                   {"Common.RecordExists", {"PhoneLabels", "Label", "  hOME ", 0}, "True"},
                   {"Common.RecordExists", {"PhoneLabels", "Label", "Home", 3}, "False"},
                   {"Common.RecordExists", {"PhoneLabels", "Label", "'; DELETE FROM Orders --", 0}, "False"},
                   {"Common.RecordExists", {"PhoneLabels", "Label", "it's", 0}, "False"},
                   {"Common.RecordExists",
                    {"PhoneLabels; DROP TABLE Terms", "Label", "x", 0},
                    "!'PhoneLabels; DROP"},
                   {"Common.RecordExists", {"PhoneLabels", "Label] = 1 --", "x", 0}, "!'Label]"},
                   {"Common.RecordExists", {"NoSuchTable", "Label", "x", 0}, "!"},
                   {"Common.GetDiscountGroupName", {4}, "Designers"},
                   {"Common.GetEmployeeName", {3}, "Priya K Lindqvist"},
                   {"Common.GetShippingMethodName", {"2"}, "Parcel carrier"},
                   {"Common.GetOrderStatusNameFromID", {1}, "New quote"},
                   {"Common.GetVendorCostMethodName", {2}, "Cost from Product"},
                   {"Common.GetVendorCostMethodName", {0}, ""},
                   {"Common.GetProductNameFromID", {3}, "Brightvane cellular single"},
                   {"Common.GetProductFileFromID2",
                    {3},
                    stage.folder.file(utf8Of(pathOf("test.company.products") / "BRV-CELL1.xml"))},
                   {"Common.GetProductFileFromID2", {9999}, ""},
                   {"Common.GetCustomerName", {9999}, ""},
                   {"Common.GetCustomerBalance", {9999}, "0"},
                   {"Common.FormatAsGUID",
                    {"0123456789abcdef0123456789abcdef"},
                    "{01234567-89AB-CDEF-0123-456789ABCDEF}"},
                   {"Common.FormatAsGUID",
                    {"{01234567-89AB-CDEF-0123-456789ABCDEF}"},
                    "{01234567-89AB-CDEF-0123-456789ABCDEF}"},
                   {"Common.FormatAsGUID", {"nonsense"}, "!'nonsense' is no GUID."},

                   {"Security.UserId", {}, "1"},
                   {"Security.OrganizationName", {}, "Lanternlight Window Coverings"},
                   {"Security.IsRoamingWorkstation", {}, "False"},
                   {"Security.CompanyFeatureEnabled", {1}, "True"},
                   {"Profiles.Profile", {}, ""},
                   {"Options.ExternalProgram", {"DistoTransfer"}, ""},
                   {"Options.UserFileLocation", {"Reports"}, stage.folder.file("Reports")},
                   {"Options.UserFileLocation",
                    {"Companies"},
                    stage.folder.file("").substr(0, stage.folder.file("").size() - 1)},
                   {"Options.UserFileLocation", {"Moon"}, "!There is no file location 'Moon'."},

                   {"FixForSQLInsert", {"O'Brien's"}, "O''Brien''s"},
                   {"FixDateForSQLInsert", {Date{40606.4310416667}}, "2011-03-04T10:20:42"},
                   {"FixDateForSQLInsert", {"3/4/2011"}, "2011-03-04T00:00:00"},
                   {"FixDateForSQLInsert", {"no date"}, "!"},
                   {"GetSHA2", {"abc"}, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
                   {"GetSHA2", {"abc", 7}, "!There is no digest of 7 bits."},
                   {"CurrentCompanyConn", {}, "object"},
                   {"OperatingMode", {}, "0"},
                   {"ShowSelectBySearch", {"vendors", "Find"}, "0"},
                   {"ShowSelectBySearch", {"Stars", "Find"}, "!The records of 'Stars' cannot be searched."},
                   {"TSLNSQL", {}, "object"},
                   {"SendSmoke", {1, 2}, "!Object doesn't support this property or method: SendSmoke"},
               });
    EXPECT_THAT(asked(stage, "Database.LastSQLErrorDescription", {}), HasSubstr("NoSuchTable"));
    EXPECT_THAT(asked(stage, "Common.CreateGUID", {}),
                test::IsHexLike("xxxxxxxx-xxxx-4xxx-xxxx-xxxxxxxxxxxx"));
    EXPECT_NE(asked(stage, "Common.CreateGUID", {}), asked(stage, "Common.CreateGUID", {}));
    EXPECT_EQ(stage.value("SELECT TagLine1 FROM Company"), "new");
    EXPECT_TRUE(std::filesystem::is_directory(stage.folder.file("Reports")));
}

TEST(Members, OptionsAreStoredPerCompanyAndUser) {
    const HostStage stage;
    expectAnswers(stage, {
                             {"Options.GetCompanyOption", {"Application", "Accounting", 0}, "0"},
                             {"Options.SetCompanyOption", {"Application", "Accounting", 1}, ""},
                             {"Options.GetCompanyOption", {"application", "accounting", 0}, "1"},
                             {"Options.GetCompanyOption", {"Accounting", "Application", 0}, "1"},
                             {"Options.SetCompanyOption", {"Accounting", "Application", "it's"}, ""},
                             {"Options.GetCompanyOption", {"Application", "Accounting", 0}, "it's"},
                             {"Options.GetCompanyOption", {"Customers", "DefaultPhone1Label", "x"}, "Home"},
                             {"Options.GetUserOption", {"Application", "Accounting", "none"}, "none"},
                             {"Options.SetUserOption", {"Test Number", "Email Templates", 7}, ""},
                             {"Options.GetUserOption", {"Test Number", "0"}, "7"},
                             {"Options.GetUserOption", {"Other", "0"}, "0"},
                             {"Options.SetUserOption", {"Test Number"}, "!Argument not optional"},
                         });
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM CompanyOptions WHERE Section = 'Accounting'"), "1");
    EXPECT_EQ(stage.value("SELECT EmployeeID FROM UserOptions"), "1");
    stage.run(
        "INSERT INTO CompanyOptions (Section, OptionName, OptionValue) VALUES('Features', '1', 'False')");
    expectAnswers(stage, {{"Security.CompanyFeatureEnabled", {1}, "False"},
                          {"Security.CompanyFeatureEnabled", {2}, "True"}});
}

TEST(Members, RightsComeFromTheStoredRoles) {
    struct User {
        std::string_view login;
        std::vector<std::pair<int, int>> may, mayNot;  // area, access
    };
    const User users[] = {
        {"ADMIN",
         {{106, 8}, {106, 16}, {106, 32}, {106, 4}, {107, 8 | 16}},
         {{9999, 4}, {106, 64}, {106, 0}}},
        {"viewer", {{106, 4}}, {{106, 8}, {106, 16}, {106, 32}, {106, 4 | 8}}},
        {"priya", {{300, 8}, {300, 16}}, {{106, 8}, {106, 32}}},
    };
    for (const auto& [login, may, mayNot] : users) {
        const HostStage stage(login);
        for (const auto& [area, access] : may) {
            EXPECT_TRUE(stage.part("Security")->call("CanDo", area, access).toBoolean())
                << login << area << access;
        }
        for (const auto& [area, access] : mayNot) {
            EXPECT_FALSE(stage.part("Security")->call("CanDo", area, access).toBoolean())
                << login << area << access;
        }
        // a changed role takes effect at once
        stage.run("DELETE FROM SecurityRoleAccess");
        EXPECT_FALSE(stage.part("Security")->call("CanDo", may[0].first, may[0].second).toBoolean());
    }
}

TEST(Members, OnlyKnownUsersCanSignIn) {
    struct Case {
        std::string_view login, why;
    };
    for (const Case& c :
         {Case{"nobody", "This company has no user 'nobody'."}, Case{"", "This company has no user ''."},
          Case{"' OR 1=1 --", "This company has no user '' OR 1=1 --'."},
          Case{"owen", "The user 'owen' may not log in to this company."}}) {
        TestFolder folder;
        RecordingUi ui;
        Company(folder.file("a.company")).execute("UPDATE Employees SET Active = 0 WHERE Username = 'owen'");
        try {
            CompanySession session(folder.file("a.company"), c.login, ui);
            ADD_FAILURE() << c.login;
        } catch (const SignInError& error) {
            EXPECT_EQ(error.what(), c.why);
        }
    }
}

TEST(Members, MessagesReachTheUserAndTheEventLog) {
    HostStage stage;
    stage.shared().call("ShowAndLogErrorMessage", "There was a <Bold>problem</Bold>.",
                        "{standard explanation}", "the words");
    ASSERT_EQ(stage.ui.shown.size(), 1U);
    const Message& failure = stage.ui.shown[0];
    EXPECT_EQ(failure.style, MessageStyle::LoggedError);
    EXPECT_EQ(failure.text, "There was a <Bold>problem</Bold>.");
    EXPECT_EQ(failure.explanation, usualExplanation);
    EXPECT_EQ(failure.detail, "the words");
    EXPECT_EQ(stage.lastEvent(), "There was a problem.\nthe words");
    EXPECT_EQ(stage.value("SELECT EventType FROM EventLog"), "1");
    EXPECT_EQ(stage.value("SELECT UserName FROM EventLog"), "admin");

    stage.shared().call("ShowErrorMessage", "a", "b", "c");
    EXPECT_EQ(stage.ui.shown[1].style, MessageStyle::Error);
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM EventLog"), "1");

    struct Case {
        const char* member;
        std::vector<Argument> arguments;
        MessageAnswer given;
        MessageButtons buttons;
        std::string_view title;
        Variant answer;
    };
    Case cases[] = {
        {"ShowMessageStyle1", {"a", "b"}, MessageAnswer::Ok, MessageButtons::Ok, "", Variant()},
        {"ShowMessageStyle1", {"a", "b", 4 + 32}, MessageAnswer::Yes, MessageButtons::YesNo, "", 6},
        {"ShowMessageStyle1", {"a", "b", 4, "Title"}, MessageAnswer::No, MessageButtons::YesNo, "Title", 7},
        {"ShowMessageStyle2", {"a", "b"}, MessageAnswer::Ok, MessageButtons::Ok, "", Variant()},
        {"ShowMessageStyle2",
         {"a", "b", 1, "Title", 0},
         MessageAnswer::Cancel,
         MessageButtons::OkCancel,
         "Title",
         2},
    };
    for (Case& c : cases) {
        stage.ui.replies = {{c.given, false}};
        EXPECT_EQ(stage.shared().invoke(c.member, Access::Call, Arguments(c.arguments)), c.answer)
            << c.member;
        EXPECT_EQ(stage.ui.shown.back().buttons, c.buttons);
        EXPECT_EQ(stage.ui.shown.back().title, c.title);
        EXPECT_EQ(stage.ui.shown.back().advice, "b");
    }
}

TEST(Members, AMessageWithMemoryIsHiddenForTheUserWhoChoseSo) {
    HostStage stage;
    const auto show = [](HostStage& on, const char* text) {
        EXPECT_EQ(on.shared().call("ShowMessageStyle1WithMemory", text, "advice"), Variant(1));
        return on.ui.shown.size();
    };
    EXPECT_EQ(show(stage, "one"), 1U);
    stage.ui.replies = {{MessageAnswer::Ok, true}};
    EXPECT_EQ(show(stage, "one"), 2U);
    EXPECT_EQ(show(stage, "one"), 2U) << "not again";
    EXPECT_EQ(show(stage, "two"), 3U) << "another message";
    RecordingUi ui;
    CompanySession other(stage.folder.file("test.company"), "viewer", ui);
    other.sharedCode()->call("ShowMessageStyle1WithMemory", "one", "advice");
    EXPECT_EQ(ui.shown.size(), 1U) << "another user";
}

TEST(Members, EventsAreKeptUntilTheCompanyCanBeWritten) {
    const HostStage stage;
    stage.shared().call("RecordEvent", "plain");
    stage.shared().call("RecordEvent", 3, "a warning's text");
    EXPECT_EQ(stage.value("SELECT EventType FROM EventLog WHERE EventText = 'plain'"), "2");
    EXPECT_EQ(stage.value("SELECT EventType FROM EventLog WHERE EventText = 'a warning''s text'"), "3");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM EventLog WHERE EventDate LIKE '20__-__-__T__:__:__'"), "2");

    const HostStage readOnly("admin", OpenMode::ReadOnly);
    readOnly.shared().call("RecordEvent", "cannot be written");
    EXPECT_EQ(readOnly.session->eventLog().waiting(), 1U);
}

TEST(Members, ActivityAndNoticesAreStored) {
    const HostStage stage;
    stage.part("Activity")->call("RecordCustomerActivity", 7, "Customer's <id> added.");
    stage.part("Activity")->call("RecordVendorActivity", 8, "v");
    stage.part("Activity")->call("RecordEmployeeActivity", 3, "e");
    EXPECT_EQ(stage.value("SELECT Activity FROM CustomerActivity WHERE CustomerID = 7 AND EmployeeID = 1"),
              "Customer's <id> added.");
    EXPECT_EQ(stage.value("SELECT Activity FROM VendorActivity WHERE VendorID = 8 AND EmployeeID = 1"), "v");
    EXPECT_EQ(
        stage.value(
            "SELECT TOP 1 Activity FROM EmployeeActivity WHERE EmployeeID = 3 AND ByEmployeeID = 1 ORDER BY ID DESC"),
        "e");
    stage.part("Messages")->call("PostMessage", 3001, 7);
    stage.part("Messages")->call("PostMessage", 6001);
    ASSERT_EQ(stage.session->notices().size(), 2U);
    EXPECT_EQ(stage.session->notices()[0].about, "7");
    EXPECT_EQ(stage.session->notices()[1].code, 6001);
}

class ComboScreen : public Screen {
  public:
    explicit ComboScreen(Desktop& desktop) : Screen(desktop, "frmCombo") { cbo.addItem("stale", 99); }
    ComboBox cbo{*this, "cbo"};
    Layout layout() override { return layout::item(cbo); }

    std::string entries() const {
        std::string text;
        for (const auto& entry : cbo.entries())
            text += entry.text + "=" + std::to_string(entry.itemData) + ";";
        return text;
    }
};

TEST(Members, LoadersFillComboBoxes) {
    const HostStage stage;
    test::ScriptedDesktop desktop;
    struct Case {
        const char* member;
        std::vector<Variant> further;
        std::string_view entries;
    };
    const Case cases[] = {
        {"LoadTerms", {}, ""},
        {"LoadEmailLabels", {}, "Accounts=1;Home=2;Work=3;"},
        {"LoadLocations", {}, "Merriden Falls showroom=1;Oxbow Landing=2;Tamarack Point=3;"},
        {"LoadTaxGroups", {}, "Exempt=4;Merriden County=1;Oxbow County=2;State only=3;"},
        {"LoadPurchaseAccounts",
         {},
         "Contract Installers=10;Freight In=11;Purchases - Blinds and Shades=7;Purchases - Draperies=8;Purchases - Shutters=9;"},
        {"LoadSalesReps", {false}, "Priya K Lindqvist=3;Owen T Marchbanks=4;Dana Whitfield=1;"},
        {"LoadSalesReps", {true}, "Priya K Lindqvist=3;Owen T Marchbanks=4;Hester L Pym=8;Dana Whitfield=1;"},
        {"LoadInstallers", {}, "Bram Okonjo=7;Teodor J Vask=6;"},
        {"LoadDiscountGroups", {0}, "Designers=4;Standard=1;"},
        {"LoadDiscountGroups", {0, 4}, "Standard=1;"},
        {"LoadComboFromQuery",
         {"SELECT ID, Label FROM EmailLabels WHERE ID <> 2 ORDER BY Label", "Label", "ID", false},
         "Accounts=1;Work=3;"},
        {"LoadComboFromQuery",
         {"SELECT ID, Label FROM EmailLabels WHERE ID = 3", "", "", "(none)"},
         "(none)=0;Work=0;"},
        {"LoadComboFromQuery",
         {"SELECT ID, Label FROM EmailLabels WHERE ID = 3", "Label", "ID", true},
         "=0;Work=3;"},
    };
    for (const Case& c : cases) {
        ComboScreen screen(desktop);
        std::vector<Argument> arguments{screen.cbo.automation()};
        arguments.insert(arguments.end(), c.further.begin(), c.further.end());
        stage.part("Common")->invoke(c.member, Access::Call, Arguments(arguments));
        EXPECT_EQ(screen.entries(), c.entries) << c.member;
    }
    ComboScreen screen(desktop);
    EXPECT_THROW(stage.part("Common")->call("LoadComboFromQuery", screen.cbo.automation(), "SELECT x FROM y"),
                 HostError);
    EXPECT_EQ(screen.entries(), "stale=99;") << "a failed load keeps the entries";
    EXPECT_THROW(stage.part("Common")->call("LoadTerms", ObjectPtr()), HostError);
}

TEST(Members, ExpressionsAreEditedInTheHostsWindow) {
    HostStage stage;
    const ObjectPtr engine = stage.session->createObject("tslnfe5.Engine");
    EXPECT_THROW(engine->call("ShowEditExpression", "a"), HostError) << "not initialized";
    engine->call("Initialize", stage.session->sharedCode());
    EXPECT_EQ(engine->call("ShowEditExpression", "Width > 96"), Variant("Width > 96")) << "cancelled";
    stage.ui.edited = "";
    EXPECT_EQ(engine->call("ShowEditExpression2", "Width > 96", "Tax code"), Variant("")) << "emptied";
    ASSERT_EQ(stage.ui.edits.size(), 2U);
    EXPECT_EQ(stage.ui.edits[0].title, "");
    EXPECT_EQ(stage.ui.edits[1].expression, "Width > 96");
    EXPECT_EQ(stage.ui.edits[1].title, "Tax code");
    EXPECT_THAT(stage.ui.edits[0].names, testing::IsSupersetOf({"Width", "Room Location"}));
    engine->call("PreTerminate");
    EXPECT_THROW(engine->call("ShowEditExpression", "a"), HostError);
}

TEST(Members, AFaultyExpressionIsExplained) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"Product type is Shutters", ""},
        {"([Width] > 96) and \"a ) b\" <> [Room]", ""},
        {"(Width > 96", "A \")\" is missing at the end."},
        {"Width > 96)", "There is a \")\" without an opening bracket."},
        {"([Width)]", "There is a \")\" where a \"]\" is expected."},
        {"Room = \"Kitchen", "A quotation mark is not closed."},
    };
    for (const auto& [expression, fault] : cases)
        EXPECT_EQ(expressionFault(expression), fault) << expression;
}

TEST(Members, ThePackageSourceNamesTheCompany) {
    const HostStage stage;
    const std::string path = stage.shared().get("PSDFile").toText();
    EXPECT_EQ(path, stage.folder.file("test.company.psd"));
    EXPECT_THAT(textOfFile(path), HasSubstr(stage.folder.file("test.company")));
    // a folder with the file's name prevents writing beside the company
    std::filesystem::remove(path);
    std::filesystem::create_directories(path);
    const std::string elsewhere = stage.shared().get("PSDFile").toText();
    EXPECT_NE(elsewhere, path);
    EXPECT_THAT(textOfFile(elsewhere), HasSubstr(stage.folder.file("test.company")));
    std::filesystem::remove(elsewhere);
}

}  // namespace
}  // namespace tsln::workbench
