#include "doubles/Stage.h"
#include "maintenance/RecordDialog.h"
#include "screens/TabControl.h"

namespace tsln::test {
namespace {

constexpr Choice kinds[] = {{0, "None"}, {4, "Four"}};

/// A record whose first field is not a text field, read as a recordset, with every rule that affects statements.
const RecordDescription sample{
    .table = "Samples",
    .newCaption = "New Sample",
    .editCaption = "Edit Sample",
    .fields = fields::join(
        fields::choice("cboKind", "&Kind:", "Kind", "<k>", kinds).required("You must select a kind."),
        fields::trimmed("txtCode", "&Code:", "Code", "<c>")
            .required("You must enter a code.")
            .unique("Taken."),
        fields::lines("txtNotes", "&Notes", "Notes", "<n>"),
        fields::keyOrNull("cboTerms", "&Terms:", "TermsID", "<t>", &Common::LoadTerms)
            .byDefault({"DefaultTerms", "Samples", "-1"})
            .orFirst(),
        fields::check("chkActive", "&Active", "Active", "<a>").placed(1, 0),
        fields::percent("txtRate", "&Rate:", "Rate", "<r>", 100),
        fields::address("txtShipTo", "Ship-to", "ShipTo", {"<s1>", "<s2>", "<s3>", "<s4>", "<s5>", "<s6>"}),
        fields::validateAddresses()),
    .saveFailure = "Not saved.",
    .source = RecordDescription::Source::Recordset,
    .closingCancels = true,
};

class SampleDialog : public RecordDialog {
  public:
    explicit SampleDialog(Library& library) : RecordDialog(library, "frmSample", sample) {}
    TabControl tabs{*this, "tabs", {"First", "Second"}};

  protected:
    Layout content() override {
        return layout::tabs(tabs,
                            {formOf({"cboKind", "txtNotes", "cboTerms", "chkActive", "txtRate", "txtShipTo"}),
                             formOf({"txtCode"})});
    }
};

struct SampleStage : Stage {
    SampleStage() {
        host->on("Common.LoadTerms", fills({{"COD", 3}, {"Net 30", 5}}));
        host->on("ParseAddress", [](Arguments a) {
            a.assign(3, a[0]);
            a.assign(7, true);
            return Variant();
        });
        host->rows("SELECT * FROM Samples WHERE ID = 7",
                   "<Records><Record><Kind>9</Kind><Code>C</Code><TermsID>5</TermsID><Active>1</Active>"
                   "<Rate>0.125</Rate><ShipToCity>Reno</ShipToCity></Record></Records>");
    }
    std::shared_ptr<SampleDialog> edit(std::int32_t ID, const std::function<void(SampleDialog&)>& act) {
        desktop.user<SampleDialog>("frmSample", act);
        return openRecord(
            *library, "frmSample", [this] { return std::make_shared<SampleDialog>(*library); }, ID);
    }
};

TEST(RecordDialog, ARowIsReadFromARecordsetAndWrittenInTheOrderOfItsFields) {
    SampleStage stage;
    const auto closed = stage.edit(7, [&](SampleDialog& dialog) {
        EXPECT_EQ(dialog.comboBox("cboKind").text(), "9") << "a number that is not among the choices is kept";
        EXPECT_EQ(dialog.textBox("txtRate").text(), "12.5");
        EXPECT_EQ(dialog.comboBox("cboTerms").text(), "Net 30");
        EXPECT_EQ(dialog.textBox("txtShipTo").text(), "Reno");
        EXPECT_EQ(dialog.focusedControl(), &dialog.comboBox("cboKind"));
        dialog.activate();  // activation after a message box does not read again
        EXPECT_THAT(stage.host->callsOf("CurrentCompanyConn.Execute"), SizeIs(1));
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(closed->result(), 7);
    EXPECT_THAT(stage.host->callsOf("Common.RecordExists"), ElementsAre("Samples, Code, C, 7"));
    EXPECT_THAT(
        stage.executed(),
        ElementsAre(
            "UPDATE Samples SET Kind = 9, Code = 'C', Notes = '', TermsID = 5, Active = 1, Rate = 0.125, "
            "ShipToAddress1 = '', ShipToAddress2 = '', ShipToCity = 'Reno', ShipToState = '', ShipToZip = '', "
            "ShipToCountry = '', ValidateAddresses = 1 WHERE ID = 7"));
}

TEST(RecordDialog, ANewRecordIsValidatedFieldByFieldAndTheFieldsPageIsShown) {
    SampleStage stage;
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(12));
    bool taken = true;
    stage.host->on("Common.RecordExists", [&](Arguments) { return Variant(taken); });
    const auto closed = stage.edit(0, [&](SampleDialog& dialog) {
        EXPECT_EQ(dialog.caption(), "New Sample");
        EXPECT_EQ(dialog.comboBox("cboTerms").text(), "COD")
            << "without a default the first entry is selected";
        dialog.cmdOK.userPress();
        EXPECT_EQ(dialog.focusedControl(), &dialog.comboBox("cboKind"));
        dialog.comboBox("cboKind").userChoose(1);
        dialog.textBox("txtCode").userType("  ");
        dialog.cmdOK.userPress();
        EXPECT_EQ(dialog.tabs.selected(), 1);
        EXPECT_EQ(dialog.focusedControl(), &dialog.textBox("txtCode"));
        dialog.textBox("txtCode").userType(" O'Neil ");
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown()) << "another row has this code";
        taken = false;
        dialog.comboBox("cboTerms").userChoose(-1);
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(closed->result(), 12);
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(exclamation("You must select a kind."), exclamation("You must enter a code."),
                            exclamation("Taken.")));
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre(
            "INSERT INTO Samples (Kind,Code,Notes,TermsID,Rate,ShipToAddress1,ShipToAddress2,ShipToCity,ShipToState,"
            "ShipToZip,ShipToCountry,ValidateAddresses,Active) "
            "VALUES(4, 'O''Neil', '', NULL, 0, '', '', '', '', '', '', 1, 0)"));
}

TEST(RecordDialog, OkCancelAndCloseBoxAreDisabledWhileSaving) {
    SampleStage stage;
    SampleDialog* open = nullptr;
    stage.host->on("Database.ExecuteNonQuery", [&](Arguments) {
        EXPECT_FALSE(open->cmdOK.enabled() || open->cmdCancel.enabled());
        open->userClose();
        EXPECT_TRUE(open->shown());
        return Variant(false);
    });
    stage.edit(7, [&](SampleDialog& dialog) {
        open = &dialog;
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
        EXPECT_TRUE(dialog.cmdOK.enabled() && dialog.cmdCancel.enabled());
    });
    EXPECT_EQ(stage.failures().size(), 1U);
}

const RecordDescription member{
    .table = "Members",
    .newCaption = "New Member",
    .editCaption = "Edit Member",
    .fields = fields::join(
        fields::date("dtHired", "&Hired:", "Hired", "<h>").required("You must enter the date of hire."),
        fields::date("dtLeft", "&Left:", "LeftOn", "<l>"),
        fields::password("txtSecret", "&Password:", "Secret", "<p>")),
};

class MemberDialog : public RecordDialog {
  public:
    explicit MemberDialog(Library& library) : RecordDialog(library, "frmMember", member) {}
};

TEST(RecordDialog, DatesAreConvertedByTheHostAndPasswordsAreKeptAsTyped) {
    Stage stage;
    stage.host->rows("SELECT * FROM Members WHERE ID = 3",
                     "<Records><Record><Hired>2011-03-04T00:00:00</Hired><LeftOn>2020-12-31T00:00:00</LeftOn>"
                     "<Secret>old</Secret></Record></Records>");
    stage.host->on("FixDateForSQLInsert", [](Arguments a) { return Variant("ISO " + a[0].toText()); });
    stage.desktop.user<MemberDialog>("frmMember", [](MemberDialog& dialog) {
        auto& hired = dynamic_cast<DateBox&>(*dialog.control("dtHired"));
        auto& left = dynamic_cast<DateBox&>(*dialog.control("dtLeft"));
        EXPECT_EQ(hired.text(), "3/4/2011");
        EXPECT_EQ(left.text(), "12/31/2020");
        EXPECT_TRUE(dialog.textBox("txtSecret").password);
        dialog.textBox("txtSecret").userType(" O'Hara ");
        left.userPick(std::nullopt);
        hired.userType("none");
        dialog.cmdOK.userPress();
        EXPECT_EQ(dialog.focusedControl(), &hired);
        hired.userType("5/6/2012");
        dialog.cmdOK.userPress();
    });
    openRecord(
        *stage.library, "frmMember", [&] { return std::make_shared<MemberDialog>(*stage.library); }, 3);
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("You must enter the date of hire.")));
    EXPECT_THAT(stage.executed(),
                ElementsAre("UPDATE Members SET Hired = 'ISO 5/6/2012', LeftOn = NULL, Secret = ' O''Hara ' "
                            "WHERE ID = 3"));
}

