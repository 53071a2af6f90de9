#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/defs.h>

#include "workbench/tour/GalleryStops.h"

namespace tsln::workbench {
namespace {

TEST(GalleryStops, EveryScreenHasAStopWithValidArguments) {
    std::set<std::string> names;
    std::set<Operation> visited;
    for (const GalleryStop& stop : galleryStops()) {
        SCOPED_TRACE(stop.name);
        EXPECT_TRUE(names.insert(stop.name).second) << "two stops would write the same picture files";
        visited.insert(stop.operation);
        const OperationInfo& row = info(stop.operation);
        ASSERT_EQ(stop.arguments.size(), row.argumentCount);
        for (std::size_t i = 0; i < row.argumentCount; ++i)
            EXPECT_NO_THROW(convert(Variant(stop.arguments[i]), row.argumentRow[i].type));
        EXPECT_NO_THROW(readKeys(stop.keys));
    }
    for (const OperationInfo& row : operations) {
        const bool shows = row.visibility == Visibility::Public && row.name.starts_with("Show");
        EXPECT_TRUE(!shows || visited.contains(row.operation)) << row.name;
    }
    EXPECT_TRUE(names.contains("ShowEditTerms") && names.contains("ShowEditTerms-new"));
}

TEST(GalleryStops, KeysAreParsedWordByWord) {
    const std::vector<Keystroke> keys = readKeys("Ctrl+Shift+Down Alt+m =Net_21 * ...");
    ASSERT_EQ(keys.size(), 5u);
    EXPECT_EQ(keys[0].key, WXK_DOWN);
    EXPECT_EQ(keys[0].modifiers, wxMOD_CONTROL | wxMOD_SHIFT);
    EXPECT_EQ(keys[1].key, 'm');
    EXPECT_EQ(keys[1].modifiers, wxMOD_ALT);
    EXPECT_EQ(keys[2].text, "Net 21");
    EXPECT_EQ(keys[3].kind, Keystroke::Kind::Picture);
    EXPECT_EQ(keys[4].kind, Keystroke::Kind::Wait);
    for (const char* wrong : {"Enters", "Alt+", "Meta+m"})
        EXPECT_THROW(readKeys(wrong), std::invalid_argument) << wrong;
}

}  // namespace
}  // namespace tsln::workbench
