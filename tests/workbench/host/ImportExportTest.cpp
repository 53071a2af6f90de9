#include <chrono>

#include <gmock/gmock.h>

#include "tests/workbench/host/HostStage.h"

namespace tsln::workbench {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* termsQuery = "SELECT * FROM vwExporting_Terms";

/// A company with two terms, and the engine.
struct EngineStage : HostStage {
    ObjectPtr engine = session->createObject("tslniee5.Engine");

    EngineStage() {
        run("INSERT INTO Terms (Terms,DueDays,Discount,DiscountDays,Exported) VALUES('Net 30', 30, 0.025, 10, 1)");
        run("INSERT INTO Terms (Terms,DueDays) VALUES('COD', 0)");
        engine->call("Initialize", session->sharedCode());
    }
    bool exportTerms(const std::string& path, bool simple = false) const {
        engine->put("SimpleExport", simple);
        engine->call("AddToExport", "Terms", termsQuery);
        return engine->call("DoExport", path).toBoolean();
    }
    bool import(const std::string& path, const char* list = "Terms") const {
        return engine->call("ImportFile", path, list).toBoolean();
    }
    /// Returns all visible columns of the terms.
    std::string terms() const {
        return session->company().read(
            "SELECT ID,Terms,DueDays,Discount,DiscountDays,Exported FROM Terms ORDER BY ID");
    }
    std::string with(const std::string& records) const {
        return folder.write("import.xml",
                            "<?xml version=\"1.0\"?>\n<!-- made by hand -->\n<Sections><Terms>" + records +
                                "</Terms><Other/></Sections>");
    }
};

TEST(ImportExport, ASimpleExportLeavesOutTheCompanysOwnData) {
    const EngineStage stage;
    ASSERT_TRUE(stage.exportTerms(stage.folder.file("full.xml")));
    EXPECT_THAT(textOfFile(stage.folder.file("full.xml")), HasSubstr("<Exported>1</Exported>"));
    EXPECT_THAT(textOfFile(stage.folder.file("full.xml")), HasSubstr("<UniqueID>"));
    EXPECT_THAT(textOfFile(stage.folder.file("full.xml")), Not(HasSubstr("<ID>")));
    const EngineStage simple;
    ASSERT_TRUE(simple.exportTerms(simple.folder.file("simple.xml"), true));
    const std::string text = textOfFile(simple.folder.file("simple.xml"));
    EXPECT_THAT(text, HasSubstr("<Terms>Net 30</Terms>"));
    for (const char* column : {"<ID>", "UniqueID", "AddedOn", "UpdatedOn", "Exported"})
        EXPECT_THAT(text, Not(HasSubstr(column)));
    EXPECT_TRUE(simple.import(simple.folder.file("simple.xml")));
}

TEST(ImportExport, AFailedExportLeavesTheFileUnchanged) {
    const EngineStage stage;
    const std::string file = stage.folder.write("terms.xml", "precious");
    stage.engine->call("AddToExport", "Terms", "SELECT * FROM vwNowhere");
    EXPECT_FALSE(stage.engine->call("DoExport", file).toBoolean());
    EXPECT_THAT(stage.lastEvent(), HasSubstr("vwNowhere"));
    EXPECT_EQ(textOfFile(file), "precious");

    const EngineStage second;
    std::filesystem::create_directories(second.folder.file("folder.xml/kept"));
    const auto names = second.folder.names();
    EXPECT_FALSE(second.exportTerms(second.folder.file("folder.xml")));
    EXPECT_FALSE(second.exportTerms(second.folder.file("no/such/folder.xml")));
    EXPECT_FALSE(second.exportTerms(""));
    EXPECT_EQ(second.folder.names(), names) << "no temporary file is left";
    EXPECT_FALSE(second.session->createObject("tslniee5.Engine") == nullptr);
    const ObjectPtr idle = second.session->createObject("tslniee5.Engine");
    EXPECT_THROW(idle->call("DoExport", second.folder.file("x.xml")), HostError) << "not initialized";
    idle->call("Initialize", second.session->sharedCode());
    EXPECT_FALSE(idle->call("DoExport", second.folder.file("x.xml")).toBoolean())
        << "no list was added to the export";
    EXPECT_THROW(idle->call("AddToExport", "<x>", termsQuery), HostError);
}

TEST(ImportExport, AFailedImportChangesNothingAndIsExplained) {
    const EngineStage stage;
    const std::string before = stage.terms();
    const std::string good = "<Record><Terms>New</Terms></Record>";
    std::filesystem::create_directories(stage.folder.file("folder.xml"));
    struct Case {
        std::string file;
        const char* list;
        const char* why;
    };
    int n = 0;
    const auto file = [&](const std::string& text) {
        return stage.folder.write("case" + std::to_string(++n) + ".xml", text);
    };
    const auto section = [&](const std::string& records) {
        return file("<Sections><Terms>" + records + "</Terms></Sections>");
    };
    const Case cases[] = {
        {stage.folder.file("missing.xml"), "Terms", "does not exist"},
        {stage.folder.file("folder.xml"), "Terms", "is a folder"},
        {file(""), "Terms", "is empty"},
        {file("no xml at all"), "Terms", "does not begin as XML"},
        {file("<Other><Terms>" + good + "</Terms></Other>"), "Terms", "its root is 'Other'"},
        {file("<SectionsOfOrange/>"), "Terms", "its root is 'SectionsOfOrange'"},
        {file("<Sections><Terms>" + good), "Terms", "is damaged"},
        {file("<Sections><Terms>" + good + "</Sections>"), "Terms", "is damaged"},
        {file("<Sections><JobTypes/></Sections>"), "Terms", "holds no list 'Terms'"},
        {file("<Sections/>"), "", "holds no list."},
        {file("<Sections><Orders>" + good + "</Orders></Sections>"), "Orders", "no list 'Orders'"},
        {section(good + "<Record><Terms>x</Terms><Wrong>1</Wrong><Terms2/></Record>"), "Terms",
         "no columns of these names: Wrong, Terms2"},
        {section(good + "<Record><DueDays>1</DueDays></Record>"), "Terms",
         "Record 2 of the list Terms: The column Terms"},
        {section(good + "<Record><Terms>   </Terms></Record>"), "Terms",
         "which identifies the record, is empty"},
        {section(good + "<Record><Terms>x</Terms><DueDays>many</DueDays></Record>"), "Terms",
         "Record 2 of the list Terms"},
        {section(good + "<Record><Terms>x</Terms><terms>y</terms></Record>"), "Terms", "occurs twice"},
        {section(good + "<Record><Terms><b>x</b></Terms></Record>"), "Terms", "holds no text"},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(stage.import(c.file, c.list)) << c.why;
        EXPECT_THAT(stage.lastEvent(), HasSubstr(c.why));
        EXPECT_EQ(stage.terms(), before) << c.why;
    }
}

TEST(ImportExport, AHugeFileOfAnotherKindIsRefusedAtOnce) {
    const EngineStage stage;
    std::string text = "\xEF\xBB\xBF<?xml version=\"1.0\"?><!DOCTYPE Catalogue><Catalogue>";
    while (text.size() < 50'000'000)
        text += "<Record><Terms>Net 30</Terms></Record>";
    const std::string file = stage.folder.write("huge.xml", text + "</Catalogue>");
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_FALSE(stage.import(file));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(500));
    EXPECT_THAT(stage.lastEvent(), HasSubstr("'Catalogue'"));
}