TEST(RecordDialog, AClosedRecordsetIsShownLikeAMissingRow) {
    for (const bool closed : {false, true}) {
        SampleStage stage;
        if (closed) stage.host->on("CurrentCompanyConn.Execute", Variant(ObjectPtr()));
        stage.edit(closed ? 7 : 8, [](SampleDialog& dialog) {
            EXPECT_EQ(dialog.caption(), "Edit Sample");
            EXPECT_EQ(dialog.textBox("txtCode").text(), "");
        });
        EXPECT_FALSE(stage.told());
    }
}

const RecordDescription grouped{
    .table = "Samples",
    .newCaption = "New Sample",
    .editCaption = "Edit Sample",
    .fields = {fields::label("cboGroup", "&Group:", "GroupName", "<g>")
                   .from("SELECT DISTINCT GroupName FROM Samples")},
    .insert = "INSERT INTO Samples (Kind, GroupName) VALUES(<k>, '<g>')",
};

/// A dialog with a column that no field has.
class GroupedDialog : public RecordDialog {
  public:
    explicit GroupedDialog(Library& library) : RecordDialog(library, "frmSample", grouped) {}

  protected:
    void filling() override { kind_ = 4; }
    void addTags(StatementTags& tags) override { tags.plain("<k>", kind_); }

  private:
    int kind_ = 0;
};

TEST(RecordDialog, AListComesFromAQueryAndFurtherTagsAreFilledBeforeTheUsersText) {
    Stage stage;
    stage.host->rows("SELECT DISTINCT GroupName FROM Samples",
                     "<Records><Record><GroupName>Lifts</GroupName></Record></Records>");
    stage.desktop.user<GroupedDialog>("frmSample", [](GroupedDialog& dialog) {
        EXPECT_EQ(dialog.comboBox("cboGroup").entries().at(0).text, "Lifts");
        dialog.comboBox("cboGroup").userType("<k> of mine");
        dialog.cmdOK.userPress();
    });
    openRecord(
        *stage.library, "frmSample", [&] { return std::make_shared<GroupedDialog>(*stage.library); }, 0);
    EXPECT_THAT(stage.inserted(),
                ElementsAre("INSERT INTO Samples (Kind, GroupName) VALUES(4, '<k> of mine')"));
}

}  // namespace
}  // namespace tsln::test
