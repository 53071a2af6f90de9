#include <algorithm>

#include "doubles/Stage.h"
#include "measurements/LocationChooser.h"
#include "measurements/MeasurementDialog.h"
#include "measurements/MeasurementsList.h"

namespace tsln::test {
namespace {

using measurements::LocationChooser;
using measurements::MeasurementDialog;
using measurements::MeasurementsList;

constexpr auto frmList = "frmCustomerMeasurements";
constexpr auto frmDialog = "frmCustomerMeasurements_Edit";
constexpr auto frmChooser = "frmCustomerMeasurements_SelectLocation";
constexpr auto load = "SELECT * FROM CustomerMeasurements WHERE CustomerID = 5 ORDER BY Location,AddedOn";
constexpr auto emptyQuestion = "Are you sure you want to create an empty measurement?";
constexpr auto sizeQuestion = "Are you sure you want to create a measurement with no width or height?";

std::string row(int ID, const std::string& location, const std::string& width) {
    return "<Record><ID>" + std::to_string(ID) + "</ID><Location>" + location +
           "</Location><Room>Den</Room><Item>Bay 'A'</Item><Mount>Inside</Mount><Width>" + width +
           "</Width><Length>60</Length><Remarks>a&#13;&#10;b</Remarks></Record>";
}
std::string rowStatement(int ID) {
    return "SELECT * FROM CustomerMeasurements WHERE ID = " + std::to_string(ID);
}

/// A host with two measurements of customer 5, which numbers the added ones from 21 on and shows them again.
struct MeasurementStage : Stage {
    MeasurementStage() { furnish(*this); }
    static void furnish(Stage& stage) {
        RecordingHost& host = *stage.host;
        host.rows(load, "<Records>" + row(7, "House", "35 1/2") + row(8, "Office", "40") + "</Records>");
        for (int ID = 7; ID < 50; ++ID)
            host.rows(rowStatement(ID), "<Records>" + row(ID, "House", std::to_string(ID)) + "</Records>");
        host.rows("SELECT Room FROM MeasurementRooms ORDER BY Room",
                  "<Records><Record><Room>Den</Room></Record><Record><Room>Hall</Room></Record></Records>");
        host.on("Common.GetCustomerName", Variant("O'Dell, Effie"));
        host.on("Options.ExternalProgram", Variant("/opt/meter"));
        host.on("Database.ExecuteNonQueryWithID",
                [next = std::make_shared<int>(20)](Arguments) { return Variant(++*next); });
    }
    std::int32_t edit(std::int32_t ID, const std::function<void(MeasurementDialog&)>& act) {
        desktop.user<MeasurementDialog>(frmDialog, act);
        return library->ShowEditCustomerMeasurement(ID, 5, Variant());
    }
};

void choose(MeasurementDialog& dialog, const char* combo, const char* text) {
    dialog.comboBox(combo).userType(text);
}
void fill(MeasurementDialog& dialog) {
    choose(dialog, "cboLocation", "Mother's");
    choose(dialog, "cboRoom", "Hall");
    choose(dialog, "cboItem", "Bay 'A' <id>");
    choose(dialog, "cboMount", "Inside");
    dialog.textBox("txtWidth").userType("35 1/2\"");
    dialog.textBox("txtHeight").userType("6\u2032 \U0001F4CF");
    dialog.textBox("txtNote").userType("a\r\nb");
}

TEST(MeasurementDialog, AMeasurementIsInsertedAndUpdatedAsTyped) {
    MeasurementStage stage;
    EXPECT_EQ(stage.edit(0,
                         [](MeasurementDialog& dialog) {
                             EXPECT_EQ(dialog.caption(), "New Customer Measurement");
                             EXPECT_EQ(dialog.comboBox("cboLocation").entries().size(), 2U);
                             EXPECT_EQ(dialog.comboBox("cboRoom").entries().size(), 2U);
                             fill(dialog);
                             dialog.cmdOK.userPress();
                         }),
              21);
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre("INSERT INTO CustomerMeasurements (CustomerID,Location,Room,[Item],Mount,Width,Length,"
                    "Remarks) VALUES(5,'Mother''s','Hall','Bay ''A'' <id>','Inside','35 1/2\"',"
                    "'6\u2032 \U0001F4CF','a\r\nb')"));
    EXPECT_EQ(stage.edit(7,
                         [](MeasurementDialog& dialog) {
                             EXPECT_EQ(dialog.caption(), "Edit Customer Measurement");
                             EXPECT_EQ(dialog.comboBox("cboItem").text(), "Bay 'A'");
                             dialog.textBox("txtWidth").userType("<cid>");
                             dialog.cmdOK.userPress();
                         }),
              7);
    EXPECT_THAT(stage.executed(),
                ElementsAre("UPDATE CustomerMeasurements SET Location = 'House', Room = 'Den', [Item] =  "
                            "'Bay ''A''', Mount = 'Inside', Width = '<cid>', Length = '60', "
                            "Remarks = 'a\r\nb' WHERE ID = 7"));
    EXPECT_THAT(
        stage.host->callsOf("Common.LoadComboFromQuery"),
        Contains("object, SELECT ItemName FROM MeasurementItems ORDER BY ItemName, ItemName, , False"));
    EXPECT_THAT(stage.host->callsOf("Common.LoadComboFromQuery"),
                Contains("object, SELECT Mount FROM MeasurementMounts ORDER BY Mount, Mount, , False"));
    EXPECT_EQ(stage.edit(7, [](MeasurementDialog& dialog) { dialog.cmdCancel.userPress(); }), 0);
    EXPECT_FALSE(stage.told());
}

TEST(MeasurementDialog, AsksAboutWhatIsEmptyAndNeedsALocation) {
    const struct {
        const char *location, *room, *width, *note;
        std::deque<MessageAnswer> answers;
        std::vector<const char*> asked;
        bool saved;
    } cases[] = {
        {"House", "", "30", "", {}, {}, true},
        {"House", "Den", "", "", {MessageAnswer::Yes}, {sizeQuestion}, true},
        {"House", "", "", "n", {MessageAnswer::No}, {sizeQuestion}, false},
        {"House", "", "", "", {MessageAnswer::Yes, MessageAnswer::Yes}, {emptyQuestion, sizeQuestion}, true},
        {"House", "", "", "", {MessageAnswer::Yes, MessageAnswer::No}, {emptyQuestion, sizeQuestion}, false},
        {"House", "", "", "", {MessageAnswer::No}, {emptyQuestion}, false},
    };
    for (const auto& c : cases) {
        MeasurementStage stage;
        stage.desktop.answers = c.answers;
        stage.edit(0, [&](MeasurementDialog& dialog) {
            choose(dialog, "cboLocation", c.location);
            choose(dialog, "cboRoom", c.room);
            dialog.textBox("txtWidth").userType(c.width);
            dialog.textBox("txtNote").userType(c.note);
            dialog.cmdOK.userPress();
            EXPECT_EQ(dialog.shown(), !c.saved);
        });
        EXPECT_EQ(stage.inserted().size(), c.saved ? 1U : 0U);
        std::vector<Box> expected;
        for (const char* question : c.asked)
            expected.push_back({question, MessageButtons::YesNo, MessageIcon::Question, "Empty Measurement"});
        EXPECT_EQ(stage.desktop.boxes, expected);
    }
    MeasurementStage stage;
    stage.edit(0, [](MeasurementDialog& dialog) {
        choose(dialog, "cboLocation", "  ");
        dialog.textBox("txtWidth").userType("30");
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
        EXPECT_EQ(dialog.focusedControl(), &dialog.comboBox("cboLocation"));
    });
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("You must enter a location.")));
}

