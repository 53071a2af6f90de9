#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/CheckList.h"
#include "tests/desktop/Robot.h"
#include "tests/desktop/Samples.h"

namespace tsln::desktop::test {
namespace {

using testing::ElementsAre;

class TickingScreen : public NotingScreen {
  public:
    explicit TickingScreen(Desktop& desktop) : NotingScreen(desktop, "frmTicking") {
        lstCodes.columns = {{"Code", 120}, {"Rate (%)", 70, true}};
        lstCodes.addEntry({.cells = {"STATE", "5"}, .itemData = 1, .ticked = true});
        lstCodes.addEntry({.cells = {"COUNTY", "0.5"}, .itemData = 2});
        lstCodes.addEntry({.cells = {"LAKES"}, .itemData = 3});
        lstCodes.onClick = [this] { note("ticked"); };
    }
    std::vector<bool> ticks() const {
        std::vector<bool> all;
        for (const CheckList::Entry& entry : lstCodes.entries())
            all.push_back(entry.ticked);
        return all;
    }
    Layout layout() override { return layout::column({layout::fill(lstCodes), layout::item(cmdClose)}); }

    CheckList lstCodes{*this, "lstCodes"};
    Button cmdClose{*this, "cmdClose", "Close", Button::Role::Cancel};
};

TEST(CheckListView, SpaceTogglesTheFocusedEntryAsTheScreenSetIt) {
    WxDesktop desktop(nullptr, "");
    TickingScreen screen(desktop);
    screen.cmdClose.onClick = [&] { screen.unload(); };
    Robot user(screen);
    user.key(WXK_SPACE).until("first cleared", [&] { return !screen.lstCodes.entries()[0].ticked; });
    user.key(WXK_DOWN).key(WXK_SPACE).until("second ticked",
                                            [&] { return screen.lstCodes.entries()[1].ticked; });
    user.then([&] {
        EXPECT_EQ(screen.count("ticked"), 2U);
        screen.lstCodes.setTicked(1, false);  // a change by the screen does not fire onClick
        screen.lstCodes.setTicked(2, true);
        EXPECT_EQ(screen.count("ticked"), 2U);
    });
    // Space toggles the state set by the screen.
    user.key(WXK_SPACE).until("ticked again", [&] { return screen.lstCodes.entries()[1].ticked; });
    user.then([&] { EXPECT_THAT(screen.ticks(), ElementsAre(false, true, true)); });
    user.key(WXK_ESCAPE).show();
}

}  // namespace
}  // namespace tsln::desktop::test
