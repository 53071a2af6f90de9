#include "doubles/Stage.h"
#include "pricing/BulkChange.h"
#include "screens/Job.h"

namespace tsln::test {
namespace {

using pricing::BulkChange;

constexpr auto screenName = "frmBulkChange";
constexpr auto sure =
    "You are about to perform a bulk change on many records. This action cannot be undone. Are you sure you want to continue?, "
    "If you have not made a recent backup it is recommended that you do so before you proceed., 4";
constexpr auto completed = "Bulk change has completed, ";
constexpr auto problems =
    "Problems were encountered while performing the selected action on one or more of the selected items. Review the Event Log for more details., ";
constexpr std::int32_t yes = 6;

struct BulkStage : Stage {
    BulkStage() { furnish(*this); }
    static void furnish(Stage& stage) {
        stage.host->on("ShowMessageStyle1", Variant(yes));
        stage.host->on("Common.LoadTaxGroups", fills({{"Nevada", 9}}));
        stage.host->on("Common.GetCustomerName",
                       [](Arguments a) { return Variant(a[0].toLong() == 5 ? "Cora" : ""); });
        stage.host->on("CurrentCompanyConn.Execute",
                       [](Arguments a) { return a.assign(1, 1), Variant(ObjectPtr()); });
    }
    template <class Act>
    bool change(const Variant& kind, const Variant& selection, Act act) {
        desktop.user<BulkChange>(screenName, act);
        return library->ShowBulkChange(kind, selection);
    }
    /// The statements that ran on the connection.
    std::vector<std::string> statements() const {
        std::vector<std::string> texts = host->callsOf("CurrentCompanyConn.Execute");
        for (std::string& text : texts)
            text.erase(std::min(text.size(), text.rfind(", ")));
        return texts;
    }
};

TEST(BulkChange, EachActionRunsItsStatementForEveryRecord) {
    const std::string failed = " via Bulk Change. More information to follow.";
    const std::string taxLine = "Customer [Cora] could not have its tax exemtion number cleared" + failed;
    const struct {
        int kind;
        std::function<void(BulkChange&)> choose;
        const char* statement;
        std::string line;
    } cases[] = {
        {1, [](BulkChange& b) { b.optC_Delete.userSelect(); }, "DELETE FROM Customers WHERE ID = {}",
         "Customer [Cora] could not be deleted" + failed},
        {1, [](BulkChange& b) { b.optC_ChangeExportedStatus.userSelect(); },
         "UPDATE Customers SET Exported = 1 WHERE ID = {}",
         "Customer [Cora] could not have its export status changed" + failed},
        {1,
         [](BulkChange& b) {
             b.optC_ChangeExportedStatus.userSelect();
             b.cboC_ExportedStatus.userChoose(1);
         },
         "UPDATE Customers SET Exported = 0 WHERE ID = {}",
         "Customer [Cora] could not have its export status changed" + failed},
        {1,
         [](BulkChange& b) {
             b.optC_ChangeTaxGroup.userSelect();
             b.cboC_TaxGroup.userChoose(0);
         },
         "UPDATE Customers SET SalesTaxGroupID = 9 WHERE ID = {}", taxLine},
        {1, [](BulkChange& b) { b.optC_ChangeTaxGroup.userSelect(); },
         "UPDATE Customers SET SalesTaxGroupID = NULL WHERE ID = {}", taxLine},
        {1, [](BulkChange& b) { b.optC_ClearTaxEx.userSelect(); },
         "UPDATE Customers SET TaxExNumber = '' WHERE ID = {}", taxLine},
        {4, [](BulkChange& b) { b.optO_Delete.userSelect(); }, "DELETE FROM Orders WHERE ID = {}",
         "Order [1005] could not be deleted" + failed},
    };
    for (const auto& c : cases) {
        const auto of = [&](const char* ID) {
            std::string text = c.statement;
            return text.replace(text.find("{}"), 2, ID);
        };
        BulkStage stage;
        EXPECT_FALSE(stage.change(c.kind, "7, 5", [&](BulkChange& screen) {
            EXPECT_EQ(screen.TabControl1.isPageVisible(0), c.kind == 1);
            EXPECT_EQ(screen.TabControl1.isPageVisible(1), c.kind == 4);
            c.choose(screen);
            screen.cmdOK.userPress();
            EXPECT_EQ(screen.ProgressBar1.value(), 2);
        }));
        EXPECT_THAT(stage.statements(), ElementsAre(of("7"), of("5")));
        EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), ElementsAre(sure, completed));
        EXPECT_THAT(stage.host->callsOf("RecordEvent"), IsEmpty());

        // A record that refuses the change gets one line, and the others are still changed.
        BulkStage refusing;
        refusing.host->on("Database.ExecuteScaler", [](Arguments a) {
            EXPECT_EQ(a[0].toText(), "SELECT OrderNumber FROM Orders WHERE ID = 5");
            return Variant(1005);
        });
        refusing.host->on("CurrentCompanyConn.Execute", [&](Arguments a) -> Variant {
            if (a[0].toText() == of("5")) throw HostError(code::fail, "Connection", "locked");
            return ObjectPtr();  // this connection does not count rows
        });
        EXPECT_FALSE(refusing.change(c.kind, "5,6", [&](BulkChange& screen) {
            c.choose(screen);
            screen.cmdOK.userPress();
        }));
        EXPECT_THAT(refusing.statements(), ElementsAre(of("5"), of("6")));
        EXPECT_THAT(refusing.host->callsOf("RecordEvent"), ElementsAre(c.line));
        EXPECT_THAT(refusing.host->callsOf("ShowMessageStyle1"), ElementsAre(sure, problems));
    }
}

