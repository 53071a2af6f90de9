#include "bridge/HostScreen.h"
#include "doubles/Stage.h"

namespace tsln::test {
namespace {

struct PlainScreen : HostScreen {
    using HostScreen::HostScreen;
    Layout layout() override { return {}; }
};

/// A host that cannot show its error messages.
TEST(HostScreen, WhatTheHostFailsToShowIsShownByTheModule) {
    const auto host = RecordingHost::make();
    ScriptedDesktop desktop;
    Library library(desktop);
    library.Initialize(host->sharedCode());
    PlainScreen screen(library, "frmPlain");
    host->on("ShowAndLogErrorMessage", raises());
    host->on("ShowADOErrorMessage", raises());
    host->on("Database.LastSQLErrorDescription", "the disk is full");

    screen.reportDatabaseFailure("It was not saved.");
    screen.reportConnectionFailure("It was not moved.");
    screen.handle([] { throw HostError(code::fail, "Host", "no such row"); });
    std::vector<std::string> told;
    for (const ScriptedDesktop::Box& box : desktop.boxes) {
        EXPECT_EQ(box.icon, MessageIcon::Critical);
        told.push_back(box.text);
    }
    EXPECT_THAT(told,
                ElementsAre("It was not saved.\n\nthe disk is full", "It was not moved.", "no such row"));
}

}  // namespace
}  // namespace tsln::test
