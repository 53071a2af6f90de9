#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/utils.h>

#include "screens/Job.h"
#include "screens/ProgressBar.h"
#include "tests/desktop/Robot.h"
#include "tests/desktop/Samples.h"

namespace tsln::desktop::test {
namespace {

/// A screen with a job of about ten seconds unless it is cancelled.
class JobScreen : public NotingScreen {
  public:
    explicit JobScreen(Desktop& desktop) : NotingScreen(desktop, "frmJob") {
        setCaption("Scan");
        cmdStart.onClick = [this] {
            constexpr std::size_t steps = 10'000;
            Job job(*this, steps, &bar, &cmdCancel);
            while (job.goOn() && done < steps) {
                wxMilliSleep(1);
                lblStep.setCaption("Step " + std::to_string(++done));
                if (!job.step()) break;
            }
            note(job.cancelled() ? "cancelled" : "finished");
        };
        txtName.onChange = [this] { note("typed " + txtName.text()); };
        cmdCancel.onClick = [this] {
            note("closed");
            hide();
        };
    }

    Label lblStep{*this, "lblStep", "Ready"};
    TextBox txtName{*this, "txtName"};
    ProgressBar bar{*this, "bar"};
    Button cmdStart{*this, "cmdStart", "&Start"};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};
    std::size_t done = 0;

    Layout layout() override {
        using namespace tsln::layout;
        return column({item(lblStep), form({field("&Name:", txtName)}), item(bar),
                       row({spring(), item(cmdStart), item(cmdCancel)})});
    }
};

TEST(Job, OnlyTheCancelButtonAndEscWorkDuringAJob) {
    WxDesktop desktop(nullptr, "");
    JobScreen screen(desktop);
    Robot robot(screen);
    const auto runs = [&] { return screen.job() && screen.done > 20; };
    for (const bool byEsc : {true, false}) {
        robot.untilFocused(screen.txtName);  // also after the first job
        robot.key('S', wxMOD_ALT)
            .until("the job runs", runs)
            .then([&] {
                EXPECT_FALSE(robot.windowOf(screen.txtName)->IsThisEnabled());
                EXPECT_FALSE(robot.windowOf(screen.cmdStart)->IsThisEnabled());
                EXPECT_TRUE(robot.windowOf(screen.lblStep)->IsThisEnabled()) << "a label stays readable";
                EXPECT_TRUE(robot.windowOf(screen.cmdCancel)->IsThisEnabled());
            })
            .key('N', wxMOD_ALT)
            .type("x")
            .key(WXK_F1);
        if (byEsc) {
            robot.key(WXK_ESCAPE);
        } else {
            robot.key(WXK_RETURN);
        }
        robot.until("the job has ended", [&] { return !screen.job(); }).then([&] {
            EXPECT_GT(screen.bar.value(), 0);
            EXPECT_TRUE(robot.windowOf(screen.txtName)->IsThisEnabled());
            EXPECT_TRUE(screen.cmdCancel.enabled());
            screen.done = 0;
        });
    }
    robot.key(WXK_ESCAPE).show();
    EXPECT_THAT(screen.notes, testing::Not(testing::Contains(testing::StartsWith("typed"))));
    EXPECT_EQ(std::ranges::count(screen.notes, "cancelled"), 2);
    EXPECT_EQ(std::ranges::count(screen.notes, "closed"), 1);
}

}  // namespace
}  // namespace tsln::desktop::test
