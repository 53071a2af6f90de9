#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/notebook.h>
#include <wx/toplevel.h>

#include "entities/VendorEditor.h"
#include "tests/desktop/HostedWindows.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

using entities::VendorEditor;
using testing::ElementsAre;
using testing::HasSubstr;

/// Opens the vendor editor in a window as its operation does.
class VendorWindow : public HostedWindows {
  protected:
    VendorWindow() {
        host->on("Common.LoadPhoneLabels", [](Arguments a) { return a[0].object().call("AddItem", "Home"); });
        editor.open(0);
        editor.load();
    }
    wxNotebook& book() { return dynamic_cast<wxNotebook&>(*user.windowOf(editor.TabControl1)); }

    VendorEditor editor{library};
    Robot user{editor};
};

TEST_F(VendorWindow, TheKeyboardAloneFillsInAndSavesAVendor) {
    user.untilFocused(editor.textBox("txtName"));  // the focus is not on the tabs
    user.type("Quay").key('U', wxMOD_ALT);
    user.untilFocused(editor.textBox("txtAccountNumber"));
    user.type("7").key('2', wxMOD_ALT);
    user.untilFocused(*editor.control("cboPhone2Label"));
    user.key(WXK_TAB);
    user.untilFocused(*editor.control("txtPhone2"));
    user.type("555");

    user.key(WXK_PAGEDOWN, wxMOD_CONTROL).until("second page", [&] {
        return editor.TabControl1.selected() == 1;
    });
    user.click(editor.textBox("txtBillToAddress"));
    user.untilFocused(editor.textBox("txtBillToAddress"));
    user.then([&] { EXPECT_FALSE(dynamic_cast<wxTopLevelWindow*>(user.dialog())->GetDefaultItem()); });
    user.type("a").key(WXK_RETURN).type("b").until("two lines", [&] {
        return editor.textBox("txtBillToAddress").text() == "a\r\nb";
    });
    user.key(WXK_PAGEDOWN, wxMOD_CONTROL).key(WXK_PAGEUP, wxMOD_CONTROL);  // works in a text box, too
    user.until("back", [&] { return editor.TabControl1.selected() == 1; });
    user.untilFocused(editor.textBox("txtBillToAddress"));
    user.key(WXK_TAB, wxMOD_CONTROL);
    user.untilFocused(editor.textBox("txtShipToAddress"));
    user.key(WXK_TAB, wxMOD_CONTROL);
    user.untilFocused(editor.lblCopyBilling);
    user.key(WXK_RETURN).until("copied", [&] {
        return editor.textBox("txtShipToAddress").text() == "a\r\nb";
    });

    user.key(WXK_PAGEDOWN, wxMOD_CONTROL).until("third page", [&] {
        return editor.TabControl1.selected() == 2;
    });
    user.key('N', wxMOD_ALT).pause();  // does nothing: the name is on another page
    user.key('M', wxMOD_ALT);
    user.untilFocused(editor.textBox("txtMargin"));
    user.type("50").key(WXK_RETURN).show();
    EXPECT_FALSE(editor.Cancelled);
    const auto inserted = host->callsOf("Database.ExecuteNonQueryWithID");
    ASSERT_EQ(inserted.size(), 1U);
    for (const char* part :
         {"('Quay', ", "'Work', '555'", "'a\r\nb', '', '', '', '', '', 'a\r\nb', ", " 0.5, 0, 0)"})
        EXPECT_THAT(inserted[0], HasSubstr(part));
}

TEST_F(VendorWindow, AMissingNameMovesTheFocusToItsPage) {
    user.then([&] { book().SetSelection(3); });
    user.until("notes", [&] { return editor.TabControl1.selected() == 3; })
        .click(editor.textBox("txtNotes"))
        .type("n");
    user.until("typed", [&] { return editor.textBox("txtNotes").text() == "n"; });
    user.then([&] {
        const int high = user.windowOf(editor.textBox("txtNotes"))->GetSize().y;
        EXPECT_GT(high, user.dialog()->GetSize().y / 2) << "the notes fill their page";
    });
    user.click(editor.cmdOK).until("message", [] { return Robot::find<wxDialog>() != nullptr; });
    user.key(WXK_RETURN).until("back", [&] { return book().GetSelection() == 0; });
    user.untilFocused(editor.textBox("txtName"));
    user.type("V").key(WXK_RETURN).show();
    EXPECT_FALSE(editor.Cancelled);
}

}  // namespace
}  // namespace tsln::desktop::test
