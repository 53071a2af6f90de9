#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/filename.h>
#include <wx/html/htmlwin.h>
#include <wx/msgdlg.h>
#include <wx/print.h>
#include <wx/stattext.h>
#include <wx/uiaction.h>
// clang-format off: must follow wx/msgdlg.h
#include <wx/generic/msgdlgg.h>
// clang-format on

#include "desktop/Dialogs.h"
#include "desktop/WxDesktop.h"
#include "tests/desktop/Picture.h"
#include "tests/desktop/Robot.h"
#include "tests/desktop/Samples.h"

namespace tsln::desktop::test {
namespace {

using testing::Contains;

TEST(Settings, AreReadBackFromTheFileIgnoringLetterCase) {
    const wxString folder = wxFileName::CreateTempFileName("tsln") + ".d";
    const std::string file = folder.utf8_string() + "/deep/settings.ini";
    const struct {
        const char* key;
        const char* value;
        const char* text;
    } cases[] = {
        {"Software\\Kestrane\\Tessaline\\5.0", "PortableExport", "1"},
        {"Software\\Kestrane\\Tessaline\\5.0\\Window Positions\\", "frmTerms/Left", "-12"},
        {"Software\\Kestrane", "empty", ""},
        {"Software\\Kestrane", "odd", "  \"quoted\" \\ back = [x] $HOME %PATH%\nnext\tline # ; \xC3\xA9 "},
        {"Soft/ware", "a=b", "c"},
    };
    {
        WxDesktop desktop(nullptr, file);
        EXPECT_EQ(desktop.readSetting("Software\\Kestrane", "odd"), std::nullopt);
        for (const auto& test : cases)
            desktop.writeSetting(test.key, test.value, test.text);
    }
    WxDesktop desktop(nullptr, file);
    for (const auto& test : cases)
        EXPECT_EQ(desktop.readSetting(test.key, test.value), test.text) << test.value;
    EXPECT_EQ(desktop.readSetting("SOFTWARE\\KESTRANE\\Tessaline\\5.0\\", "portableexport"), "1");
    EXPECT_EQ(desktop.readSetting("Software\\Kestrane\\Tessaline\\5.0", "Window Positions"), std::nullopt);
    wxFileName::Rmdir(folder, wxPATH_RMDIR_RECURSIVE);
}

TEST(Settings, AFailureToWriteIsIgnored) {
    WxDesktop desktop(nullptr, "/proc/nowhere/settings.ini");
    desktop.writeSetting("Software\\A", "b", "c");
    EXPECT_EQ(desktop.readSetting("Software\\A", "x"), std::nullopt);
}

TEST(Components, AnUnknownIdentifierRaisesAnErrorThatNamesIt) {
    struct Thing : Object {
        Variant invoke(std::string_view, Access, Arguments) override { return {}; }
    };
    WxDesktop desktop(
        [](std::string_view id) { return id == "known.Thing" ? std::make_shared<Thing>() : nullptr; }, "");
    EXPECT_TRUE(desktop.createObject("known.Thing"));
    try {
        desktop.createObject("other.Thing");
        FAIL();
    } catch (const HostError& error) {
        EXPECT_EQ(error.code(), code::classNotRegistered);
        EXPECT_THAT(error.text(), testing::HasSubstr("other.Thing"));
    }
}

TEST(FileNames, TakeTheFiltersExtensionWhenTheyHaveNone) {
    const struct {
        const char* name;
        const char* pattern;
        const char* full;
    } cases[] = {{"/a/terms", "*.xml", "/a/terms.xml"},           {"/a/terms.txt", "*.xml", "/a/terms.txt"},
                 {"/a/terms.", "*.txt", "/a/terms.txt"},          {"/a/terms", "*.*", "/a/terms"},
                 {"/a.b/terms", "*.txt;*.csv", "/a.b/terms.txt"}, {"/a/terms", "*", "/a/terms"}};
    for (const auto& test : cases)
        EXPECT_EQ(withExtension(test.name, {"", test.pattern}), test.full);
}

class BoxTest : public testing::Test {
  protected:
    WxDesktop desktop{nullptr, ""};
    SampleList screen{desktop};
    Robot user{screen};

