#include <functional>
#include <map>
#include <optional>

#include <gtest/gtest.h>

#include "automation/Object.h"
#include "bridge/modSharedRecordHistory.h"

namespace tsln::modSharedRecordHistory {
namespace {

using Row = std::vector<std::pair<std::string, Variant>>;

/// A connection whose queries all return one row, and a host whose lookups all return one name; either may be
/// missing.
class Fake : public Object {
  public:
    std::string sql;
    std::optional<Row> row;
    bool open = true;
    std::string failing;  ///< the member that raises an error
    std::vector<std::string> lookups;

    Variant invoke(std::string_view member, Access, Arguments a) override {
        if (sameName(member, failing)) throw HostError(code::fail, "Fake", "down");
        if (sameName(member, "Execute")) return sql = a[0].toText(), here();
        if (sameName(member, "State")) return open ? 1 : 0;
        if (sameName(member, "EOF")) return !row;
        if (sameName(member, "Fields") || sameName(member, "Common")) return here();
        if (sameName(member, "Count")) return static_cast<std::int32_t>(row->size());
        if (sameName(member, "Item")) return at_ = static_cast<std::size_t>(a[0].toLong()), here();
        if (sameName(member, "Name")) return row->at(at_).first;
        if (sameName(member, "Value")) return row->at(at_).second;
        if (sameName(member, "Close")) return {};
        lookups.push_back(std::string(member) + " " + a[0].toText());
        return "name of " + a[0].toText();
    }

  private:
    ObjectPtr here() { return {ObjectPtr(), this}; }
    std::size_t at_ = 0;
};

struct History {
    Fake host;
    ObjectPtr connection{ObjectPtr(), &host};

