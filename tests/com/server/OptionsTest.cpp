// Option details, callouts and defaults, called through COM over a real company.

#include <gmock/gmock.h>

#include "com/edge/Conversion.h"
#include "com/edge/DispatchObject.h"
#include "doubles/TempFolder.h"
#include "tests/com/server/Server.h"
#include "workbench/host/CompanySession.h"

namespace tsln::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using workbench::CompanySession;

/// Records the host's messages.
class TellingUi : public workbench::HostUi {
  public:
    workbench::Reply showMessage(const workbench::Message& message) override {
        told.push_back(message.text);
        return {};
    }
    std::vector<std::string> told;
};

class OptionsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(session.sharedCode()));
        ASSERT_EQ(S_OK, library->Initialize(sharedCode.GetAddressOf()));
    }
    void TearDown() override { EXPECT_EQ(S_OK, library->PreTerminate()); }
    std::string value(const std::string& sql) { return session.company().scalar(sql).toText(); }

    TempFolder folder;
    TellingUi ui;
    CompanySession session{folder.file("Options.company"), "admin", ui};
    ComPtr<ILibrary> library = newLibrary();
};

TEST_F(OptionsTest, SettingsAreFilteredSequencedSavedAndReadBack) {
    constexpr const char* title = "Option Detail Settings";
    constexpr int uncheckSelected = 4, addToSequence = 7;
    {
        const User user([&](WindowDriver& at) {
            at.fill(title, 0, "hold");
            at.selectFirstRow(title);
            at.choose(title, "&More", addToSequence);
            at.press(title, "OK");
        });
        ASSERT_EQ(S_OK, library->ShowOptionDetailSettings());
    }
    EXPECT_EQ("4", value("SELECT Sequence FROM OptionDetailSettings WHERE OptionName = 'Hold Downs'"));
    EXPECT_EQ("1", value("SELECT Sequence FROM OptionDetailSettings WHERE OptionName = 'Room Location'"));
    {
        const User user([&](WindowDriver& at) {
            at.fill(title, 0, "pattern");
            at.selectFirstRow(title);
            at.choose(title, "&More", uncheckSelected);
            at.press(title, "Cancel");
        });
        EXPECT_EQ(S_OK, callByName(library.Get(), "ShowOptionDetailSettings", {}));
    }
    EXPECT_EQ("1",
              value("SELECT Show FROM OptionDetailSettings WHERE OptionName = 'Pattern' AND Location = 0"));
    EXPECT_THAT(ui.told, IsEmpty());
}

TEST_F(OptionsTest, CalloutsAndDefaultsAreSaved) {
    LONG key = 0;
    LONG saved = 0;
    {
        const User user([](WindowDriver& at) {
            at.fill("New Option Callout", 0, "Lift");
            at.press("New Option Callout", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditOptionCallout(&key, &saved));
    }
    EXPECT_EQ("Lift", value("SELECT OptionName FROM OptionCallouts WHERE ID = " + std::to_string(saved)));
    {
        const User user([](WindowDriver& at) { at.press("Option Callouts", "&Close"); });
        EXPECT_EQ(S_OK, library->ShowOptionCallouts(0));
    }
    LONG product = 7;
    {
        const User user([](WindowDriver& at) {
            at.fill("Edit Option Default", 0, "Frame");
            at.fill("Edit Option Default", 1, "Z frame");
            at.press("Edit Option Default", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditOptionDefault(&key, &product, &saved));
    }
    EXPECT_EQ("Z frame",
              value("SELECT OptionValue FROM OptionDefaults WHERE ProductID = 7 AND OptionName = 'Frame'"));
    {
        const User user([](WindowDriver& at) { at.press("Option Defaults", "&Close"); });
        EXPECT_EQ(S_OK, library->ShowOptionDefaults(&product));
    }
    EXPECT_THAT(ui.told, IsEmpty());
}

}  // namespace
}  // namespace tsln::test