    template <class Window>
    void untilFound(const char* what) {
        user.until(what, [] { return Robot::find<Window>() != nullptr; });
        // The window under the pointer has the focus.
        user.then([] {
            const auto* window = Robot::find<Window>();
            wxUIActionSimulator().MouseMove(window->GetScreenPosition() + wxPoint(20, 40));
        });
        user.until("active", [] { return !Robot::find<Window>() || Robot::find<Window>()->IsActive(); });
    }
    void closeScreen() {
        user.pointAt(screen.cmdNew).until("active again", [&] { return user.dialog()->IsActive(); });
        user.key(WXK_ESCAPE).show();
    }
};

TEST_F(BoxTest, KeysAndTheCloseBoxAnswerMessageBoxes) {
    const struct {
        MessageButtons buttons;
        int key;  // 0: the close box
        MessageAnswer answer;
    } cases[] = {
        {MessageButtons::Ok, WXK_RETURN, MessageAnswer::Ok},
        {MessageButtons::Ok, WXK_ESCAPE, MessageAnswer::Ok},
        {MessageButtons::OkCancel, WXK_RETURN, MessageAnswer::Ok},
        {MessageButtons::OkCancel, WXK_ESCAPE, MessageAnswer::Cancel},
        {MessageButtons::OkCancel, 0, MessageAnswer::Cancel},
        {MessageButtons::YesNo, WXK_RETURN, MessageAnswer::Yes},
        {MessageButtons::YesNo, WXK_ESCAPE, MessageAnswer::No},
        {MessageButtons::YesNo, 0, MessageAnswer::No},
    };
    std::size_t next = 0;
    screen.onNew = [&] {
        const auto icon = static_cast<MessageIcon>(next % 5);  // each in turn
        const auto& test = cases[next++];
        EXPECT_EQ(desktop.messageBox(&screen, "Would you?", test.buttons, icon), test.answer)
            << "case " << next;
    };
    for (const auto& test : cases) {
        user.key('N', wxMOD_ALT);
        untilFound<wxGenericMessageDialog>("the box is open");
        if (test.key) {
            user.key(test.key);
        } else {
            user.then([] { Robot::find<wxGenericMessageDialog>()->Close(); });
        }
        user.until("the box is closed", [] { return !Robot::find<wxGenericMessageDialog>(); });
        user.pointAt(screen.cmdNew).until("active again", [&] { return user.dialog()->IsActive(); });
    }
    closeScreen();
    EXPECT_EQ(next, std::size(cases));
}

TEST_F(BoxTest, AMessageBoxShowsALongTextCompletely) {
    const std::string sentence = "The group 'A & B' will delete all discounts for that group. Are you sure? ";
    const std::string texts[] = {"Short.", "One line.\nAnd another.",
                                 sentence + sentence + sentence + sentence,
                                 std::string(300, 'w') + " and " + std::string(300, 'M')};
    const auto withoutBlanks = [](std::string text) {
        std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
        return text;
    };
    std::size_t next = 0;
    screen.onNew = [&] {
        desktop.messageBox(&screen, texts[next++], MessageButtons::YesNo, MessageIcon::Question);
    };
    for (const std::string& text : texts) {
        user.key('N', wxMOD_ALT);
        untilFound<wxGenericMessageDialog>("the box is open");
        user.then([&] {
            const auto* box = Robot::find<wxGenericMessageDialog>();
            std::string shown;
            for (const wxWindow* child : box->GetChildren()) {
                const auto* line = dynamic_cast<const wxStaticText*>(child);
                if (!line) continue;
                shown += line->GetLabelText().utf8_string();
                EXPECT_TRUE(box->GetClientRect().Contains(line->GetRect())) << shown;
                EXPECT_GE(line->GetSize().x, line->GetBestSize().x) << shown;
            }
            EXPECT_EQ(withoutBlanks(shown), withoutBlanks(text));
            EXPECT_LT(box->GetSize().x, 640);
        });
        user.key(WXK_ESCAPE);
        user.until("the box is closed", [] { return !Robot::find<wxGenericMessageDialog>(); });
        user.pointAt(screen.cmdNew).until("active again", [&] { return user.dialog()->IsActive(); });
    }
    closeScreen();
    EXPECT_EQ(next, std::size(texts));
}

TEST_F(BoxTest, TheKeyboardChoosesOneOfSeveralAnswers) {
    const std::string answers[] = {"Replace it", "Keep both & rename", "Leave it"};
    const struct {
        std::vector<int> keys;
        std::optional<std::size_t> answer;
    } cases[] = {
        {{WXK_RETURN}, 0U},
        {{WXK_DOWN, WXK_RETURN}, 1U},
        {{WXK_UP, WXK_RETURN}, 2U},
        {{WXK_DOWN, WXK_ESCAPE}, {}},
        {{WXK_DOWN, WXK_DOWN, WXK_DOWN, WXK_RETURN}, 0U},
    };
    std::size_t next = 0;
    screen.onNew = [&] {
        const auto& test = cases[next++];
        EXPECT_EQ(desktop.choose(&screen, "Import", "There is such a template already.", answers),
                  test.answer)
            << "case " << next;
    };
    for (const auto& test : cases) {
        user.key('N', wxMOD_ALT).until("the question is open", [] {
            return Robot::find<wxDialog>()->GetTitle() == "Import" && Robot::find<wxDialog>()->IsActive();
        });
        user.then([] { savePicture(*Robot::find<wxDialog>(), "question"); });
        for (const int key : test.keys)
            user.key(key);
        user.until("active again", [&] { return user.dialog()->IsActive(); });
    }
    closeScreen();
    EXPECT_EQ(next, std::size(cases));
    EXPECT_EQ(desktop.choose(nullptr, "", "Nothing to choose?", {}), std::nullopt);
}

TEST_F(BoxTest, AMessageBoxHasTheGivenTitleAndTheClipboardTextIsReadBack) {
    screen.onNew = [&] {
        desktop.setClipboardText("\xC3\xA9 two\nlines");
        desktop.messageBox(&screen, "Saved.", MessageButtons::Ok, MessageIcon::Information, "Templates");
    };
    user.key('N', wxMOD_ALT);
    untilFound<wxGenericMessageDialog>("the box is open");
    user.then([] { EXPECT_EQ(Robot::find<wxGenericMessageDialog>()->GetTitle(), "Templates"); });
    user.key(WXK_ESCAPE).until("closed", [] { return !Robot::find<wxGenericMessageDialog>(); });
    closeScreen();
    EXPECT_EQ(desktop.clipboardText(), "\xC3\xA9 two\nlines");
}

TEST_F(BoxTest, APopupReturnsTheChosenCommandAndSkipsADisabledOne) {
    // Three commands are enabled; the Down key skips the disabled one between them.
    user.key('M', wxMOD_ALT).key(WXK_DOWN).key(WXK_DOWN).key(WXK_RETURN);
    user.until("chosen", [&] { return screen.count("command 28201") + screen.count("command 28003") > 0; });
    user.key('M', wxMOD_ALT).key(WXK_ESCAPE).then([] {}).then([] {});
    closeScreen();
    EXPECT_EQ(screen.count("command 28201"), 1u);
    EXPECT_EQ(screen.count("command 28003"), 0u);
}

TEST_F(BoxTest, AfterAPopupTheWindowHandlesEventsWithinEvents) {
    bool within = false;
    screen.onNew = [&] {
        user.dialog()->Bind(wxEVT_IDLE, [&](wxIdleEvent& event) {
            event.Skip();
            if (std::exchange(within, true)) return;
            wxIdleEvent inner;
            user.dialog()->ProcessWindowEvent(inner);
        });
        const Command popup{.id = 9, .caption = "Menu", .commands = {{.id = 7, .caption = "One"}}};
        EXPECT_EQ(desktop.choosePopup(screen, popup, screen.cmdNew), 7);
        within = false;
        wxIdleEvent outer;
        user.dialog()->ProcessWindowEvent(outer);
        screen.note("chosen");
    };
    user.key('N', wxMOD_ALT).key(WXK_DOWN).key(WXK_RETURN);
    user.until("chosen", [&] { return screen.count("chosen") == 1; });
    closeScreen();
}

TEST_F(BoxTest, HelpOpensAboveTheScreenAndEscClosesOnlyTheHelp) {
    screen.onNew = [&] { desktop.showHelp(screen, "UI Reference.chm", 40); };
    user.key('N', wxMOD_ALT).until("help is open", [] {
        auto* window = Robot::find<wxDialog>();
        return window && window->GetTitle() == "UI Reference";
    });
    user.then([] {
        auto* window = Robot::find<wxDialog>();
        const auto* page = dynamic_cast<wxHtmlWindow*>(wxWindow::FindWindowByName("UI Reference", window));
        ASSERT_TRUE(page);
        EXPECT_THAT(const_cast<wxHtmlWindow*>(page)->ToText().utf8_string(), testing::HasSubstr("Ctrl+A"));
        wxUIActionSimulator().MouseMove(window->GetScreenPosition() + wxPoint(20, 40));
    });
    user.then([] {}).key(WXK_ESCAPE).until("help is closed", [&] {
        return Robot::find<wxDialog>() == user.dialog();
    });
    closeScreen();
}

TEST_F(BoxTest, PrintPreviewIsModalAndNeedsNoPrinter) {
    const struct {
        int records;
        int leastPages;
        int mostPages;
    } cases[] = {{0, 1, 1}, {5, 1, 1}, {1000, 10, 50}};
    std::size_t next = 0;
    screen.onNew = [&] {
        SampleList printed(desktop, cases[next++].records);
        desktop.printPreview(screen, printed.rptItems, "Terms");
        screen.note("returned");
    };
    for (const auto& test : cases) {
        user.key('N', wxMOD_ALT);
        untilFound<wxPreviewFrame>("the preview is open");
        const auto preview = [] { return Robot::find<wxPreviewFrame>()->GetControlBar()->GetPrintPreview(); };
        // The pages are counted when the first one is painted.
        user.until("pages", [=] { return preview()->GetMaxPage() >= test.leastPages; })
            .then([&, preview, test] {
                EXPECT_LE(preview()->GetMaxPage(), test.mostPages);
                EXPECT_TRUE(preview()->SetCurrentPage(preview()->GetMaxPage()));
                EXPECT_EQ(screen.count("returned"), next - 1);
            });
        user.then([] {}).key(WXK_ESCAPE);
        user.until("returned", [&] { return screen.count("returned") == next; });
        user.pointAt(screen.cmdNew).until("active again", [&] { return user.dialog()->IsActive(); });
        user.then([&] { EXPECT_FALSE(user.leavesOthersUsable()); });
    }
    closeScreen();
}

}  // namespace
}  // namespace tsln::desktop::test
