#include "doubles/Stage.h"
#include "doubles/TempFolder.h"
#include "entities/CompanyEditor.h"

namespace tsln::test {
namespace {

namespace fs = std::filesystem;

using entities::CompanyEditor;

constexpr auto frmEditCompany = "frmEditCompany";
constexpr auto insertedWhole =
    "INSERT INTO Company (Name,Email,WebSite,Phone1Label,Phone1,Phone2Label,Phone2,Phone3Label,Phone3,Phone4Label,Phone4,BillToAddress1,BillToAddress2,BillToCity,BillToState,BillToZip,BillToCountry,ShipToAddress1,ShipToAddress2,ShipToCity,ShipToState,ShipToZip,ShipToCountry,ValidateAddresses,SmallLogoFile,LargeLogoFileProcessReports,LargeLogoFileGeneralReports,WatermarkLogoFile,CompanyType,TagLine1,TagLine2) VALUES('O''Dell','e','w','','1','','','','','Fax','4','b1','b2','b3','b4','b5','b6','s1','s2','s3','s4','s5','s6',0,'it''s.png','','','',1,' t','')";
constexpr auto updatedWhole =
    "UPDATE Company SET Name = 'Blinds', Email = 'e@f', WebSite = 'www', Phone1Label = 'Main', Phone1 = '1', Phone2Label = '', Phone2 = '2', Phone3Label = '', Phone3 = '3', Phone4Label = 'Fax', Phone4 = '4', BillToAddress1 = '1 Mill', BillToAddress2 = '', BillToCity = '', BillToState = '', BillToZip = '', BillToCountry = '', ShipToAddress1 = 'Dock', ShipToAddress2 = '', ShipToCity = '', ShipToState = '', ShipToZip = '', ShipToCountry = '', ValidateAddresses = 1, SmallLogoFile = 'gone.png', LargeLogoFileProcessReports = 'p.jpg' , LargeLogoFileGeneralReports = '' , WatermarkLogoFile = 'w.gif', TagLine1 = 'a', TagLine2 = 'b'  WHERE ID = 5";

/// A host with the company 5 and a reports folder.
struct CompanyStage : Stage {
    explicit CompanyStage(std::int32_t company = 5) {
        if (company > 0) {
            host->rows("SELECT ID FROM Company ORDER BY ID",
                       "<Records><Record><ID>" + std::to_string(company) + "</ID></Record></Records>");
        }
        host->on("Options.UserFileLocation", Variant(reports.path()));
        host->on("Security.IsRoamingWorkstation", Variant(false));
        host->rows(
            "SELECT * FROM Company WHERE ID = 5",
            "<Records><Record><ID>5</ID><Name>Blinds</Name><Email>e@f</Email><WebSite>www</WebSite><Phone1Label>Main</Phone1Label>"
            "<Phone1>1</Phone1><Phone2>2</Phone2><Phone3>3</Phone3><Phone4Label>Fax</Phone4Label><Phone4>4</Phone4>"
            "<BillToAddress1>1 Mill</BillToAddress1><ShipToAddress1>Dock</ShipToAddress1><ValidateAddresses>1</ValidateAddresses>"
            "<SmallLogoFile>gone.png</SmallLogoFile><LargeLogoFileProcessReports>p.jpg</LargeLogoFileProcessReports>"
            "<WatermarkLogoFile>w.gif</WatermarkLogoFile><CompanyType>2</CompanyType><TagLine1>a</TagLine1>"
            "<TagLine2>b</TagLine2></Record></Records>");
    }
    template <class Act>
    bool edit(Act act) {
        desktop.user<CompanyEditor>(frmEditCompany, act);
        return library->ShowEditCompany();
    }
    TempFolder reports;
    TempFolder elsewhere;
};

std::string entriesOf(const ComboBox& combo) {
    std::string names;
    for (const ComboBox::Entry& entry : combo.entries())
        names += entry.text + ";";
    return names;
}

TEST(CompanyEditor, TheCompanyIsLoadedAndUpdated) {
    CompanyStage stage;
    stage.host->on("Security.IsRoamingWorkstation", Variant(true));
    EXPECT_FALSE(stage.edit([](CompanyEditor& editor) {
        EXPECT_EQ(editor.caption(), "Edit Company");
        EXPECT_EQ(editor.comboBox("cboLabelLogoFile").text(), "gone.png") << "a missing file's name is kept";
        editor.cmdOK.userPress();
    }));
    EXPECT_THAT(stage.executed(), ElementsAre(updatedWhole)) << "the type is not changed";
    EXPECT_THAT(stage.host->callsOf("Common.LoadPhoneLabels").size(), 4U);
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), IsEmpty());
    EXPECT_FALSE(stage.told());
}

