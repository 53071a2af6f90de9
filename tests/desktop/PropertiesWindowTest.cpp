#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/dataview.h>
#include <wx/gauge.h>
#include <wx/utils.h>

#include "properties/DatabaseProperties.h"
#include "screens/Job.h"
#include "tests/desktop/HostedWindows.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

using properties::DatabaseProperties;

using PropertiesWindow = HostedWindows;

TEST_F(PropertiesWindow, FillsWhileItIsDrawnAndLeavesTheKeyboardInTheGrid) {
    DatabaseProperties screen(library);
    Robot user(screen);
    std::set<std::int32_t> drawnAt;
    host->on("TSLNSQL.ExecuteScaler", [&](Arguments) {
        wxMilliSleep(5);
        const auto* bar = dynamic_cast<wxGauge*>(user.windowOf(screen.ProgressBar1));
        if (bar) drawnAt.insert(bar->GetValue());
        return Variant("Two\r\nlines");
    });
    user.until("filled", [&] { return screen.loaded() && !screen.job() && !screen.ProgressBar1.visible(); })
        .until("focus in the grid", [&] { return user.focused() == &screen.grdProperties; })
        .then([&] {
            auto* grid = dynamic_cast<wxDataViewCtrl*>(user.windowOf(screen.grdProperties));
            ASSERT_TRUE(grid);
            EXPECT_GT(grid->GetColumn(0)->GetWidth(), grid->GetTextExtent("Oldest Customer (any type)").x);
            wxDataViewItemArray categories, rows;
            grid->GetModel()->GetChildren(wxDataViewItem(), categories);
            ASSERT_EQ(categories.size(), 14U);
            grid->GetModel()->GetChildren(categories[2], rows);
            ASSERT_EQ(rows.size(), 2U);
            wxVariant shown;
            grid->GetModel()->GetValue(shown, rows[0], 1);
            EXPECT_EQ(shown.GetString(), "Two lines");
        })
        .key(WXK_ESCAPE)
        .show();
    EXPECT_GT(drawnAt.size(), 3U) << "the bar was drawn between the rows";
    EXPECT_FALSE(screen.loaded());
}

}  // namespace
}  // namespace tsln::desktop::test
