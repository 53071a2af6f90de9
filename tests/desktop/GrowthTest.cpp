#include <fstream>
#include <unistd.h>

#include <gtest/gtest.h>
#include <wx/toplevel.h>

#include "bridge/Library.h"
#include "desktop/WxDesktop.h"
#include "doubles/RecordingHost.h"
#include "lists/Lists.h"
#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"

namespace tsln::desktop::test {
namespace {

/// The resident memory of the process, in kilobytes.
long memoryInUse() {
    std::ifstream pages("/proc/self/statm");
    long total = 0, resident = 0;
    pages >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

/// A list and a dialog that close as soon as they have loaded.
class BriefList : public ListScreen {
  public:
    using ListScreen::ListScreen;

  protected:
    void Form_Activate() override {
        ListScreen::Form_Activate();
        EXPECT_EQ(rptItems.rowCount(), 50U);
        cmdNew.userPress();
        cmdClose.userPress();
    }
};
class BriefDialog : public RecordDialog {
  public:
    using RecordDialog::RecordDialog;

  protected:
    void Form_Activate() override {
        RecordDialog::Form_Activate();
        cmdCancel.userPress();
    }
};

TEST(Growth, ManyListsAndDialogsReleaseTheirMemoryAndWindows) {
    const auto host = tsln::test::RecordingHost::make();
    std::string rows = "<Records>";
    for (int i = 1; i <= 50; ++i) {
        rows +=
            "<Record><ID>" + std::to_string(i) + "</ID><Terms>Net " + std::to_string(i) + "</Terms></Record>";
    }
    host->rows("SELECT * FROM Terms ORDER BY Terms", rows + "</Records>");
    WxDesktop desktop([&](std::string_view programId) { return host->component(programId); }, "");
    const auto library = std::make_shared<Library>(desktop);
    library->plugIn(Operation::ShowTerms, [](Library& self, Arguments) {
        const auto make = [&] { return std::make_shared<BriefList>(self, lists::termsList); };
        return Variant(self.screens().show("frmTerms", make, [](BriefList&) {})->closedByClose);
    });
    library->plugIn(Operation::ShowEditTerms, [](Library& self, Arguments a) {
        const auto make = [&] { return std::make_shared<BriefDialog>(self, lists::termsList); };
        return Variant(
            self.screens().show("frmTerms_Edit", make, [&](BriefDialog& d) { d.ID = a[0].toLong(); })->ID);
    });
    library->Initialize(host->sharedCode());

    const auto openAndClose = [&](int times) {
        for (int i = 0; i < times; ++i) {
            EXPECT_TRUE(library->ShowTerms());
            host->forget();
        }
    };
    openAndClose(100);  // fills caches
    const long before = memoryInUse();
    const std::size_t windows = wxTopLevelWindows.GetCount();
    openAndClose(300);
    EXPECT_EQ(wxTopLevelWindows.GetCount(), windows);
    const long growth = memoryInUse() - before;
    RecordProperty("growth_kb", static_cast<int>(growth));
#ifdef __SANITIZE_ADDRESS__
    constexpr long allowed = 20 * 1024;  // the sanitizer keeps freed memory; leaked windows need far more
#else
    constexpr long allowed = 512;
#endif
    EXPECT_LT(growth, allowed) << "kilobytes after 300 lists with their dialogs";
    library->PreTerminate();
    EXPECT_EQ(host->liveObjects(), 0);
}

}  // namespace
}  // namespace tsln::desktop::test