TEST(CompanyEditor, ANewCompanyIsInsertedWithTheTypeOfTheWorkstation) {
    for (const bool roaming : {false, true}) {
        CompanyStage stage(0);
        stage.host->on("Security.IsRoamingWorkstation", Variant(roaming));
        stage.host->on("ParseAddress", [](Arguments a) {
            for (std::size_t i = 1; i <= 6; ++i)
                a.assign(i, a[0].toText().substr(0, 1) + std::to_string(i));
            return Variant(true);
        });
        EXPECT_FALSE(stage.edit([](CompanyEditor& editor) {
            EXPECT_EQ(editor.caption(), "New Company");
            editor.textBox("txtName").userType(" O'Dell ");
            editor.textBox("txtEmail").userType("e ");
            editor.textBox("txtWebSite").userType(" w");
            editor.textBox("txtPhone1").userType(" 1");
            editor.comboBox("cboPhone4Label").userType("Fax");
            editor.textBox("txtPhone4").userType("4");
            editor.textBox("txtBillToAddress").userType("bill");
            editor.lblCopyBilling.userFollow("Hyperlink_BillingToShipping");
            EXPECT_EQ(editor.textBox("txtShipToAddress").text(), "bill");
            editor.textBox("txtShipToAddress").userType("ship");
            editor.comboBox("cboLabelLogoFile").userType("it's.png");
            editor.textBox("txtTagLine1").userType(" t");
            editor.cmdOK.userPress();
        }));
        std::string expected = insertedWhole;
        if (roaming) expected.replace(expected.find(",1,' t'"), 3, ",2,");
        EXPECT_THAT(stage.executed(), ElementsAre(expected));
    }
}

TEST(CompanyEditor, AMissingNameAndARefusedStatementKeepTheInput) {
    for (const std::int32_t company : {0, 5}) {
        CompanyStage stage(company);
        stage.host->on("Database.ExecuteNonQuery", Variant(false));
        EXPECT_TRUE(stage.edit([&](CompanyEditor& editor) {
            editor.TabControl1.userSelect(2);
            editor.textBox("txtName").userType("  ");
            editor.cmdOK.userPress();
            EXPECT_EQ(editor.TabControl1.selected(), 0);
            EXPECT_EQ(editor.focusedControl(), &editor.textBox("txtName"));
            EXPECT_THAT(stage.executed(), IsEmpty());
            editor.textBox("txtName").userType("Kept");
            editor.cmdOK.userPress();
            EXPECT_TRUE(editor.shown());
            EXPECT_EQ(editor.textBox("txtName").text(), "Kept");
        }));
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("You must enter a name for this company.")));
        EXPECT_THAT(stage.failures(),
                    ElementsAre(explainedInFull(company == 0 ? "The company could not be setup."
                                                             : "The company could not be updated.")));
    }
}

TEST(CompanyEditor, TheLogosArePicturesOfTheReportsFolder) {
    CompanyStage stage;
    for (const char* name : {"b.PNG", "a.jpg", "c.gif", "notes.txt", "d.jpeg"})
        stage.reports.write(name, name);
    fs::create_directory(pathOf(stage.reports.file("folder.png")));
    stage.edit([&](CompanyEditor& editor) {
        for (const char* combo : {"cboLabelLogoFile", "cboProcessReportLogoFile", "cboGeneralReportLogoFile",
                                  "cboWatermarkLogoFile"})
            EXPECT_EQ(entriesOf(editor.comboBox(combo)), "a.jpg;b.PNG;c.gif;") << combo;
        EXPECT_EQ(editor.logos[2].imgLogo.file(), "");
        editor.comboBox("cboGeneralReportLogoFile").userChoose(1);
        EXPECT_EQ(editor.logos[2].imgLogo.file(), stage.reports.file("b.PNG"));
        editor.comboBox("cboGeneralReportLogoFile").userType("");
        editor.comboBox("cboGeneralReportLogoFile").userLeft();
        EXPECT_EQ(editor.logos[2].imgLogo.file(), "") << "a logo can be taken away";
    });
}

