#include "doubles/Stage.h"
#include "maintenance/ListScreen.h"

namespace tsln::test {
namespace {

using Show = ListColumn::Show;

constexpr int toggle = 29001;
constexpr std::string_view detailFields[] = {"Method", "Value"};
constexpr std::string_view styleFields[] = {"Enabled"};

void runToggle(ListScreen& list) {
    list.tell("toggled " + std::to_string(list.selectedID()), MessageIcon::Information);
}

/// The options that every list has.
const ListDescription plainCharges{
    .open = Operation::ShowTerms,
    .edit = Operation::ShowEditAdditionalCharge,
    .screenName = "frmCharges",
    .caption = "Charges",
    .table = "Charges",
    .orderBy = "GroupName,Sequence",
    .columns = {{"Group", 100, "GroupName"},
                {"Name", 100, "Name"},
                {.caption = "Details",
                 .uses = detailFields,
                 .compute =
                     [](std::span<const std::string_view> values) {
                         return std::string(values[0]) + " of " + std::string(values[1]);
                     }},
                {"Begins", 100, "StartsOn", Show::Date},
                {"Price", 100, "Price", Show::Currency},
                {"Active", 60, "Enabled", Show::Check},
                {.caption = "Product", .field = "Product", .instead = "Any Product"}},
    .securityArea = 202,
    .deleteFailure = "not deleted",
    .busyState = true,
};

/// A list that uses every option of a description. One initializer of them all makes GCC 12 warn of members that it
/// wrongly takes for uninitialized.
ListDescription describeCharges() {
    ListDescription list = plainCharges;
    list.source = RecordDescription::Source::Recordset;
    list.rowStyle = {.uses = styleFields, .style = [](std::span<const std::string_view> values) {
                         return ReportControl::Style{.bold = values[0] == "1"};
                     }};
    list.groups = ListGroups{};
    list.commands.push_back({.id = toggle,
                             .caption = "Enable",
                             .needs = Needs::FocusedRow,
                             .rights = rights({Right::Edit}),
                             .popups = inMore | inOneItem,
                             .run = runToggle,
                             .beginsGroup = true,
                             .button = "cmdToggle",
                             .buttonCaption = "Enab&le"});
    list.contextMenu = true;
    list.filter = true;
    list.columnLayoutKey = "Charges:1";
    list.countLine = "{0} items";
    return list;
}
const ListDescription charges = describeCharges();

constexpr auto load = "SELECT * FROM Charges ORDER BY GroupName,Sequence";
constexpr auto rows =
    "<Records><Record><ID>1</ID><GroupName>Zeta</GroupName><Name>Flat</Name><Method>Rate</Method><Value>5</Value>"
    "<StartsOn>2011-03-04T10:20:30</StartsOn><Price>1234.5</Price><Enabled>1</Enabled><Product>P</Product></Record>"
    "<Record><ID>2</ID><GroupName/><Name>Plain</Name><Price>-2</Price><Enabled>0</Enabled></Record>"
    "<Record><ID>3</ID><GroupName>Alpha</GroupName><Name>Early</Name><StartsOn>1999-12-31</StartsOn>"
    "<Price>free</Price><Enabled>0</Enabled></Record></Records>";

struct ChargesStage : Stage {
    ChargesStage() {
        host->rows(load, rows);
        library->plugIn(Operation::ShowTerms,
                        [](Library& self, Arguments) { return Variant(showList(self, charges)); });
    }
    void run(const std::function<void(ListScreen&)>& act) {
        desktop.user<ListScreen>("frmCharges", act);
        library->ShowTerms();
    }
    std::vector<std::string> asked() const { return host->callsOf("Security.CanDo"); }
};

std::vector<std::string> shownRows(const ListScreen& list, std::size_t column) {
    std::vector<std::string> shown;
    for (std::size_t row = 0; row < list.rptItems.rowCount(); ++row) {
        const bool group = list.rptItems.row(row).isGroup();
        shown.push_back((group ? "# " : "") + std::string(list.rptItems.rowText(row, group ? 0 : column)));
    }
    return shown;
}

void selectRecord(ListScreen& list, std::int32_t ID) {
    const std::size_t row = *list.rptItems.findRow(*list.rptItems.findRecord(ID));
    list.rptItems.userSelect({{row}}, row);
}

TEST(ListScreen, EveryKindOfColumnIsShownGroupedInTheOrderOfTheRows) {
    ChargesStage stage;
    stage.run([](ListScreen& list) {
        EXPECT_THAT(shownRows(list, 1),
                    ElementsAre("# Zeta", "Flat", "# (No Group)", "Plain", "# Alpha", "Early"));
        EXPECT_THAT(shownRows(list, 2), Contains("Rate of 5"));
        EXPECT_THAT(shownRows(list, 3), AllOf(Contains("3/4/2011"), Contains("12/31/1999")));
        EXPECT_THAT(shownRows(list, 4), AllOf(Contains("$1,234.50"), Contains("($2.00)"), Contains("free")));
        EXPECT_THAT(shownRows(list, 6), AllOf(Contains("P"), Contains("Any Product")));
        EXPECT_TRUE(list.rptItems.checked(0, 5));
        EXPECT_TRUE(list.rptItems.style(0).bold);
        EXPECT_FALSE(list.rptItems.style(1).bold);
        EXPECT_EQ(list.lblRecords.caption(), "3 items");
        for (const ReportColumn& column : list.rptItems.columns)
            EXPECT_EQ(column.rightAligned, column.caption == "Price") << column.caption;
        list.rptItems.groupBy(std::nullopt);
        list.rptItems.userClickHeader(3);
        EXPECT_THAT(shownRows(list, 1), ElementsAre("Plain", "Early", "Flat")) << "dates sort by time";
    });
    EXPECT_THAT(stage.host->calls, Contains("CurrentCompanyConn.Execute(" + std::string(load) + ")"));
    EXPECT_THAT(stage.read(), IsEmpty());
}

TEST(ListScreen, AFilterReducesTheRowsAndTheirCount) {
    ChargesStage stage;
    stage.run([](ListScreen& list) {
        list.txtFilter.userType("EARL");
        EXPECT_THAT(shownRows(list, 1), ElementsAre("# Alpha", "Early"));
        EXPECT_EQ(list.lblRecords.caption(), "1 items");
        list.txtFilter.userType("");
        EXPECT_EQ(list.lblRecords.caption(), "3 items");
    });
}

TEST(ListScreen, KeepsTheColumnsAsTheUserArrangedThem) {
    ChargesStage stage;
    stage.run([](ListScreen& list) {
        list.rptItems.userColumnWidth(1, 333);
        list.rptItems.userClickHeader(4);
    });
    stage.run([](ListScreen& list) {
        EXPECT_EQ(list.rptItems.columns[1].width, 333);
        EXPECT_EQ(list.rptItems.sortOrder(), (SortOrder{.column = 4}));
    });
    // A layout that does not fit is passed over.
    stage.desktop.settings["Software\\Kestrane\\Tessaline\\5.0\\Column Layouts|Charges:1"] =
        "\xFF damaged;;=9";
    stage.run([](ListScreen& list) { EXPECT_EQ(list.rptItems.columns[1].width, 100); });
}

TEST(ListScreen, FurtherCommandsRunFromTheirButtonAndFromBothPopups) {
    ChargesStage stage;
    stage.run([&](ListScreen& list) {
        auto& button = dynamic_cast<Button&>(*list.control("cmdToggle"));
        EXPECT_FALSE(button.enabled()) << "no row has the focus";
        selectRecord(list, 3);
        EXPECT_TRUE(button.enabled());
        button.userPress();
        stage.desktop.popupChoices = {toggle, toggle};
        list.cmdMore.userPress();
        list.rptItems.userContextMenu(*list.rptItems.focusedRow());
    });
    EXPECT_EQ(stage.desktop.boxes.size(), 3U);
    for (const auto& box : stage.desktop.boxes)
        EXPECT_EQ(box.text, "toggled 3");
}

TEST(ListScreen, ColumnsAreKeptWithTheWindowAndAFileIsProposedAgain) {
    Stage stage;
    stage.host->rows("SELECT * FROM Charges ORDER BY GroupName,Sequence", rows);
    const auto show = [&](const std::function<void(ListScreen&)>& act) {
        stage.desktop.user<ListScreen>("frmCharges", act);
        ListScreen list(*stage.library, plainCharges);
        list.load();
        list.showModal();
        list.unload();
    };
    stage.desktop.popupChoices = {28202, 28202};
    stage.desktop.files = {"/nowhere/at/all.txt"};
    show([](ListScreen& list) {
        list.rptItems.userColumnWidth(0, 333);
        list.cmdMore.userPress();
        list.cmdMore.userPress();
    });
    EXPECT_THAT(stage.desktop.proposals, ElementsAre("Charges.txt", "/nowhere/at/all.txt"));
    show([](ListScreen& list) { EXPECT_EQ(list.rptItems.columns[0].width, 333); });
}

TEST(ListScreen, TheContextMenuFollowsTheSelectionAndTheRights) {
    ChargesStage stage;
    stage.host->on("Security.CanDo", [](Arguments a) { return Variant(a[1].toLong() != 16); });
    stage.run([&](ListScreen& list) {
        ReportControl& items = list.rptItems;
        items.userContextMenu(items.rowCount());
        selectRecord(list, 1);
        items.userContextMenu(*items.focusedRow());
        items.userSelectAll();
        items.userContextMenu(*items.focusedRow());
    });
    ASSERT_EQ(stage.desktop.popups.size(), 3U);
    const auto offered = [&](std::size_t popup) {
        std::vector<std::string> captions;
        for (const Command& command : stage.desktop.popups[popup].commands)
            captions.push_back(command.caption + (command.enabled ? "" : " (disabled)"));
        return captions;
    };
    EXPECT_EQ(stage.desktop.popups[0].caption, "No Items");
    EXPECT_THAT(offered(0), ElementsAre("&New..."));
    EXPECT_THAT(offered(1), ElementsAre("&New...", "&Edit... (disabled)", "&Delete", "En&able (disabled)"));
    EXPECT_EQ(stage.desktop.popups[2].caption, "One Item");
    EXPECT_THAT(offered(2), ElementsAre("&New...", "&Edit... (disabled)", "&Delete", "En&able (disabled)"));
}

TEST(ListScreen, TheDialogGetsFurtherArguments) {
    class ChargesOfOneType : public ListScreen {
      public:
        using ListScreen::ListScreen;

      protected:
        std::vector<Variant> furtherArguments() const override { return {std::int16_t{256}}; }
    };
    ChargesStage stage;
    std::vector<std::string> opened;
    stage.library->plugIn(Operation::ShowTerms, [](Library& self, Arguments) {
        return Variant(showList<ChargesOfOneType>(self, charges));
    });
    stage.library->plugIn(Operation::ShowEditAdditionalCharge, [&](Library&, Arguments a) {
        opened.push_back(a[0].toText() + ", " + a[1].toText());
        return Variant(std::int32_t{0});
    });
    stage.run([](ListScreen& list) {
        list.cmdNew.userPress();
        list.rptItems.userInsertKey();
        selectRecord(list, 2);
        list.cmdEdit.userPress();
        EXPECT_EQ(list.rptItems.recordCount(), 3U) << "each dialog was cancelled";
    });
    EXPECT_THAT(opened, ElementsAre("0, 256", "0, 256", "2, 256"));
    EXPECT_THAT(stage.read(), IsEmpty());
}

TEST(ListScreen, EachRightIsAskedAtMostOncePerAction) {
    ChargesStage stage;
    stage.library->plugIn(Operation::ShowEditAdditionalCharge,
                          [](Library&, Arguments) { return Variant(std::int32_t{3}); });
    stage.host->rows("SELECT * FROM Charges WHERE ID = 3", rows);
    const auto eachOnce = [&](const char* act) {
        std::vector<std::string> asked = stage.asked();
        std::ranges::sort(asked);
        EXPECT_EQ(std::ranges::adjacent_find(asked), asked.end()) << act;
        stage.host->forget();
    };
    stage.run([&](ListScreen& list) {
        EXPECT_THAT(stage.asked(), Contains("202, 8"));
        eachOnce("opening");
        selectRecord(list, 3);
        eachOnce("selecting");
        list.cmdEdit.userPress();
        eachOnce("editing");
        list.cmdMore.userPress();
        eachOnce("the popup");
        list.cmdDelete.userPress();
        eachOnce("deleting");
        EXPECT_EQ(list.rptItems.recordCount(), 2U);
        list.cmdNew.userPress();
        eachOnce("adding");
    });
}

TEST(ListScreen, AfterBusyWorkTheButtonsFollowTheCurrentRights) {
    for (const int revoked : {8, 16, 32}) {
        ChargesStage stage;
        bool deleted = false;
        stage.host->on("Security.CanDo",
                       [&](Arguments a) { return Variant(!deleted || a[1].toLong() != revoked); });
        stage.host->on("Database.ExecuteNonQuery", [&](Arguments) {
            deleted = true;
            return Variant(true);
        });
        stage.run([&](ListScreen& list) {
            selectRecord(list, 1);
            EXPECT_TRUE(list.cmdNew.enabled() && list.cmdEdit.enabled() && list.cmdDelete.enabled());
            list.cmdDelete.userPress();
            selectRecord(list, 2);
            EXPECT_EQ(list.cmdNew.enabled(), revoked != 8);
            EXPECT_EQ(list.cmdEdit.enabled(), revoked != 16);
            EXPECT_EQ(list.cmdDelete.enabled(), revoked != 32);
            EXPECT_TRUE(list.cmdMore.enabled() && list.cmdClose.enabled());
        });
    }
    // Rights that cannot be read are not held; the result of the work is shown.
    ChargesStage stage;
    stage.run([&](ListScreen& list) {
        selectRecord(list, 1);
        stage.host->on("Security.CanDo", raises());
        list.cmdDelete.userPress();
        EXPECT_FALSE(list.cmdNew.enabled() || list.cmdEdit.enabled() || list.cmdDelete.enabled());
        EXPECT_EQ(list.rptItems.recordCount(), 2U);
    });
    EXPECT_EQ(stage.failures().size(), 1U);
}

TEST(ListScreen, ADeletionThatIsCutShortShowsTheRowsThatAreLeft) {
    ChargesStage stage;
    int deleted = 0;
    stage.host->on("Database.ExecuteNonQuery", [&](Arguments) {
        if (deleted++ > 0) throw HostError(code::fail, "Host", "down");
        return Variant(true);
    });
    stage.run([&](ListScreen& list) {
        const std::size_t before = list.rptItems.recordCount();
        list.rptItems.userSelectAll();
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.recordCount(), before - 1);
        EXPECT_EQ(list.lblRecords.caption(), std::to_string(before - 1) + " items");
    });
    EXPECT_TRUE(stage.told());
}

TEST(ListScreen, TheDeleteKeyAsksAndTheButtonDoesNot) {
    ChargesStage stage;
    stage.run([&](ListScreen& list) {
        list.rptItems.userDeleteKey();
        EXPECT_THAT(stage.desktop.boxes, IsEmpty()) << "nothing is selected";
        selectRecord(list, 1);
        stage.desktop.answers = {MessageAnswer::No, MessageAnswer::Yes};
        list.rptItems.userDeleteKey();
        EXPECT_THAT(stage.executed(), IsEmpty());
        list.rptItems.userDeleteKey();
        EXPECT_EQ(list.lblRecords.caption(), "2 items");
        selectRecord(list, 2);
        list.cmdDelete.userPress();
        EXPECT_EQ(list.lblRecords.caption(), "1 items");
    });
    EXPECT_EQ(stage.desktop.boxes.size(), 2U);
    EXPECT_THAT(stage.executed(),
                ElementsAre("DELETE FROM Charges WHERE ID = 1", "DELETE FROM Charges WHERE ID = 2"));
}

TEST(ListScreen, AClosedRecordsetGivesNoRowsAndAMissingConnectionIsReported) {
    ChargesStage closed;
    closed.host->on("CurrentCompanyConn.Execute", Variant(ObjectPtr()));
    closed.run([](ListScreen& list) {
        EXPECT_EQ(list.rptItems.recordCount(), 0U);
        EXPECT_TRUE(list.cmdClose.enabled());
    });
    ChargesStage none;
    none.host->on("CurrentCompanyConn", Variant(ObjectPtr()));
    none.run([](ListScreen& list) {
        EXPECT_EQ(list.rptItems.recordCount(), 0U);
        EXPECT_TRUE(list.cmdClose.enabled());
        EXPECT_EQ(list.caption(), "Charges");
    });
    EXPECT_TRUE(none.told());
}

}  // namespace
}  // namespace tsln::test
