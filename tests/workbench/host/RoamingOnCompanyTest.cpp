#include <gmock/gmock.h>

#include "roaming/IdentityDialog.h"
#include "roaming/InitialSync.h"
#include "roaming/Manager.h"
#include "roaming/WorkstationDialog.h"
#include "roaming/WorkstationsList.h"
#include "tests/workbench/host/HostStage.h"

namespace tsln::workbench {
namespace {

namespace fs = std::filesystem;
using roaming::IdentityDialog;
using roaming::InitialSync;
using roaming::Manager;
using roaming::WorkstationDialog;
using roaming::WorkstationsList;
using testing::EndsWith;
using testing::HasSubstr;
using testing::SizeIs;

constexpr Reply yes{.answer = MessageAnswer::Yes};
constexpr Reply ok{};

TEST(RoamingOnCompany, AWorkstationIsAddedChangedSetBackAndDeleted) {
    ModuleStage stage;
    const auto edit = [&](const char* name, const char* code) {
        stage.desktop.user<WorkstationDialog>("frmRoamingWorkstations_Edit", [=](WorkstationDialog& dialog) {
            dialog.textBox("txtName").userType(name);
            dialog.textBox("txtReferenceCode").userType(code);
            dialog.cmdOK.userPress();
            if (dialog.shown()) dialog.cmdCancel.userPress();
        });
    };
    stage.ui.replies = {ok, yes};
    edit("dana's LAPTOP", "50");  // the name of another one
    edit("Van 'B'", "42");        // the code of another one
    edit("Van 'B'", "51");
    stage.desktop.user<WorkstationsList>("frmRoamingWorkstations", [&](WorkstationsList& list) {
        EXPECT_EQ(list.rptItems.rowCount(), 4U);
        EXPECT_EQ(list.rptItems.rowText(0, 1), "Dana Whitfield");
        EXPECT_EQ(list.rptItems.rowText(0, 2), "In sync");
        EXPECT_THAT(list.rptItems.rowText(0, 3), EndsWith("M"));
        for (int i = 0; i < 3; ++i)
            list.cmdNew.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 5U);
        list.rptItems.userSelect({{0}}, 0);
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 4U);
        list.cmdClose.userPress();
    });
    stage.library->ShowRoamingWorkstations();
    EXPECT_THAT(stage.desktop.boxes, SizeIs(2));
    EXPECT_EQ(stage.desktop.clipboard,
              stage.value("SELECT UniqueID FROM RoamingWorkstations WHERE Name = 'Van ''B'''"));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM RoamingWorkstations WHERE Name LIKE 'Dana%'"), "0");
}

