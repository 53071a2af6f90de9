#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/ReportControl.h"
#include "screens/Screen.h"
#include "doubles/QuietDesktop.h"

namespace tsln {
namespace {

using testing::ElementsAre;

class ListOnly : public Screen {
  public:
    explicit ListOnly(Desktop& desktop) : Screen(desktop, "frmListOnly") {}
    Layout layout() override { return layout::fill(list); }
    ReportControl list{*this, "list"};
};

class ReportControlTest : public testing::Test {
  protected:
    ReportControlTest() {
        list.columns = {{.caption = "Name"}, {.caption = "Days", .numeric = true}, {.caption = "Kind"}};
    }
    void add(std::int32_t id, std::string_view name, std::string_view days = "", std::string_view kind = "") {
        const std::string_view cells[] = {name, days, kind};
        list.addRecord(id, cells);
    }
    std::vector<std::string> shown(std::size_t column = 0) {
        std::vector<std::string> texts;
        for (std::size_t row = 0; row < list.rowCount(); ++row)
            texts.emplace_back(list.rowText(row, column));
        return texts;
    }

    test::QuietDesktop desktop;
    ListOnly screen{desktop};
    ReportControl& list = screen.list;
};

TEST_F(ReportControlTest, SortsTextWithoutLetterCaseAndNumbersByValue) {
    add(1, "net 30", "30");
    add(2, "COD", "");
    add(3, "Net 15", "9");
    add(4, "cod", "100");
    list.populate();
    EXPECT_THAT(shown(), ElementsAre("net 30", "COD", "Net 15", "cod")) << "as they were added";
    list.userClickHeader(0);
    EXPECT_THAT(shown(), ElementsAre("COD", "cod", "Net 15", "net 30"));
    list.userClickHeader(0);
    EXPECT_THAT(shown(), ElementsAre("net 30", "Net 15", "COD", "cod")) << "equal rows keep their order";
    list.userClickHeader(1);
    EXPECT_THAT(shown(1), ElementsAre("", "9", "30", "100"));
    list.userClickHeader(99);
    list.sortBy(std::nullopt);
    EXPECT_THAT(shown(), ElementsAre("net 30", "COD", "Net 15", "cod"));
}

TEST_F(ReportControlTest, GroupsStandBeforeTheirSortedRows) {
    add(1, "b", "", "Ship");
    add(2, "a", "", "install");
    add(3, "c", "", "Install");
    list.userClickHeader(0);
    list.userClickHeader(0);
    list.groupBy(2);
    EXPECT_THAT(shown(), ElementsAre("Install", "c", "a", "Ship", "b"));
    EXPECT_TRUE(list.row(0).isGroup());
    EXPECT_EQ(list.rowText(0, 1), "");
    list.groupBy(std::nullopt);
    EXPECT_THAT(shown(), ElementsAre("c", "b", "a"));
}

TEST_F(ReportControlTest, SelectionAndFocusStayWithTheirRecords) {
    for (int i = 0; i < 5; ++i)
        add(i + 1, std::string(1, static_cast<char>('e' - i)));
    list.populate();
    list.userSelect(std::vector<std::size_t>{1, 3, 77}, 3);
    EXPECT_THAT(list.selectedRows(), ElementsAre(1U, 3U)) << "a row that is not there cannot be selected";
    list.userClickHeader(0);  // the order turns round
    EXPECT_THAT(list.selectedRows(), ElementsAre(1U, 3U));
    EXPECT_EQ(list.focusedRow(), 1U);
    EXPECT_EQ(list.rowText(1, 0), "b");

    list.removeRecord(list.row(1).record);
    list.removeRecord(list.row(1).record);  // twice is once
    list.populate();
    EXPECT_THAT(shown(), ElementsAre("a", "c", "d", "e"));
    EXPECT_THAT(list.selectedRows(), ElementsAre(2U));
    EXPECT_EQ(list.focusedRow(), 1U) << "the row that took the removed one's place";
    EXPECT_EQ(list.findRecord(4), std::nullopt);

    // Several rows go at once, the focused one among them; then all that follows it.
    list.userSelect(std::vector<std::size_t>{0, 1}, 1);
    for (const std::size_t row : list.selectedRows())
        list.removeRecord(list.row(row).record);
    list.populate();
    EXPECT_THAT(shown(), ElementsAre("d", "e"));
    EXPECT_EQ(list.focusedRow(), 0U);
    list.userSelect(std::vector<std::size_t>{1}, 1);
    list.removeRecord(list.row(1).record);
    list.populate();
    EXPECT_EQ(list.focusedRow(), 0U) << "there is none after it: the last one";
    EXPECT_THROW(list.rowText(4, 0), std::out_of_range);
}

TEST_F(ReportControlTest, WhatIsNotThereIsRefused) {
    add(5, "a");
    list.populate();
    ASSERT_TRUE(list.findRecord(5));
    EXPECT_EQ(list.cell(*list.findRecord(5), 0), "a");
    EXPECT_THROW(list.rowText(4, 0), std::out_of_range);
    EXPECT_THROW(list.cell(0, 3), std::out_of_range);
}

TEST_F(ReportControlTest, AgreesWithAPlainListThroughAnyHistory) {
    // The same random adds, changes and removals on the control and on a simple vector.
    struct Plain {
        std::int32_t id;
        std::string name;
    };
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        list.clearRecords();
        std::vector<Plain> plain;
        for (int step = 0; step < 40; ++step) {
            const auto pick = plain.empty() ? 0 : random() % plain.size();
            switch (plain.empty() ? 0 : random() % 4) {
                case 0:
                case 1:
                    plain.push_back({step + 1, "n" + std::to_string(random() % 1000)});
                    add(plain.back().id, plain.back().name);
                    break;
                case 2: {
                    plain[pick].name = std::string(random() % 20, 'x');
                    const std::string_view cells[] = {plain[pick].name};
                    list.replaceRecord(*list.findRecord(plain[pick].id), cells);
                    break;
                }
                default:
                    list.removeRecord(*list.findRecord(plain[pick].id));
                    plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(pick));
            }
            if (random() % 3 == 0) list.populate();
        }
        list.populate();
        ASSERT_EQ(list.rowCount(), plain.size());
        ASSERT_EQ(list.recordCount(), plain.size());
        for (std::size_t i = 0; i < plain.size(); ++i) {
            ASSERT_EQ(list.rowText(i, 0), plain[i].name);
            ASSERT_EQ(list.id(list.row(i).record), plain[i].id);
        }
    }
}

