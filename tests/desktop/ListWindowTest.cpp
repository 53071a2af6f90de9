#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doubles/RecordingHost.h"
#include "lists/Lists.h"
#include "maintenance/ListScreen.h"
#include "module/Module.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

TEST(ListWindow, SavingATermAsksForEachRightAtMostOnce) {
    const auto host = tsln::test::RecordingHost::make();
    WxDesktop desktop([&](std::string_view programId) { return host->component(programId); }, "");
    Library library(desktop);
    plugInModule(library);
    library.Initialize(host->sharedCode());
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