TEST(BulkChange, ARecordThatIsGoneIsLoggedByItsIdentifier) {
    BulkStage stage;
    stage.host->on("CurrentCompanyConn.Execute", [](Arguments a) {
        a.assign(1, a[0].toText().ends_with("= 6") ? 0 : 1);
        return Variant(ObjectPtr());
    });
    stage.change(true, 6, [](BulkChange&) {});  // a plain Boolean: orders
    EXPECT_FALSE(stage.change(false, "5,6,7", [](BulkChange& screen) {
        screen.optC_Delete.userSelect();
        screen.cmdOK.userPress();
    }));
    EXPECT_THAT(
        stage.host->callsOf("RecordEvent"),
        ElementsAre("Customer [6] could not be deleted via Bulk Change. More information to follow."));
    EXPECT_EQ(stage.statements().size(), 3U);
}

TEST(BulkChange, AConnectionMayTakeTheStatementAlone) {
    BulkStage stage;
    int ran = 0;
    stage.host->on("CurrentCompanyConn.Execute", [&](Arguments a) {
        a.require(1, 1);
        ++ran;
        return Variant(ObjectPtr());
    });
    stage.change(1, "5,6", [](BulkChange& screen) {
        screen.optC_Delete.userSelect();
        screen.cmdOK.userPress();
    });
    EXPECT_EQ(ran, 2);
    EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), ElementsAre(sure, completed));
}

TEST(BulkChange, NothingIsChangedWithoutAnActionOrWithoutConsent) {
    BulkStage stage;
    stage.host->on("ShowMessageStyle1", Variant(7));  // No
    EXPECT_TRUE(stage.change(1, 5, [&](BulkChange& screen) {
        EXPECT_FALSE(screen.cboC_TaxGroup.enabled());
        screen.cmdOK.userPress();
        EXPECT_THAT(stage.desktop.boxes,
                    ElementsAre(exclamation("You have not selected a bulk change to perform.")));
        EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), IsEmpty());
        screen.optC_Delete.userSelect();
        screen.cmdOK.userPress();
        EXPECT_TRUE(screen.shown());
        EXPECT_TRUE(screen.cmdOK.enabled() && screen.cmdCancel.enabled());
    }));
    EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), ElementsAre(sure));
    EXPECT_THAT(stage.statements(), IsEmpty());
}

TEST(BulkChange, AnEmptyOrUnreadableSelectionIsRefused) {
    for (const Variant& selection : {Variant(), Variant(""), Variant(Null()), Variant(ObjectPtr())}) {
        BulkStage stage;
        EXPECT_TRUE(stage.library->ShowBulkChange(1, selection));
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("No records are selected.")));
        EXPECT_THAT(stage.desktop.shown, IsEmpty());
    }
    for (const char* selection : {"5,x", "5;6", "99999999999"}) {
        BulkStage stage;
        EXPECT_TRUE(stage.library->ShowBulkChange(4, selection));
        EXPECT_EQ(stage.failures().size(), 1U) << selection;
        EXPECT_THAT(stage.desktop.shown, IsEmpty());
    }
    BulkStage stage;
    EXPECT_TRUE(stage.library->ShowBulkChange(2, 5));
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(testing::Field(&Box::text, HasSubstr("no kind of record 2"))));
}

TEST(BulkChange, CancelEndsItBetweenTwoRecords) {
    BulkStage stage;
    BulkChange* shown = nullptr;
    int done = 0;
    stage.host->on("CurrentCompanyConn.Execute", [&](Arguments) {
        if (++done == 3) shown->job()->userCancel();
        return Variant(ObjectPtr());
    });
    EXPECT_FALSE(stage.change(1, "1,2,3,4,5", [&](BulkChange& screen) {
        shown = &screen;
        screen.optC_ClearTaxEx.userSelect();
        screen.cmdOK.userPress();
    })) << "records were changed";
    EXPECT_EQ(done, 3);
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(information("The bulk change was cancelled after 3 of 5 records.")));
    EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), ElementsAre(sure));
}

TEST(BulkChange, NoFaultOfTheHostStopsTheDeletionOfOrders) {
    sweepFaults([](Stage& stage) {
        BulkStage::furnish(stage);
        stage.desktop.user<BulkChange>(screenName, [&](BulkChange& screen) {
            screen.optO_Delete.userSelect();
            screen.cmdOK.userPress();
            if (!screen.Cancelled && stage.host->callsOf("CurrentCompanyConn.Execute").size() < 3) {
                EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), Contains(problems));
            }
            EXPECT_TRUE(screen.cmdOK.enabled() && screen.cmdCancel.enabled());
        });
        stage.library->ShowBulkChange(4, "5,6,7");
    });
}

}  // namespace
}  // namespace tsln::test
