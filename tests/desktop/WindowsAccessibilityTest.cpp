#ifdef _WIN32

#include <oleacc.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/dataview.h>

#include "tests/desktop/EveryControl.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

/// A window's accessible object, as the system hands it to a screen reader. The caller owns the reference.
IAccessible* accessibleOf(wxWindow& window) {
    void* object = nullptr;
    const HRESULT found = AccessibleObjectFromWindow(window.GetHWND(), static_cast<DWORD>(OBJID_CLIENT),
                                                     IID_IAccessible, &object);
    return SUCCEEDED(found) ? static_cast<IAccessible*>(object) : nullptr;
}

VARIANT child(LONG number) {
    VARIANT id{};
    id.vt = VT_I4;
    id.lVal = number;
    return id;
}

std::string nameOf(IAccessible& object, LONG number) {
    BSTR text = nullptr;
    if (object.get_accName(child(number), &text) != S_OK || !text) return {};
    const std::string name = wxString(text).utf8_string();
    SysFreeString(text);
    return name;
}

LONG roleOf(IAccessible& object, LONG number) {
    VARIANT role{};
    return object.get_accRole(child(number), &role) == S_OK && role.vt == VT_I4 ? role.lVal : 0;
}

TEST(WindowsAccessibility, AListTellsItsNameRowsAndSelection) {
    WxDesktop desktop{nullptr, ""};
    EveryControl screen{desktop};
    Robot user{screen};
    user.until("the list is filled", [&] { return user.windowOf(screen.rpt) != nullptr; });
    user.then([&] {
        auto& view = dynamic_cast<wxDataViewCtrl&>(*user.windowOf(screen.rpt));
        view.Select(dynamic_cast<wxDataViewVirtualListModel&>(*view.GetModel()).GetItem(1));
        IAccessible* list = accessibleOf(view);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(nameOf(*list, CHILDID_SELF), "Products");
        LONG rows = 0;
        EXPECT_EQ(list->get_accChildCount(&rows), S_OK);
        EXPECT_EQ(rows, 5);
        EXPECT_THAT(nameOf(*list, 2), testing::HasSubstr("Blind 2"));
        EXPECT_EQ(roleOf(*list, 2), ROLE_SYSTEM_LISTITEM);
        VARIANT selected{};
        EXPECT_EQ(list->get_accSelection(&selected), S_OK);
        EXPECT_EQ(selected.vt, VT_I4);
        EXPECT_EQ(selected.lVal, 2);
        list->Release();
    });
    user.key(WXK_ESCAPE).show();
}

}  // namespace
}  // namespace tsln::desktop::test

#endif