TEST(MeasurementDialog, AFailedSaveIsReportedAndKeepsTheInput) {
    for (const std::int32_t ID : {0, 7}) {
        MeasurementStage stage;
        stage.host->on("Database.ExecuteNonQueryWithID", Variant(-1));
        stage.host->on("Database.ExecuteNonQuery", Variant(false));
        EXPECT_EQ(stage.edit(ID,
                             [](MeasurementDialog& dialog) {
                                 fill(dialog);
                                 dialog.chkAgain.userCheck(true);
                                 dialog.cmdOK.userPress();
                                 EXPECT_EQ(dialog.textBox("txtWidth").text(), "35 1/2\"");
                                 dialog.cmdCancel.userPress();
                             }),
                  0);
        EXPECT_THAT(stage.failures(),
                    ElementsAre(explained("There was a problem saving this customer measurement.")));
    }
}

TEST(MeasurementDialog, TheTransferProgramIsStartedAndTypesIntoTheWidth) {
    MeasurementStage stage;
    stage.edit(0, [](MeasurementDialog& dialog) {
        dialog.cmdDisto.userPress();
        EXPECT_EQ(dialog.focusedControl(), &dialog.textBox("txtWidth"));
        EXPECT_TRUE(dialog.textBox("txtWidth").userEnter());
        EXPECT_EQ(dialog.focusedControl(), &dialog.textBox("txtHeight"));
        EXPECT_FALSE(dialog.textBox("txtHeight").userEnter()) << "Enter there presses OK";
    });
    EXPECT_THAT(stage.desktop.opened, ElementsAre("/opt/meter|"));
    EXPECT_THAT(stage.host->callsOf("Options.ExternalProgram"), ElementsAre("DistoTransfer"));
    stage.host->on("Options.ExternalProgram", Variant(""));
    stage.edit(0, [](MeasurementDialog& dialog) { dialog.cmdDisto.userPress(); });
    EXPECT_EQ(stage.desktop.opened.size(), 1U);
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(exclamation("The Leica Disto Transfer software cannot be located.")));
}

