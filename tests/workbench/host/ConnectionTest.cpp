#include <gmock/gmock.h>

#include "tests/workbench/host/HostStage.h"

namespace tsln::workbench {
namespace {

using testing::HasSubstr;

struct ConnectionStage : HostStage {
    ObjectPtr connection = part("CurrentCompanyConn");

    ObjectPtr open(std::string_view sql) const { return connection->call("Execute", sql).toObject(); }
    Object& errors() const { return *(held_ = connection->get("Errors").toObject()); }
    std::int32_t errorCount() const { return errors().get("Count").toLong(); }
    /// Returns the lower half of the error code that the work raises, 0 without an error.
    template <class Work>
    static std::int32_t raised(const Work& work) {
        try {
            work();
            return 0;
        } catch (const HostError& error) {
            return error.code() & 0xFFFF;
        }
    }

  private:
    mutable ObjectPtr held_;
};

TEST(Connection, ARecordsetMovesThroughItsRows) {
    const ConnectionStage stage;
    const ObjectPtr rows = stage.open(
        "SELECT ID, Code, Rate, Vendor, NULL AS Nothing FROM SalesTaxCodes WHERE Rate > 0 ORDER BY Rate DESC");
    const auto value = [&](const Variant& which) { return rows->get("Fields", which).object().get("Value"); };
    EXPECT_EQ(rows->get("RecordCount"), Variant(4));
    EXPECT_EQ(rows->get("State"), Variant(1));
    double combined = 0;
    std::string codes;
    for (; !rows->get("EOF").toBoolean(); rows->call("MoveNext")) {
        combined += value("rate").toDouble();
        codes += value(1).toText() + ";";
    }
    EXPECT_DOUBLE_EQ(combined, 6);
    EXPECT_EQ(codes, "WI-STATE;MERRIDEN-CTY;OXBOW-CTY;LAKES-DIST;");
    EXPECT_EQ(ConnectionStage::raised([&] { rows->call("MoveNext"); }), 3021);
    EXPECT_EQ(ConnectionStage::raised([&] { value("Code"); }), 3021);
    rows->call("MovePrevious");
    EXPECT_EQ(value("Vendor"), Variant("Lakes District Board"));

    rows->call("MoveFirst");
    EXPECT_EQ(value("ID"), Variant(1));
    EXPECT_TRUE(value("Nothing").isNull());
    const ObjectPtr fields = rows->get("Fields").toObject();
    EXPECT_EQ(fields->get("Count"), Variant(5));
    EXPECT_EQ(fields->get("Item", 3).object().get("Name"), Variant("Vendor"));
    for (const Variant& wrong : {Variant("NoSuch"), Variant(5), Variant(-1)})
        EXPECT_EQ(ConnectionStage::raised([&] { fields->get("Item", wrong); }), 3265);
    rows->call("MovePrevious");
    EXPECT_TRUE(rows->get("BOF").toBoolean());
    EXPECT_EQ(ConnectionStage::raised([&] { rows->call("MovePrevious"); }), 3021);

    // Later changes to the company do not affect the recordset. A closed recordset gives no values.
    const ObjectPtr code = fields->get("Item", "Code").toObject();
    rows->call("MoveLast");
    stage.run("DELETE FROM SalesTaxCodes");
    EXPECT_EQ(code->get("Value"), Variant("LAKES-DIST"));
    rows->call("Close");
    EXPECT_EQ(rows->get("State"), Variant(0));
    for (const char* member : {"EOF", "MoveFirst", "RecordCount", "Fields", "Close"}) {
        const Variant which = "Code";
        EXPECT_EQ(ConnectionStage::raised([&] {
                      std::string_view(member) == "Fields" ? rows->call(member, which) : rows->call(member);
                  }),
                  3704)
            << member;
    }
    EXPECT_EQ(ConnectionStage::raised([&] { code->get("Value"); }), 3704);

    const ObjectPtr none = stage.open("SELECT * FROM Terms");
    EXPECT_TRUE(none->get("EOF").toBoolean() && none->get("BOF").toBoolean());
    EXPECT_EQ(none->get("Fields").object().get("Item", 1).object().get("Name"), Variant("Terms"));
    EXPECT_EQ(ConnectionStage::raised([&] { none->call("MoveFirst"); }), 3021);
}

TEST(Connection, ExecuteReturnsTheNumberOfChangedRows) {
    const ConnectionStage stage;
    Variant changed;
    const auto execute = [&](std::string_view sql) {
        Argument arguments[] = {Argument(sql), Argument::byReference(changed)};
        return stage.connection->invoke("Execute", Access::Call, Arguments(arguments)).toObject();
    };
    const ObjectPtr result = execute("UPDATE SalesTaxCodes SET Exported = 1");
    EXPECT_EQ(changed, Variant(5));
    EXPECT_EQ(result->get("State"), Variant(0)) << "a statement without rows returns a closed recordset";
    execute("SELECT * FROM SalesTaxCodes");
    EXPECT_EQ(changed, Variant(-1));
    EXPECT_EQ(stage.errorCount(), 0);
}

TEST(Connection, AFailureIsRaisedAndKeptInErrors) {
    ConnectionStage stage;
    const auto fail = [&](std::string_view table) {
        EXPECT_EQ(ConnectionStage::raised([&] { stage.open("DELETE FROM " + std::string(table)); }), 0x0E14);
    };
    fail("First");
    fail("Second");
    EXPECT_EQ(stage.errorCount(), 1) << "only the last failure is kept";
    stage.open("DELETE FROM Discounts");
    const ObjectPtr error = stage.errors().get("Item", 0).toObject();
    EXPECT_THAT(error->get("Description").toText(), HasSubstr("Second"));
    EXPECT_EQ(error->get("Number").toLong(), static_cast<std::int32_t>(0x80040E14));
    EXPECT_EQ(error->get("Source"), Variant("Company database"));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Discounts"), "0");

    // shown with the connection, and with its error text
    stage.shared().call("ShowADOErrorMessage", "It failed.", "{standard explanation}", stage.connection);
    stage.shared().call("ShowADOErrorMessage", "It failed.", "", error->get("Description"));
    ASSERT_EQ(stage.ui.shown.size(), 2U);
    for (const Message& message : stage.ui.shown) {
        EXPECT_EQ(message.style, MessageStyle::Error);
        EXPECT_THAT(message.detail, HasSubstr("Second"));
    }
    EXPECT_THAT(stage.ui.shown[0].explanation, HasSubstr("in use by another user"));

    stage.errors().call("Clear");
    EXPECT_EQ(stage.errorCount(), 0);
    EXPECT_EQ(ConnectionStage::raised([&] { stage.errors().get("Item", 0); }), 3265);
    stage.shared().call("ShowADOErrorMessage", "It failed.", "", stage.connection);
    EXPECT_EQ(stage.ui.shown.back().detail, "");
}

TEST(Connection, TransactionsAreCommittedOrRolledBack) {
    const ConnectionStage stage;
    const auto begin = [&] { stage.connection->call("BeginTrans"); };
    const auto rollback = [&] { stage.connection->call("RollbackTrans"); };
    const auto commit = [&] { stage.connection->call("CommitTrans"); };
    const auto wipe = [&] { stage.open("DELETE FROM SalesTaxGroupCodes"); };
    const auto count = [&] { return stage.value("SELECT COUNT(*) FROM SalesTaxGroupCodes"); };

    begin();
    wipe();
    EXPECT_EQ(count(), "0");
    rollback();
    EXPECT_EQ(count(), "7");
    begin();
    EXPECT_NE(ConnectionStage::raised(begin), 0) << "only one transaction can be open";
    wipe();
    // the other service's statements are part of the transaction
    EXPECT_TRUE(stage.part("Database")->call("ExecuteNonQuery", "DELETE FROM Accounts").toBoolean());
    commit();
    EXPECT_EQ(count(), "0");
    EXPECT_EQ(Company(stage.folder.file("test.company")).scalar("SELECT COUNT(*) FROM Accounts"), Variant(0));
    EXPECT_NE(ConnectionStage::raised(commit), 0);
    EXPECT_NE(ConnectionStage::raised(rollback), 0);
    EXPECT_EQ(stage.errorCount(), 1);
}

TEST(Connection, AnUnfinishedTransactionIsRolledBack) {
    TestFolder folder;
    RecordingUi ui;
    const std::string path = folder.file("a.company");
    {
        CompanySession session(path, "admin", ui);
        const ObjectPtr connection = session.sharedCode()->get("CurrentCompanyConn").toObject();
        connection->call("BeginTrans");
        connection->call("Execute", "DELETE FROM Customers");
    }
    EXPECT_EQ(Company(path).scalar("SELECT COUNT(*) FROM Customers"), Variant(60));
}

}  // namespace
}  // namespace tsln::workbench
