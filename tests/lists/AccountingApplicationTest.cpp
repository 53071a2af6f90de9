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
        EXPECT_THAT(stage.host->callsOf("Options.SetCompanyOption"), IsEmpty());
    }
}

TEST(AccountingApplication, AnOptionThatCouldNotBeReadIsNotOverwritten) {
    Stage stage;
    stage.host->on("Options.GetCompanyOption", raises());
    stage.desktop.user<AccountingApplication>("frmChooseAccountingApplication",
                                              [](AccountingApplication& screen) {
                                                  screen.cmdOK.userPress();
                                                  EXPECT_TRUE(screen.shown());
                                              });
    stage.library->ShowChooseAccouningApplication();
    EXPECT_TRUE(stage.told());
    EXPECT_THAT(stage.host->callsOf("Options.SetCompanyOption"), IsEmpty());
}

}  // namespace
}  // namespace tsln::test
