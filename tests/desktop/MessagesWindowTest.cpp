#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/uiaction.h>

#include "measurements/MeasurementDialog.h"
#include "messages/TemplateEditor.h"
#include "tests/desktop/HostedWindows.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

using measurements::MeasurementDialog;
using messages::TemplateEditor;
using testing::ElementsAre;
using testing::EndsWith;

using MeasurementWindow = HostedWindows;
using TemplateWindow = HostedWindows;

TEST_F(MeasurementWindow, ABurstOfTypedLinesFillsRowAfterRow) {
    MeasurementDialog dialog(library);
    dialog.open(0, 5, Variant());
    dialog.load();
    Robot user(dialog);
    constexpr int measurements = 12;
    user.untilFocused(*dialog.control("cboLocation"));
    user.type("House").key('A', wxMOD_ALT).until("again", [&] { return dialog.chkAgain.checked(); });
    user.key('W', wxMOD_ALT);
    user.untilFocused(dialog.textBox("txtWidth"));
    // The lines follow each other without a pause.
    user.then([] {
        wxUIActionSimulator meter;
        for (int i = 0; i < measurements; ++i) {
            for (const int size : {20 + i, 60 + i}) {
                for (const char c : std::to_string(size) + " 1/2")
                    meter.Char(c);
                meter.Char(WXK_RETURN);
            }
        }
    });
    const auto inserted = [&] { return host->callsOf("Database.ExecuteNonQueryWithID"); };
    user.until("all rows", [&] { return inserted().size() >= measurements; });
    user.then([&] { EXPECT_EQ(user.focused(), &dialog.textBox("txtWidth")); });
    user.key(WXK_ESCAPE).show();
    const std::vector<std::string> rows = inserted();
    ASSERT_EQ(rows.size(), std::size_t{measurements});
    for (int i = 0; i < measurements; ++i) {
        EXPECT_THAT(rows[static_cast<std::size_t>(i)], EndsWith("'" + std::to_string(20 + i) + " 1/2','" +
                                                                std::to_string(60 + i) + " 1/2','')"));
    }
}

TEST_F(TemplateWindow, TheMessageHasAMenuOfItsOwnAndTakesFieldsAtTheCaret) {
    host->rows("SELECT TOP 1 * FROM vwDocumentProcessing_Vendors",
               "<Records><Record><VendorName>V</VendorName></Record></Records>");
    TemplateEditor editor(library);
    editor.open(0);
    editor.load();
    Robot user(editor);
    TextBox& body = editor.textBox("rtfBody");
    user.untilFocused(*editor.control("cboGroup"));
    user.then([&] { editor.comboBox("cboType").userChoose(1); });
    user.click(body);
    user.untilFocused(body);
    user.type("ab").key('A', wxMOD_CONTROL).rightClickAt(body, [] { return wxPoint(30, 60); });
    user.pause().key(WXK_DOWN).key(WXK_RETURN).until("copied", [&] {
        return desktop.clipboardText() == "ab";
    });
    user.key(WXK_HOME).key(WXK_RIGHT).pause();
    user.key(WXK_TAB, wxMOD_CONTROL).key(WXK_TAB);
    user.untilFocused(editor.rptFields);
    user.key(WXK_DOWN).key(WXK_HOME).pause().key(WXK_RETURN);
    user.until("field", [&] { return body.text() == "a<<VendorName>>b"; });
    user.untilFocused(body);
    user.type("c").until("behind it", [&] { return body.text() == "a<<VendorName>>cb"; });
    user.key(WXK_ESCAPE).show();
}

}  // namespace
}  // namespace tsln::desktop::test
