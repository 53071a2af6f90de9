#include <csignal>
#include <ctime>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/stopwatch.h>
#include <wx/timer.h>
#include <wx/uiaction.h>
// clang-format off: the wx header must come first
#include <wx/generic/msgdlgg.h>
#include <wx/msgdlg.h>
// clang-format on

#include "desktop/Process.h"
#include "desktop/WxDesktop.h"
#include "shared/CommandWord.h"
#include "tests/desktop/Robot.h"
#include "tests/desktop/Samples.h"

namespace tsln::desktop::test {
namespace {

TEST(Process, SplitsACommandLineByBlanksAndDoubleQuotes) {
    const struct {
        const char* line;
        std::vector<std::string> words;
    } cases[] = {
        {"", {}},
        {"  a  b\tc ", {"a", "b", "c"}},
        {R"("/opt/my folder/tool" /Keys:TSLN50_Terms)", {"/opt/my folder/tool", "/Keys:TSLN50_Terms"}},
        {R"(tool /PSD:"C:\a b\x.psd")", {"tool", R"(/PSD:C:\a b\x.psd)"}},
        {R"(tool "" 'a b')", {"tool", "", "'a", "b'"}},
        {R"(tool say\"hi\" $HOME `x` ;)", {"tool", "say\"hi\"", "$HOME", "`x`", ";"}},
        {R"(tool "open end)", {"tool", "open end"}},
        {R"(tool "a\\" \\\"b \)", {"tool", R"(a\)", R"(\"b)", R"(\)"}},
    };
    for (const auto& test : cases)
        EXPECT_EQ(splitCommandLine(test.line), test.words) << test.line;
    for (const char* word : {"", "a b", "a\"b", R"(C:\a\"b" c)", R"(\\"\\\" /Keys:x)"})
        EXPECT_EQ(splitCommandLine("tool " + commandWord(word) + " x"),
                  (std::vector<std::string>{"tool", word, "x"}));
}

TEST(Process, ReportsExitCodesSignalsAndFailedStarts) {
    WxDesktop desktop(nullptr, "");
    std::vector<std::string> ended;
    desktop.onProcessEnd = [&](std::string_view line, ProcessEnd) { ended.emplace_back(line); };
    const struct {
        const char* line;
        bool started;
        int exitCode;
    } cases[] = {
        {"true", true, 0},
        {R"(sh -c "exit 7")", true, 7},
        {R"(sh -c "kill -9 $$")", true, -SIGKILL},
        {"/nonexistent/tool x", false, 0},
        {"/etc/passwd", false, 0},
        {"", false, 0},
    };
    for (const auto& test : cases) {
        const ProcessEnd end = desktop.runAndWait(test.line);
        EXPECT_EQ(end.started, test.started) << test.line;
        EXPECT_EQ(end.exitCode, test.exitCode) << test.line;
    }
    EXPECT_EQ(ended.size(), std::size(cases));
    EXPECT_EQ(ended.front(), "true");
}

TEST(Process, ScreensRunTimersButTakeNoInputWhileAProcessRuns) {
    WxDesktop desktop(nullptr, "");
    SampleDialog screen(desktop);
    Robot user(screen);
    int ticks = 0;
    wxTimer timer;
    timer.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
        ++ticks;
        screen.setCaption("Busy " + std::to_string(ticks));
        if (ticks == 2) wxUIActionSimulator().Char('q');
        if (ticks == 4) wxUIActionSimulator().Char(WXK_ESCAPE);
    });
    double processorSeconds = 0;
    screen.cmdApply.onClick = [&] {
        timer.Start(50);
        const std::clock_t before = std::clock();
        EXPECT_TRUE(desktop.runAndWait("sleep 1").started);
        processorSeconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        timer.Stop();
        screen.note("apply ends");
    };
    user.key('P', wxMOD_ALT).until("ended", [&] { return screen.count("apply ends") == 1; });
    user.until("focus is back", [&] { return user.focused() == &screen.txtName; });
    user.type("x").until("input goes on", [&] { return !screen.txtName.text().empty(); });
    user.key(WXK_ESCAPE).show();
    EXPECT_GE(ticks, 8);
    EXPECT_EQ(screen.txtName.text(), "x");
    EXPECT_EQ(screen.count("cancel"), 1u);
    EXPECT_LT(processorSeconds, 0.5) << "the wait is a busy loop";
}

TEST(Process, AListRegainsFocusAndAllInputAfterAMessageBoxAndAProcess) {
    WxDesktop desktop(nullptr, "");
    SampleList screen(desktop, 10);
    screen.onNew = [&] {
        desktop.messageBox(&screen, "Would you?", MessageButtons::YesNo, MessageIcon::Question);
        desktop.runAndWait("sleep 0.5");
        screen.note("ended");
    };
    Robot user(screen);
    user.key('N', wxMOD_ALT).until("the box is open", [] {
        return Robot::find<wxGenericMessageDialog>() != nullptr;
    });
    user.then([] {}).key(WXK_RETURN);
    user.until("ended", [&] { return screen.count("ended") == 1; });
    user.until("focus is back", [&] { return user.focused() == &screen.rptItems; });
    user.then([&] { EXPECT_FALSE(user.leavesOthersUsable()); });
    user.key(WXK_HOME).until("a row is selected", [&] { return screen.rptItems.selectedRows().size() == 1; });
    user.key(WXK_ESCAPE).show();
}

TEST(Process, ShellOpenPassesArgumentsAndDoesNotWait) {
    const std::string folder = wxFileName::CreateTempFileName("tsln").utf8_string() + ".d";
    ASSERT_EQ(mkdir(folder.c_str(), 0700), 0);
    const std::string program = folder + "/tool";
    const std::string result = folder + "/result";
    std::ofstream(program) << "#!/bin/sh\nsleep 0.3\necho \"$1|$2\" > '" << result << ".new'\nmv '" << result
                           << ".new' '" << result << "'\n";
    ASSERT_EQ(chmod(program.c_str(), 0700), 0);

    WxDesktop desktop(nullptr, "");
    const wxStopWatch watch;
    EXPECT_TRUE(desktop.shellOpen(program, "\"a b\" c"));
    EXPECT_LT(watch.Time(), 250);
    EXPECT_FALSE(desktop.shellOpen(folder + "/no such tool", ""));
    for (int i = 0; i < 100 && access(result.c_str(), F_OK) != 0; ++i)
        usleep(50000);
    std::string line;
    std::getline(std::ifstream(result) >> std::ws, line);
    EXPECT_EQ(line, "a b|c");
    wxFileName::Rmdir(folder, wxPATH_RMDIR_RECURSIVE);
}

}  // namespace
}  // namespace tsln::desktop::test
