#include <climits>
#include <gtest/gtest.h>

#include "desktop/Placement.h"

namespace tsln::desktop {
namespace {

using Placement = Screen::Placement;

const Surroundings around{
    .display = {0, 30, 1280, 994}, .owner = {200, 130, 800, 600}, .least = {300, 200}, .natural = {500, 400}};

TEST(Placement, KeepsStoredValuesWithinTheDisplay) {
    const struct {
        const char* what;
        Placement stored;
        bool resizable;
        wxRect expected;
    } cases[] = {
        {"nothing stored: centred on the owner", {}, true, {350, 230, 500, 400}},
        {"all stored: centred vertically", {100, 600, 500}, true, {100, 180, 600, 500}},
        {"a fixed screen keeps its own size", {100, 600, 500}, false, {100, 230, 500, 400}},
        {"left of the display", {-5000, 600, 500}, true, {0, 180, 600, 500}},
        {"right of the display", {5000, 600, 500}, true, {680, 180, 600, 500}},
        {"partly outside", {1000, 600, 500}, true, {680, 180, 600, 500}},
        {"larger than the display", {10, 9999, 9999}, true, {0, 30, 1280, 994}},
        {"smaller than the minimum size", {10, 1, -1}, true, {10, 330, 300, 200}},
        {"extreme values", {INT_MIN, INT_MAX, INT_MIN}, true, {0, 330, 1280, 200}},
        {"opposite extreme values", {INT_MAX, INT_MIN, INT_MAX}, true, {980, 30, 300, 994}},
    };
    for (const auto& test : cases) {
        const wxRect rect = placeWindow(test.stored, test.resizable, around);
        EXPECT_EQ(rect, test.expected)
            << test.what << ": " << rect.x << " " << rect.y << " " << rect.width << " " << rect.height;
    }
}

TEST(Placement, FillsADisplayThatIsSmallerThanTheScreen) {
    Surroundings tiny = around;
    tiny.display = tiny.owner = {0, 0, 250, 150};
    EXPECT_EQ(placeWindow({}, true, tiny), wxRect(0, 0, 250, 150));
}

}  // namespace
}  // namespace tsln::desktop