TEST(ControlAutomation, AComboBoxIsFilledByTheHostAndOutlivesItsScreenSafely) {
    test::QuietDesktop desktop;
    ObjectPtr handed;
    {
        class ComboOnly : public Screen {
          public:
            explicit ComboOnly(Desktop& d) : Screen(d, "frmComboOnly") {}
            Layout layout() override { return layout::fill(combo); }
            ComboBox combo{*this, "combo"};
        } screen(desktop);
        handed = screen.combo.automation();
        for (const auto& [text, id] : {std::pair{"Net 30", 7}, {"COD", 3}, {"Net 15", 9}}) {
            handed->call("AddItem", text);
            handed->put("ItemData", handed->get("NewIndex"), id);
        }
        handed->call("AddItem", "first", 0);
        handed->put("listindex", 3);
        EXPECT_EQ(screen.combo.chosen(), 9);
        EXPECT_EQ(handed->get("Text").toText(), "Net 15");
        handed->call("RemoveItem", 1);
        EXPECT_EQ(screen.combo.chosen(), 9) << "the choice stays with its entry";
        EXPECT_EQ(handed->get("ListCount").toLong(), 3);
        EXPECT_EQ(handed->get("List", 1).toText(), "COD");
        EXPECT_THROW(handed->get("ItemData", 3), HostError);
        EXPECT_THROW(handed->get("ItemData"), HostError);
        EXPECT_THROW(handed->put("NewIndex", 1), HostError);
        EXPECT_THROW(handed->call("NoSuchMember"), HostError);
        handed->put("ListIndex", 55);
        EXPECT_EQ(screen.combo.chosen(), std::nullopt);
        handed->call("Clear");
        EXPECT_EQ(screen.combo.entries().size(), 0U);
    }
    EXPECT_THROW(handed->get("Text"), HostError);
}

}  // namespace
}  // namespace tsln
