#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bridge/Library.h"
#include "doubles/RecordingHost.h"
#include "migration/MigrateScreen.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

using migration::Kind;
using migration::MigrateScreen;

/// The queries are those that are built in. The import engine works until it is told to end.
TEST(MigrationWindow, EscEndsTheImportWhileTheWindowStaysAlive) {
    auto host = tsln::test::RecordingHost::make();
    WxDesktop desktop([&](std::string_view programId) { return host->component(programId); }, "");
    Library library(desktop);
    library.Initialize(host->sharedCode());
    host->on("tslnsql5.Engine.ExecuteRead", [](Arguments) {
        return tsln::test::makeDocument("<Records><Record><A>1</A></Record></Records>");
    });
    ObjectPtr bar, label;
    host->on("tslniee5.Engine.ProgressBar", [&](Arguments a) { return bar = a[0].toObject(), Variant(); });
    host->on("tslniee5.Engine.ProgressLabel",
             [&](Arguments a) { return label = a[0].toObject(), Variant(); });
    host->on("tslniee5.Engine.ImportFile", [&](Arguments) {
        label->put("Caption", "Importing: Customers");
        bar->put("Max", 1000);
        for (int i = 0; host->callsOf("tslniee5.Engine.RequestCancel").empty(); ++i)
            bar->put("Value", 300 + i % 2);
        return Variant(false);
    });

    MigrateScreen screen(library);
    screen.initialize("/old & worn/main.company", Kind::WithCustomers);
    screen.load();
    Robot user(screen);
    user.until("the import runs", [&] { return screen.ProgressBar1.value() >= 300; })
        .then([&] {
            EXPECT_TRUE(user.windowOf(screen.cmdCancel)->IsThisEnabled());
            EXPECT_EQ(screen.lblStatus.caption(), "Importing: Customers");
        })
        .key(WXK_ESCAPE)
        .show();
    EXPECT_TRUE(screen.Cancelled);
    EXPECT_FALSE(screen.shown());
    EXPECT_EQ(host->callsOf("tslniee5.Engine.RequestCancel").size(), 1U);
    EXPECT_EQ(host->callsOf("tslnsql5.Engine.ExecuteRead").size(), 14U) << "the base data";
}

}  // namespace
}  // namespace tsln::desktop::test
