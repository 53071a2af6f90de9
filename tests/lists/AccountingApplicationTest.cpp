#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lists/AccountingApplication.h"
#include "tests/lists/Acts.h"

namespace tsln::test {
namespace {

using lists::AccountingApplication;

TEST(AccountingApplication, ShowsAndStoresTheCompanysOption) {
    struct Case {
        Variant stored;
        std::string shown, chosen;
        std::vector<std::string> written;
    };
    const Case cases[] = {
        {0, "", "QuickBooks Desktop", {"Application, Accounting, 1"}},
        {"1", "QuickBooks Desktop", "", {"Application, Accounting, 0"}},
        {41, "", "", {"Application, Accounting, 0"}},
        {"none", "", "QuickBooks Desktop", {"Application, Accounting, 1"}},
        {{}, "", "", {"Application, Accounting, 0"}},
    };
    for (const Case& c : cases) {
        Stage stage;
        stage.host->on("Options.GetCompanyOption", c.stored);
        stage.desktop.user<AccountingApplication>("frmChooseAccountingApplication",
                                                  [&](AccountingApplication& screen) {
                                                      EXPECT_EQ(screen.cboApp.text(), c.shown);
                                                      EXPECT_GE(screen.cboApp.listIndex(), 0);
                                                      enter(screen, "cboApp", c.chosen);
                                                      screen.cmdOK.userPress();
                                                  });
        EXPECT_EQ(stage.library->ShowChooseAccouningApplication(), 0);
        EXPECT_EQ(stage.host->callsOf("Options.SetCompanyOption"), c.written);
    }
}

TEST(AccountingApplication, CancelStoresNothing) {
    for (const bool byCloseBox : {true, false}) {
        Stage stage;
        stage.desktop.user<AccountingApplication>("frmChooseAccountingApplication",
                                                  [&](AccountingApplication& screen) {
                                                      enter(screen, "cboApp", "QuickBooks Desktop");
                                                      if (!byCloseBox) screen.cmdCancel.userPress();
                                                  });
        EXPECT_EQ(stage.library->ShowChooseAccouningApplication(), -1);
        EXPECT_THAT(stage.host->callsOf("Options.SetCompanyOption"), testing::IsEmpty());
    }
}

TEST(AccountingApplication, AnOptionThatCouldNotBeReadIsNotOverwritten) {
    sweepFaults(
        [](Stage& stage) {
            stage.host->on("Options.GetCompanyOption", Variant(1));
            stage.desktop.user<AccountingApplication>(
                "frmChooseAccountingApplication", [&](AccountingApplication& screen) {
                    const bool read = screen.cmdOK.enabled();
                    screen.cmdOK.userPress();
                    EXPECT_TRUE(read || stage.host->callsOf("Options.SetCompanyOption").empty());
                    EXPECT_TRUE(!screen.shown() || stage.told());
                });
            stage.library->ShowChooseAccouningApplication();
        },
        [](Stage&) {});
}

}  // namespace
}  // namespace tsln::test