TEST(CompanyEditor, ABrowsedFileIsCopiedAndAnExistingOneOnlyReplacedOnRequest) {
    CompanyStage stage;
    stage.reports.write("old.png", "old");
    const std::string fresh = stage.elsewhere.write("new.png", "new");
    const std::string other = stage.elsewhere.write("old.png", "newer");
    const auto press = [](CompanyEditor& editor, const char* button) {
        dynamic_cast<Button&>(*editor.control(button)).userPress();
    };
    stage.edit([&](CompanyEditor& editor) {
        ComboBox& labels = editor.comboBox("cboLabelLogoFile");
        press(editor, "cmdLabelLogoFile");  // cancelled
        EXPECT_EQ(labels.text(), "gone.png");
        stage.desktop.files = {fresh};
        press(editor, "cmdLabelLogoFile");
        EXPECT_EQ(labels.text(), "new.png");
        EXPECT_EQ(entriesOf(editor.comboBox("cboWatermarkLogoFile")), "new.png;old.png;");
        EXPECT_THAT(stage.desktop.boxes, IsEmpty());

        stage.desktop.files = {other};
        stage.desktop.answers = {MessageAnswer::No};
        press(editor, "cmdLabelLogoFile");
        EXPECT_EQ(labels.text(), "new.png");
        EXPECT_EQ(stage.reports.textOf("old.png"), "old");
        stage.desktop.files = {other};
        stage.desktop.answers = {MessageAnswer::Yes};
        const int before = editor.logos[3].imgLogo.version();
        press(editor, "cmdWatermarkLogoFile");
        EXPECT_EQ(editor.comboBox("cboWatermarkLogoFile").text(), "old.png");
        EXPECT_GT(editor.logos[3].imgLogo.version(), before);
        EXPECT_EQ(stage.reports.textOf("old.png"), "newer");
    });
    const Box replacing = question(
        "A file with the name 'old.png' already exists in the Reports folder. Are you sure you want to replace it?");
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(replacing, replacing));
    ASSERT_FALSE(stage.desktop.fileDialogs.empty());
    EXPECT_EQ(stage.desktop.fileDialogs[0].title, "Select Image");
    EXPECT_THAT(stage.desktop.fileDialogs[0].filters,
                ElementsAre("Picture Files|*.jpg;*.png;*.gif", "All Files (*.*)|*.*"));
}

TEST(CompanyEditor, AFileThatCannotBeCopiedIsToldAndChangesNothing) {
    CompanyStage stage;
    stage.reports.write("old.png", "old");
    fs::create_directory(pathOf(stage.elsewhere.file("old.png")));
    fs::create_directory(pathOf(stage.reports.file("taken.png")));
    stage.elsewhere.write("taken.png", "x");
    stage.desktop.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    stage.desktop.files = {stage.elsewhere.file("old.png"), stage.elsewhere.file("taken.png"),
                           stage.elsewhere.file("missing.png")};
    stage.edit([](CompanyEditor& editor) {
        for (int i = 0; i < 3; ++i)
            editor.logos[0].cmdBrowse.userPress();
        EXPECT_EQ(editor.comboBox("cboLabelLogoFile").text(), "gone.png");
    });
    const std::string advice =
        " could not be copied to the Reports folder., Make sure the file is not open by another program and try again., ";
    EXPECT_THAT(stage.failures(), ElementsAre("The file 'old.png'" + advice, "The file 'taken.png'" + advice,
                                              "The file 'missing.png'" + advice));
    EXPECT_EQ(stage.reports.textOf("old.png"), "old");

    // A reports folder that does not exist.
    CompanyStage missing;
    missing.host->on("Options.UserFileLocation", Variant(missing.reports.file("none")));
    missing.desktop.files = {missing.elsewhere.write("a.png", "a")};
    missing.edit([](CompanyEditor& editor) {
        EXPECT_THAT(editor.lblReportsFolder.caption(), HasSubstr("There is no Reports folder"));
        editor.logos[0].cmdBrowse.userPress();
        editor.cmdOK.userPress();
    });
    EXPECT_EQ(missing.failures().size(), 1U);
    EXPECT_THAT(missing.executed(), ElementsAre(HasSubstr("SmallLogoFile = 'gone.png'")));
}

TEST(CompanyEditor, AnEmptyTextInsteadOfTheCompanyAddsNoSecondOne) {
    CompanyStage stage;
    stage.host->on("Database.ExecuteRead", [](Arguments) { return Variant(makeDocument("")); });
    stage.library->ShowEditCompany();
    EXPECT_THAT(stage.desktop.shown, IsEmpty());
    EXPECT_TRUE(stage.told());
}

}  // namespace
}  // namespace tsln::test
