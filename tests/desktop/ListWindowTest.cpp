#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/utils.h>

#include "lists/Lists.h"
#include "maintenance/ListScreen.h"
#include "tests/desktop/HostedWindows.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

using ListWindow = HostedWindows;

TEST_F(ListWindow, EscEndsALongDeletionBetweenTwoRows) {
    constexpr std::size_t rows = 20'000;
    std::string records = "<Records>";
    for (std::size_t i = 1; i <= rows; ++i)
        records += "<Record><ID>" + std::to_string(i) + "</ID><Terms>T</Terms></Record>";
    host->rows("SELECT * FROM Terms ORDER BY Terms", records + "</Records>");
    std::size_t deleted = 0;
    host->on("Database.ExecuteNonQuery", [&](Arguments) {
        ++deleted;
        wxMicroSleep(200);
        return true;
    });
    ListScreen list(library, lists::termsList);
    list.load();
    Robot user(list);
    user.until("loaded", [&] { return list.rptItems.recordCount() == rows; })
        .until("idle", [&] { return user.focused() == &list.rptItems && list.caption() == "Terms"; })
        .key('A', wxMOD_CONTROL)
        .until("all selected", [&] { return list.rptItems.selectedRows().size() == rows; })
        .key('D', wxMOD_ALT)
        .until("it deletes", [&] { return deleted > 500; })
        .then([&] {
            EXPECT_TRUE(user.windowOf(list.prgWork)->IsShown());
            EXPECT_FALSE(user.windowOf(list.rptItems)->IsEnabled());
        })
        .key('N', wxMOD_ALT)
        .key(WXK_ESCAPE)
        .until("it ended", [&] { return !list.job() && list.caption() == "Terms"; })
        .pause()
        .then([&] {
            EXPECT_LT(deleted, rows);
            EXPECT_EQ(list.rptItems.rowCount(), rows - deleted);
            EXPECT_FALSE(list.prgWork.visible());
            EXPECT_EQ(Robot::find<ScreenDialog>()->GetTitle(), "Terms") << "a key opened another window";
        })
        .key(WXK_ESCAPE)
        .show();
}

TEST_F(ListWindow, SavingATermAsksForEachRightAtMostOnce) {
    const std::string rows = "<Records><Record><ID>1</ID><Terms>COD</Terms></Record></Records>";
    host->rows("SELECT * FROM Terms ORDER BY Terms", rows);
    host->rows("SELECT * FROM Terms WHERE ID = 1", rows);
    ListScreen list(library, lists::termsList);
    list.load();
    Robot user(list);
    const auto titled = [](const char* title) {
        return [title] {
            const auto* dialog = Robot::find<ScreenDialog>();
            return dialog && dialog->GetTitle() == title;
        };
    };
    user.until("loaded", [&] { return list.rptItems.recordCount() == 1; })
        .until("idle", [&] { return user.focused() == &list.rptItems && list.caption() == "Terms"; })
        .key(WXK_INSERT)
        .until("the dialog is open", titled("New Terms"))
        .pause()
        .then([&] { host->forget(); })
        .type("Net 60")
        .key(WXK_RETURN)
        .until("the term is shown", [&] { return list.rptItems.recordCount() == 2 && titled("Terms")(); })
        .pause()
        .then([&] {
            std::vector<std::string> asked = host->callsOf("Security.CanDo");
            std::ranges::sort(asked);
            EXPECT_EQ(std::ranges::adjacent_find(asked), asked.end()) << testing::PrintToString(asked);
            EXPECT_FALSE(asked.empty());
        })
        .key(WXK_ESCAPE)
        .show();
}

}  // namespace
}  // namespace tsln::desktop::test
