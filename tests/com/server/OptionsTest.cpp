// Option callouts and defaults, called through COM over a real company.

#include <gmock/gmock.h>

#include "tests/com/server/OfferedComponent.h"
#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

using ::testing::IsEmpty;

using OptionsTest = OverCompany;

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

TEST_F(OptionsTest, SettingsAreFilteredEditedSequencedSavedAndReadBack) {
    constexpr const char* title = "Option Detail Settings";
    constexpr int uncheckSelected = 4, addToSequence = 7;
    {
        const User user([&](WindowDriver& at) {
            at.fill(title, 0, "hold");
            at.selectFirstRow(title);
            at.key(title, VK_F2);
            at.type(title, "Hold");
            at.key(title, VK_RETURN);
            at.selectFirstRow(title);
            at.choose(title, "&More", addToSequence);
            at.press(title, "OK");
        });
        ASSERT_EQ(S_OK, library->ShowOptionDetailSettings());
    }
    EXPECT_EQ("4", value("SELECT Sequence FROM OptionDetailSettings WHERE OptionName = 'Hold Downs'"));
    EXPECT_EQ("Hold", value("SELECT Prefix FROM OptionDetailSettings WHERE OptionName = 'Hold Downs'"));
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

TEST_F(OptionsTest, AScanReadsTheProductFilesByTheHostsComponent) {
    const OfferedComponent engine(session, "catalog5engine.Engine");
    const std::string before = value("SELECT COUNT(*) FROM OptionDetailSettings");
    ASSERT_EQ(S_OK, library->ScanForOptionDetailSettings());  // its window closes by itself
    EXPECT_GT(std::stoi(value("SELECT COUNT(*) FROM OptionDetailSettings")), std::stoi(before) + 30);
    EXPECT_EQ(
        "Wand for battery",
        value("SELECT Prefix FROM OptionDetailSettings WHERE OptionName = 'Battery Wand' AND Location = 0"));
    EXPECT_EQ("1",
              value("SELECT COUNT(*) FROM EventLog WHERE EventText LIKE '%you don''t have permission%'"));
}

}  // namespace
}  // namespace tsln::test