    std::string told(std::string_view table, Row before, Row after) {
        host.row = std::move(before);
        const Document first = takeSnapshot(table, 7, connection);
        host.row = std::move(after);
        return describeChanges(compare(first, takeSnapshot(table, 7, connection)), table, connection);
    }
};

TEST(RecordHistory, ChangesAreDescribed) {
    const Variant missing = Null();
    const struct {
        const char* what;
        std::string_view table;
        Row before, after;
        std::string told;
    } cases[] = {
        {"nothing", "Vendors", {{"Contact", "Ivo"}}, {{"Contact", "Ivo"}}, ""},
        {"two columns",
         "Vendors",
         {{"Contact", "Ivo"}, {"City", "x"}, {"Zip", ""}},
         {{"Contact", "Edda"}, {"City", "x"}, {"Zip", "5"}},
         "Contact: Ivo to Edda\r\nZip:  to 5"},
        {"no value is no text",
         "Vendors",
         {{"TermsID", missing}, {"Notes", missing}},
         {{"TermsID", 4}, {"Notes", ""}},
         "TermsID:  to 4"},
        {"letter case", "Vendors", {{"Contact", "ivo"}}, {{"Contact", "Ivo"}}, "Contact: ivo to Ivo"},
        {"several lines", "Vendors", {{"Notes", "a\r\nb <&>"}}, {{"Notes", "c"}}, "Notes: a\r\nb <&> to c"},
        {"bookkeeping is told elsewhere",
         "Vendors",
         {{"UpdatedOn", "1"}},
         {{"UpdatedOn", "2"}},
         "UpdatedOn: 1 to 2"},
        {"a customer's bookkeeping",
         "CUSTOMERS",
         {{"UpdatedOn", "1"},
          {"lastused", "1"},
          {"AddedOn", "1"},
          {"AlternateUniqueID", "1"},
          {"uniqueid", "1"}},
         {{"UpdatedOn", "2"},
          {"lastused", "2"},
          {"AddedOn", "2"},
          {"AlternateUniqueID", "2"},
          {"uniqueid", "2"}},
         ""},
        {"an order's",
         "orders",
         {{"Created", "1"},
          {"CreatedBy", "1"},
          {"LastModified", "1"},
          {"LastModifiedBy", "1"},
          {"LastUsed", "1"}},
         {{"Created", "2"},
          {"CreatedBy", "2"},
          {"LastModified", "2"},
          {"LastModifiedBy", "2"},
          {"LastUsed", "2"}},
         "LastUsed: 1 to 2"},
        {"a job's",
         "Jobs",
         {{"Notes", "1"}, {"LastUsed", "1"}, {"JobName", "1"}},
         {{"Notes", "2"}, {"LastUsed", "2"}, {"JobName", "2"}},
         "JobName: 1 to 2"},
        {"a customer's name and state",
         "Customers",
         {{"CustomerName", "A"}, {"Active", 1}},
         {{"CustomerName", "B"}, {"Active", 0}},
         "Customer name: A to B\r\nActive: Yes to No"},
        {"an order's status keeps its numbers",
         "Orders",
         {{"StatusID", 1}},
         {{"StatusID", 2}},
         "Status: 1 to 2"},
        {"names are looked up",
         "Orders",
         {{"Status", 1}, {"SalesRepID", 3}, {"ShippingMethodID", missing}},
         {{"Status", 2}, {"SalesRepID", 4}, {"ShippingMethodID", 5}},
         "Status: name of 1 to name of 2\r\nSalesRepID: name of 3 to name of 4\r\nShipping Method:  to name of 5"},
    };
    for (const auto& c : cases) {
        History history;
        EXPECT_EQ(history.told(c.table, c.before, c.after), c.told) << c.what;
    }
}

TEST(RecordHistory, AColumnWithoutATextFormIsEmptyAndTheOthersAreDescribed) {
    History history;
    const Variant bytes = std::make_shared<Fake>();  // bytes arrive as an object
    EXPECT_EQ(history.told("Vendors", {{"Stamp", bytes}, {"Contact", "Ivo"}, {"Logo", Null()}},
                           {{"Stamp", bytes}, {"Contact", "Edda"}, {"Logo", bytes}}),
              "Contact: Ivo to Edda");
}

TEST(RecordHistory, ReadsTheTableAndLooksUpTheRightNames) {
    History history;
    history.told("Orders", {{"status", 1}, {"DesignerID", 1}, {"InstallerID", 1}, {"ShippingMethodID", 1}},
                 {{"status", 2}, {"DesignerID", 2}, {"InstallerID", 2}, {"ShippingMethodID", 2}});
    EXPECT_EQ(history.host.sql, "SELECT * FROM [Orders] WHERE ID = 7");
    EXPECT_EQ(history.host.lookups,
              (std::vector<std::string>{"GetOrderStatusNameFromID 1", "GetOrderStatusNameFromID 2",
                                        "GetEmployeeName 1", "GetEmployeeName 2", "GetEmployeeName 1",
                                        "GetEmployeeName 2", "GetShippingMethodName 1",
                                        "GetShippingMethodName 2"}));
}

TEST(RecordHistory, AnUnreadableRowIsNotDescribed) {
    const Row before{{"Contact", "Ivo"}}, after{{"Contact", "Edda"}};
    for (const char* failing : {"Execute", "State", "EOF", "Fields", "Count", "Item", "Name", "Value"}) {
        History history;
        history.host.failing = failing;
        EXPECT_EQ(history.told("Vendors", before, after), "") << failing;
    }
    History closed;
    closed.host.open = false;
    EXPECT_EQ(closed.told("Vendors", before, after), "");
    closed.host.open = true;
    closed.host.failing = "Close";
    EXPECT_EQ(closed.told("Vendors", before, after), "Contact: Ivo to Edda");

    EXPECT_FALSE(takeSnapshot("Vendors", 7, nullptr));
    closed.host.row.reset();
    EXPECT_FALSE(takeSnapshot("Vendors", 7, closed.connection)) << "there is no such row";
    closed.host.row = before;
    const Document there = takeSnapshot("Vendors", 7, closed.connection);
    EXPECT_FALSE(compare(there, nullptr));
    EXPECT_FALSE(compare(nullptr, there));

    // A name that cannot be looked up is empty; the other changes are described.
    History nameless;
    nameless.host.failing = "GetEmployeeName";
    EXPECT_EQ(nameless.told("Orders", {{"SalesRepID", 1}, {"Total", 1.5}}, {{"SalesRepID", 2}, {"Total", 2}}),
              "SalesRepID:  to \r\nTotal: 1.5 to 2");
}

}  // namespace
}  // namespace tsln::modSharedRecordHistory
