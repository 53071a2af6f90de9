#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "maintenance/ListRows.h"

namespace tsln::test {
namespace {

using testing::ElementsAre;
using Way = modSharedXML::RowReader::Way;

TEST(ListRows, AreFormattedByColumnForEveryWayOfReading) {
    const Choice kinds[] = {{0, "None"}, {2, "Two"}};
    const ListColumn columns[] = {{"Name", 100, "Name"},
                                  {"Active", 50, "Active", ListColumn::Show::YesNo},
                                  {"Kind", 50, "Kind", ListColumn::Show::Choice, kinds},
                                  {"Rate", 50, "Rate", ListColumn::Show::Number},
                                  {"Number", 50, "ID"}};
    const std::string text =
        "<Records><Record><ID>7</ID><Name>A &amp; B</Name><Active>yes</Active><Kind>2</Kind><Rate>0.50</Rate></Record>"
        "<Record><Name>no more</Name></Record>"
        "<Record><ID>x</ID><Name/><Active>0</Active><Kind>9</Kind></Record></Records>";
    for (const Way way : {Way::OnePass, Way::Nodes}) {
        const ReportRecords records = readListRows(text, columns, {}, way).records;
        EXPECT_THAT(records.ids(), ElementsAre(7, 0, 0));
        std::vector<std::string> cells;
        for (std::size_t row = 0; row < records.count(); ++row) {
            for (std::size_t c = 0; c < records.columns(); ++c)
                cells.emplace_back(records.cell(row, c));
        }
        EXPECT_THAT(cells, ElementsAre("A & B", "Yes", "Two", "0.50", "7",  //
                                       "no more", "No", "None", "", "",     //
                                       "", "No", "9", "", "x"));
    }
}

TEST(ListRows, KeepFieldsThatAreNotShown) {
    const ListColumn columns[] = {{"Name", 100, "Name"}, {"Active", 50, "Active", ListColumn::Show::YesNo}};
    const std::string_view kept[] = {"To", "Name"};
    std::string text = "<Records>";
    for (int i = 0; i < 200; ++i)  // more than the sample from which the memory is estimated
        text += "<Record><ID>" + std::to_string(i) + "</ID><Name>n" + std::to_string(i) +
                "</Name><To>t&#13;</To></Record>";
    for (const Way way : {Way::OnePass, Way::Nodes}) {
        const ListRows rows = readListRows(text + "</Records>", columns, {}, way, kept);
        ASSERT_EQ(rows.kept.count(), 200U);
        EXPECT_EQ(rows.records.columns(), 2U);
        EXPECT_EQ(rows.kept.cell(199, 0), "t\r");
        EXPECT_EQ(rows.kept.cell(199, 1), "n199");
        EXPECT_EQ(rows.records.cell(199, 1), "No");
    }
}

}  // namespace
}  // namespace tsln::test
