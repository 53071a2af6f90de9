#include <cmath>

#include "automation/DateText.h"
#include "doubles/Stage.h"
#include "doubles/TempFolder.h"
#include "messages/Preview.h"
#include "messages/SentMessages.h"
#include "shared/Markup.h"
#include "shared/ValueText.h"

namespace tsln::test {
namespace {

using messages::fillMarkup;
using messages::previewMarkup;
using messages::SentMessages;

constexpr auto frmSentMessages = "frmSentMessages";
constexpr auto allTime =
    "SELECT * FROM SentMessages WHERE SentOn >= '<1/1/1753>' AND SentOn <= '<12/31/9999 11:59:59 PM>' "
    "ORDER BY SentOn DESC";

std::string row(int ID, const std::string& subject, const std::string& further = "") {
    return "<Record><ID>" + std::to_string(ID) + "</ID><SentOn>2024-03-0" + std::to_string(ID) +
           "T10:20:30</SentOn><SentBy>Pat</SentBy><FromAddress>pat@x</FromAddress><ToAddress>to" +
           std::to_string(ID) + "@x</ToAddress><Subject>" + subject +
           "</Subject><BodyText>Dear &lt;b&gt;&#13;&#10;" + std::to_string(ID) + "</BodyText>" + further +
           "</Record>";
}

struct MessagesStage : Stage {
    MessagesStage() { furnish(*this); }
    static void furnish(Stage& stage) {
        stage.host->on("FixDateForSQLInsert", [](Arguments a) { return Variant("<" + a[0].toText() + ">"); });
        stage.host->rows(allTime, "<Records>" +
                                      row(3, "Two&#10;lines &lt;LineBreak/&gt;",
                                          "<CcAddress>c@x</CcAddress><BCcAddress>b@x</BCcAddress>") +
                                      row(2, "Plain") + "</Records>");
    }
    /// Shows the messages of all days.
    void show(const std::function<void(SentMessages&)>& act) {
        desktop.user<SentMessages>(frmSentMessages, [act](SentMessages& screen) {
            screen.dtFilterStart.userPick(std::nullopt);
            screen.dtFilterEnd.userPick(std::nullopt);
            screen.dtFilterEnd.userLeft();
            act(screen);
        });
        library->ShowSentMessages();
    }
    void run(SentMessages& screen, int command) {
        desktop.popupChoices = {command};
        screen.cmdMessages.userPress();
    }
};

TEST(SentMessages, ListsTheMessagesOfARangeOfDays) {
    MessagesStage stage;
    stage.show([&](SentMessages& screen) {
        EXPECT_THAT(stage.read(), SizeIs(2));
        EXPECT_EQ(screen.lblRecords.caption(), "2 messages");
        EXPECT_EQ(screen.rptItems.rowText(0, 0), "3/3/2024 10:20:30 AM");
        screen.txtFilter.userType("plain");
        EXPECT_EQ(screen.lblRecords.caption(), "1 messages");
        screen.dtFilterEnd.userLeft();
        EXPECT_THAT(stage.read(), SizeIs(2)) << "the range has not changed";

        screen.dtFilterStart.userType("3/5/2024");
        screen.dtFilterEnd.userType("3/4/2024");
        screen.dtFilterEnd.userLeft();
        EXPECT_EQ(screen.lblRange.caption(), "The first day is after the last one.");
        EXPECT_THAT(stage.desktop.boxes, IsEmpty()) << "the user may be about to change the other end";
        screen.cmdRefresh.userPress();
        screen.dtFilterEnd.userType("someday");
        screen.cmdRefresh.userPress();
        EXPECT_THAT(stage.desktop.boxes, SizeIs(2));
        EXPECT_THAT(stage.read(), SizeIs(2));
        EXPECT_EQ(screen.rptItems.recordCount(), 2U) << "what is shown stays";

        screen.dtFilterEnd.userType("2024-3-5");
        screen.cmdRefresh.userPress();
        EXPECT_FALSE(screen.lblRange.visible());
    });
    const double today = std::floor(now().days);
    EXPECT_THAT(stage.read(),
                ElementsAre("SELECT * FROM SentMessages WHERE SentOn >= '<" +
                                shortDateText(Date{today - 30}) + ">' AND SentOn <= '<" +
                                shortDateText(Date{today}) + " 11:59:59 PM>' ORDER BY SentOn DESC",
                            allTime,
                            "SELECT * FROM SentMessages WHERE SentOn >= '<3/5/2024>' AND SentOn <= "
                            "'<3/5/2024 11:59:59 PM>' ORDER BY SentOn DESC"));
}

TEST(SentMessages, PreviewShowsTheSelectedMessageWhateverItContains) {
    MessagesStage stage;
    stage.show([](SentMessages& screen) {
        EXPECT_EQ(screen.lblPreview.caption(),
                  "<TextBlock TextWrapping='Wrap'>No message selected</TextBlock>");
        screen.rptItems.userSelect({{0}}, 0);
        EXPECT_EQ(plainText(screen.lblPreview.caption()), "Two\nlines <LineBreak/>\nFrom: pat@x\nTo: to3@x");
        EXPECT_EQ(screen.txtBody.text(), "Dear <b>\r\n3");
        EXPECT_TRUE(screen.txtBody.locked());
        screen.rptItems.userClickHeader(2);  // sorted: the addresses stay with their messages
        screen.rptItems.userSelect({{0}}, 0);
        EXPECT_EQ(screen.lblPreview.caption(),
                  "<TextBlock TextWrapping='Wrap'><Bold>Plain</Bold><LineBreak/>From: pat@x<LineBreak/>To: "
                  "to2@x</TextBlock>");
        screen.txtFilter.userType("nothing has this");
        EXPECT_EQ(screen.txtBody.text(), "");
    });
}

TEST(SentMessages, MarkupIsFilledWithoutReadingTheValues) {
    EXPECT_EQ(fillMarkup("[[date]]: [[subject]] [[other]] [[",
                         {.subject = "[[from]]\r\na", .from = "F", .sent = "3/4/2024 1:02:03 PM"}),
              "3/4/2024: [[from]]<LineBreak/>a [[other]] [[");
    for (const std::string text :
         {"<Bold>x", "</TextBlock>", "a]]><Bold>", "<![CDATA[x", "&lt;", "\n<\r\n"}) {
        const std::string shown = plainText(previewMarkup({.subject = text, .from = text, .to = text}));
        std::string lines = text;
        while (lines.find('\r') != lines.npos)
            lines.erase(lines.find('\r'), 1);
        EXPECT_EQ(shown, lines + "\nFrom: " + lines + "\nTo: " + lines);
    }
}

TEST(SentMessages, MessagesAreSavedAsText) {
    const TempFolder folder;
    MessagesStage stage;
    const std::string third =
        "Sent: 3/3/2024 10:20:30 AM\r\nSent by: Pat\r\nFrom: pat@x\r\nTo: to3@x\r\nCc: c@x\r\nBcc: b@x\r\n"
        "Subject: Two lines <LineBreak/>\r\n\r\nDear <b>\r\n3\r\n";
    stage.show([&](SentMessages& screen) {
        stage.run(screen, messages::mnuMessagesSaveCurrent);
        EXPECT_THAT(stage.desktop.fileDialogs, IsEmpty()) << "no message is selected";
        screen.rptItems.userSelect({{0}}, 0);
        stage.desktop.files = {folder.file("one.txt"), folder.file("all.txt"),
                               folder.file("no/such/folder.txt")};
        stage.run(screen, messages::mnuMessagesSaveCurrent);
        stage.run(screen, messages::mnuMessagesSaveAll);
        EXPECT_THAT(stage.desktop.boxes, IsEmpty());
        stage.run(screen, messages::mnuMessagesSaveAll);
        EXPECT_EQ(screen.rptItems.recordCount(), 2U);
    });
    EXPECT_EQ(folder.textOf("one.txt"), third);
    EXPECT_THAT(folder.textOf("all.txt"), StartsWith(third + "\r\n-----"));
    EXPECT_THAT(folder.textOf("all.txt"), EndsWith("Subject: Plain\r\n\r\nDear <b>\r\n2\r\n"));
    ASSERT_THAT(stage.desktop.boxes, SizeIs(1));
    EXPECT_EQ(stage.desktop.boxes[0].text, "Unable to write the file. (1472)");
    EXPECT_EQ(stage.desktop.fileDialogs[0].title, "Save As");
    EXPECT_THAT(stage.desktop.fileDialogs[0].filters, ElementsAre("Text Files|*.txt", "All Files (*.*)|*.*"));
}

TEST(SentMessages, NothingRemovesAMessage) {
    MessagesStage stage;
    stage.show([&](SentMessages& screen) {
        screen.rptItems.userSelectAll();
        for (const int command :
             {messages::mnuMessagesDelete, messages::mnuMessagesPurge, messages::mnuMessagesRefresh}) {
            screen.rptItems.userSelectAll();
            stage.run(screen, command);
        }
        screen.rptItems.userSelectAll();
        stage.desktop.answers = {MessageAnswer::Yes};
        screen.rptItems.userDeleteKey();
        screen.rptItems.userDoubleClick(0);
        EXPECT_EQ(screen.rptItems.rowCount(), 2U);
    });
    EXPECT_THAT(stage.read(), SizeIs(5));
    EXPECT_THAT(stage.executed(), IsEmpty());
}

TEST(SentMessages, TheMenuOffersWhatTheSelectionAllowsInThreeGroups) {
    MessagesStage stage;
    stage.show([&](SentMessages& screen) {
        screen.rptItems.clearSelection();
        stage.run(screen, 0);
    });
    std::string menu;
    for (const Command& command : stage.desktop.popups.back().commands)
        menu +=
            (command.beginsGroup ? "| " : "") + command.caption + (command.enabled ? "; " : " (disabled); ");
    EXPECT_EQ(
        menu,
        "Save All Messages...; Save Current Message... (disabled); | Delete (disabled); Purge; | Refresh; ");
}

TEST(SentMessages, SurviveEveryFaultOfTheHost) {
    const TempFolder folder;
    sweepFaults([&](Stage& stage) {
        MessagesStage::furnish(stage);
        stage.desktop.files = {folder.file("one.txt")};
        stage.desktop.popupChoices = {messages::mnuMessagesSaveAll, messages::mnuMessagesPurge};
        stage.desktop.user<SentMessages>(frmSentMessages, [](SentMessages& screen) {
            screen.dtFilterStart.userPick(std::nullopt);
            screen.dtFilterEnd.userPick(std::nullopt);
            screen.dtFilterEnd.userLeft();
            screen.rptItems.userSelectAll();
            screen.cmdMessages.userPress();
            screen.cmdMessages.userPress();
            EXPECT_TRUE(screen.cmdClose.enabled());
            screen.cmdClose.userPress();
            EXPECT_FALSE(screen.shown());
        });
        stage.library->ShowSentMessages();
    });
}

}  // namespace
}  // namespace tsln::test