TEST(RoamingOnCompany, AnInitialSyncIsRequestedAndCompletedWhileTheScreenWaits) {
    ModuleStage stage;
    const std::string program = stage.folder.write("agent", "a program");
    stage.session->registerProgram("RoamingSyncAgent", program);
    const std::string code = stage.value("SELECT UniqueID FROM RoamingWorkstations WHERE ReferenceCode = 20");
    stage.run("DELETE FROM Company");
    stage.run(
        "INSERT INTO CompanyOptions (Section, OptionName, OptionValue) "
        "VALUES ('Application', 'OperatingMode', '2')");
    EXPECT_FALSE(stage.library->InitialSyncComplete());
    stage.desktop.user<IdentityDialog>("frmRoamingWorkstationIdentity", [&](IdentityDialog& dialog) {
        dialog.txtUniqueID.userType(code);
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowRoamingWorkstationIdentity(), 1);
    EXPECT_EQ(
        stage.value("SELECT Name + ' ' + UniqueID + ' ' + CAST(CompanyType AS VARCHAR(5)) FROM Company"),
        "Roaming " + code + " 2");

    // The agent works on the file through its own connection.
    Company agent(stage.session->company().path());
    stage.ui.replies = {yes, yes};
    stage.desktop.user<InitialSync>("frmRoamingWorkstationInitial", [&](InitialSync& screen) {
        EXPECT_EQ(screen.lblStatus.caption(), "Status: Not set up");
        EXPECT_THAT(screen.lblFrequency.caption(), HasSubstr("15 minutes"));
        screen.cmdRequest.userPress();
        EXPECT_EQ(screen.lblStatus.caption(), "Status: Initial sync requested");
        agent.execute("UPDATE Company SET SyncState = 2");
        stage.desktop.tick();
        EXPECT_EQ(screen.lblStatus.caption(), "Status: Initial sync sent");
        agent.execute("DELETE FROM Company");
        stage.desktop.tick();
        EXPECT_THAT(stage.desktop.boxes, SizeIs(1)) << "the company has vanished";
        agent.execute("INSERT INTO Company (Name) VALUES ('Again')");
        screen.cmdRequest.userPress();
        agent.execute("UPDATE Company SET SyncState = 4");
        stage.desktop.tick();
        EXPECT_FALSE(screen.shown());
    });
    EXPECT_FALSE(stage.library->ShowRoamingWorkstationInitial());
    EXPECT_TRUE(stage.library->InitialSyncComplete());
    const std::string folder = stage.folder.path();
    EXPECT_THAT(stage.desktop.opened,
                testing::Each(program + "|/Profile:\"(default)\" /Companies:\"" + folder + "\""));
    EXPECT_THAT(stage.lastEvent(), HasSubstr("Sync Agent was started"));
}

TEST(RoamingOnCompany, AResetIsRequestedAndTheHostIsToldToCloseTheCompany) {
    ModuleStage stage;
    stage.ui.replies = {yes, ok};
    stage.desktop.user<Manager>("frmRoamingWorkstationManager", [](Manager& screen) {
        EXPECT_EQ(screen.lblStatus.caption(), "Status: In sync");
        screen.cmdStopSync.userPress();
        screen.cmdReset.userPress();
        EXPECT_FALSE(screen.shown());
    });
    stage.library->ShowRoamingWorkstationManager();
    EXPECT_EQ(stage.value("SELECT SyncState FROM Company WHERE ResetRequestedOn LIKE '20__-__-__T__:__:__'"),
              "5");
    EXPECT_EQ(stage.value("SELECT OptionValue FROM CompanyOptions WHERE OptionName = 'StopSync'"), "1");
    ASSERT_EQ(stage.session->notices().size(), 1U);
    EXPECT_EQ(stage.session->notices()[0].about, "1");
    EXPECT_THAT(stage.ui.shown, SizeIs(3));
}

TEST(RoamingOnCompany, TheFileManagerShowsTheFoldersAndMovesTheirFiles) {
    ModuleStage stage;
    const ObjectPtr options = stage.part("Options");
    const auto folderOf = [&](const char* kind) { return options->call("UserFileLocation", kind).toText(); };
    const auto manage = [&] {
        stage.desktop.user<InitialSync>("frmRoamingWorkstationInitial", [](InitialSync& screen) {
            screen.cmdFileManager.userPress();
            screen.cmdMoveFiles.userPress();
        });
        stage.library->ShowRoamingWorkstationInitial();
    };
    const std::string before = folderOf("Products");
    std::ofstream(fs::path(before) / "blinds.xml") << "<Product/>";
    manage();
    ASSERT_THAT(stage.ui.shown, SizeIs(1)) << "moving was cancelled";
    EXPECT_THAT(stage.ui.shown[0].advice, HasSubstr("<Bold>Products</Bold>: " + before));

    stage.ui.folder = stage.folder.file("moved");
    fs::create_directories(fs::path(*stage.ui.folder) / "Reports" / "in the way");
    manage();
    EXPECT_EQ(folderOf("Products"), (fs::path(*stage.ui.folder) / "Products").string());
    EXPECT_EQ(textOfFile(folderOf("Products") + "/blinds.xml"), "<Product/>");
    EXPECT_FALSE(fs::exists(before));
    EXPECT_EQ(folderOf("Reports"), stage.folder.file("Reports")) << "nothing is overwritten";
    ASSERT_THAT(stage.ui.shown, SizeIs(3));
    EXPECT_EQ(stage.ui.shown[2].text, "Not all files could be moved.");
    EXPECT_THAT(stage.ui.shown[2].detail, HasSubstr("Reports"));
}

}  // namespace
}  // namespace tsln::workbench