TEST(ImportExport, FilesOfOtherProgramsAreRead) {
    const EngineStage stage;
    // other letter case, an unknown section, an ID to ignore, a name that occurs twice
    EXPECT_TRUE(
        stage.import(stage.with("<Record><ID>2</ID><Terms>nET 30 </Terms><duedays>31</duedays></Record>"
                                "<Record><ID>1</ID><Terms>Twice</Terms><DueDays>1</DueDays></Record>"
                                "<Record><Terms>TWICE</Terms><DueDays>2</DueDays></Record>"),
                     "terms"))
        << stage.lastEvent();
    EXPECT_EQ(stage.value("SELECT DueDays FROM Terms WHERE ID = 1"), "31");
    EXPECT_EQ(stage.value("SELECT Discount FROM Terms WHERE ID = 1"), "0.025")
        << "columns that are not in the file keep their values";
    EXPECT_EQ(stage.value("SELECT Terms FROM Terms WHERE ID = 2"), "COD");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Terms"), "3");
    EXPECT_EQ(stage.value("SELECT DueDays FROM Terms WHERE Terms = 'twice'"), "2");

    // an identity that another row has is not used again
    const std::string taken = stage.value("SELECT UniqueID FROM Terms WHERE ID = 1");
    EXPECT_TRUE(stage.import(
        stage.with("<Record><UniqueID>" + taken + "</UniqueID><Terms>Another</Terms></Record>")));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Terms WHERE UniqueID = '" + taken + "'"), "1");
    EXPECT_EQ(stage.value("SELECT LEN(UniqueID) FROM Terms WHERE Terms = 'Another'"), "36");

    // roles are matched by name; discount groups with the same name but another type are different
    const auto file = stage.folder.write(
        "more.xml",
        "<Sections><SecurityRoles><Record><Name>Helper</Name></Record></SecurityRoles>"
        "<SecurityRoleAccess><Record><SecurityRoleUniqueID>x</SecurityRoleUniqueID>"
        "<SecurityRole>helper</SecurityRole><Activity>106</Activity><Access>12</Access></Record></SecurityRoleAccess>"
        "<DiscountGroups><Record><DiscountGroup>Standard</DiscountGroup><DiscountGroupType>1</DiscountGroupType>"
        "</Record></DiscountGroups></Sections>");
    EXPECT_TRUE(stage.import(file, "")) << stage.lastEvent();
    EXPECT_EQ(
        stage.value(
            "SELECT Access FROM SecurityRoleAccess WHERE SecurityRoleID = (SELECT ID FROM SecurityRoles WHERE Name = 'Helper')"),
        "12");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM DiscountGroups WHERE DiscountGroup = 'Standard'"), "2");
}

TEST(ImportExport, ImportingALongListTakesLinearTime) {
    const EngineStage stage;
    std::string records;
    for (int i = 0; i < 5000; ++i)
        records += "<Record><Terms>Net " + std::to_string(i) + "</Terms></Record>";
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(stage.import(stage.with(records))) << stage.lastEvent();
    EXPECT_TRUE(stage.import(stage.with(records))) << stage.lastEvent();
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Terms"), "5001");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

TEST(ImportExport, NothingIsImportedIntoAReadOnlyCompany) {
    HostStage stage("admin", OpenMode::ReadOnly);
    const ObjectPtr engine = stage.session->createObject("tslniee5.Engine");
    engine->call("Initialize", stage.session->sharedCode());
    const std::string file =
        stage.folder.write("a.xml", "<Sections><Terms><Record><Terms>x</Terms></Record></Terms></Sections>");
    EXPECT_FALSE(engine->call("ImportFile", file, "Terms").toBoolean());
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Terms"), "0");
    EXPECT_EQ(stage.session->eventLog().waiting(), 1U);
}

}  // namespace
}  // namespace tsln::workbench