TEST(MeasurementsList, AgainAddsMeasurementAfterMeasurementAndShowsEachAtOnce) {
    MeasurementStage stage;
    MeasurementsList* list = nullptr;
    const auto listed = [&] { return list->rptItems.rowCount(); };
    stage.desktop.user<MeasurementDialog>(frmDialog, [&](MeasurementDialog& dialog) {
        choose(dialog, "cboLocation", "House");
        choose(dialog, "cboRoom", "Den");
        dialog.chkAgain.userCheck(true);
        for (const char* width : {"10", "11", "12"}) {
            const std::size_t before = listed();
            dialog.textBox("txtWidth").userType(width);
            dialog.textBox("txtHeight").userType("60");
            dialog.textBox("txtNote").userType("crank");
            dialog.cmdOK.userPress();
            EXPECT_EQ(listed(), before + 1);
            EXPECT_EQ(dialog.focusedControl(), &dialog.textBox("txtWidth"));
            EXPECT_EQ(dialog.textBox("txtWidth").text() + dialog.textBox("txtHeight").text() +
                          dialog.textBox("txtNote").text(),
                      "");
            EXPECT_EQ(dialog.comboBox("cboRoom").text(), "Den");
        }
        dialog.cmdCancel.userPress();
    });
    // From an existing measurement, "again" goes on with a new one.
    stage.desktop.user<MeasurementDialog>(frmDialog, [&](MeasurementDialog& dialog) {
        EXPECT_EQ(dialog.textBox("txtWidth").text(), "7");
        dialog.chkAgain.userCheck(true);
        dialog.cmdOK.userPress();
        EXPECT_EQ(list->rptItems.rowText(0, 4), "7") << "the changed row is read again";
        EXPECT_EQ(dialog.caption(), "New Customer Measurement");
        dialog.chkAgain.userCheck(false);
        dialog.textBox("txtWidth").userType("13");
        dialog.cmdOK.userPress();
    });
    stage.desktop.user<MeasurementsList>(frmList, [&](MeasurementsList& screen) {
        list = &screen;
        EXPECT_EQ(screen.caption(), "Customer Measurements - O'Dell, Effie");
        EXPECT_EQ(screen.rptItems.rowText(0, 4), "35 1/2");
        EXPECT_EQ(screen.rptItems.rowText(0, 6), "a\r\nb");
        screen.cmdNew.userPress();
        EXPECT_EQ(listed(), 5U) << "the last one is not shown twice";
        screen.rptItems.selectRow(0);
        screen.cmdEdit.userPress();
        EXPECT_EQ(listed(), 6U);
        screen.cmdClose.userPress();
    });
    EXPECT_TRUE(stage.library->ShowCustomerMeasurements(5));
    EXPECT_THAT(stage.inserted(), AllOf(SizeIs(4), Each(HasSubstr("VALUES(5,'House','Den'"))));
    EXPECT_THAT(stage.executed(), SizeIs(1));
    EXPECT_FALSE(stage.told());

    // Without a list the result is the measurement saved last, also when the next one is cancelled.
    EXPECT_EQ(stage.edit(0,
                         [](MeasurementDialog& dialog) {
                             fill(dialog);
                             dialog.chkAgain.userCheck(true);
                             dialog.cmdOK.userPress();
                             dialog.cmdCancel.userPress();
                         }),
              25);
}

TEST(MeasurementsList, DeletesTheSelectedRowsAndFollowsTheRights) {
    MeasurementStage stage;
    stage.host->on("Security.CanDo",
                   [](Arguments a) { return Variant(a[0].toLong() == 300 && a[1].toLong() != 8); });
    stage.host->on("Database.ExecuteNonQuery",
                   [](Arguments a) { return Variant(a[0].toText().ends_with("= 7")); });
    stage.desktop.user<MeasurementsList>(frmList, [&](MeasurementsList& list) {
        EXPECT_FALSE(list.cmdNew.enabled());
        list.rptItems.userSelectAll();
        EXPECT_TRUE(list.cmdDelete.enabled());
        list.rptItems.userContextMenu(0);
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 1U);
    });
    EXPECT_FALSE(stage.library->ShowCustomerMeasurements(5));
    EXPECT_THAT(stage.executed(), ElementsAre("DELETE FROM CustomerMeasurements WHERE ID = 7",
                                              "DELETE FROM CustomerMeasurements WHERE ID = 8"));
    EXPECT_THAT(stage.failures(),
                ElementsAre(explained("There was a problem deleting one or more customer measurements")));
    ASSERT_EQ(stage.desktop.popups.size(), 1U);
    for (const Command& command : stage.desktop.popups[0].commands)
        EXPECT_EQ(command.enabled, command.caption == "&Delete") << command.caption;
}

constexpr auto locations = "SELECT DISTINCT Location FROM CustomerMeasurements WHERE CustomerID = 5";
constexpr auto sorted = "SELECT * FROM CustomerMeasurements WHERE CustomerID = 5 ORDER BY Location,Room,Item";

void furnishChooser(Stage& stage) {
    MeasurementStage::furnish(stage);
    stage.host->rows(locations,
                     "<Records><Record><Location>House</Location></Record>"
                     "<Record><Location>Office</Location></Record></Records>");
    stage.host->rows(sorted, "<Records>" + row(3, "House", "1") + row(4, "house ", "2") +
                                 row(9, "Office", "3") + "</Records>");
}

TEST(LocationChooser, ReturnsTheSelectedRowOfTheChosenLocation) {
    MeasurementStage stage;
    furnishChooser(stage);
    Variant chosen(false);
    const auto call = [&](const std::function<void(LocationChooser&)>& act) {
        stage.desktop.user<LocationChooser>(frmChooser, act);
        return stage.library->SelectCustomerMeasurementsLocation(5, Argument::byReference(chosen));
    };
    EXPECT_EQ(call([](LocationChooser& chooser) {
                  EXPECT_EQ(chooser.caption(), "Customer Measurements - O'Dell, Effie");
                  EXPECT_EQ(chooser.rptItems.rowCount(), 2U);
                  chooser.rptLocations.userSelect({{1}}, 1);
                  EXPECT_EQ(chooser.rptItems.rowCount(), 1U);
                  chooser.cmdOK.userPress();
                  EXPECT_EQ(chooser.Location, "Office");
              }),
              9);
    EXPECT_EQ(chosen, Variant(true));
    EXPECT_EQ(call([](LocationChooser& chooser) {
                  chooser.rptItems.userSelect({{1}}, 1);
                  chooser.rptItems.userDoubleClick(1);
              }),
              4);
    EXPECT_EQ(call([](LocationChooser& chooser) { chooser.cmdCancel.userPress(); }), 0);
    EXPECT_EQ(chosen, Variant(false));
    EXPECT_EQ(call([](LocationChooser& chooser) {
                  chooser.rptItems.userSelect({}, std::nullopt);
                  EXPECT_FALSE(chooser.cmdOK.enabled());
                  chooser.userClose();
              }),
              0);
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());

    stage.host->rows(sorted, "<Records/>");
    const std::size_t shown = stage.desktop.shown.size();
    chosen = true;
    EXPECT_EQ(call([](LocationChooser&) {}), 0);
    EXPECT_EQ(chosen, Variant(false));
    EXPECT_EQ(stage.desktop.shown.size(), shown) << "the chooser does not open";
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(testing::Field(
                                         &Box::text, "This customer does not have any saved measurements.")));
}

TEST(LocationChooser, NoFaultOfTheHostRefusesSilentlyOrTellsOfAChoice) {
    sweepFaults([](Stage& stage) {
        furnishChooser(stage);
        stage.desktop.user<LocationChooser>(frmChooser, [](LocationChooser& c) { c.cmdOK.userPress(); });
        Variant chosen(false);
        const std::int32_t ID =
            stage.library->SelectCustomerMeasurementsLocation(5, Argument::byReference(chosen));
        EXPECT_EQ(chosen.toBoolean(), ID > 0);
        EXPECT_TRUE(ID > 0 || stage.told()) << "nothing is refused without a word";
    });
}

}  // namespace
}  // namespace tsln::test
