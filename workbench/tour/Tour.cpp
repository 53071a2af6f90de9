#include "workbench/tour/Tour.h"

#include <filesystem>

#include <wx/defs.h>

#include "automation/FilePath.h"
#include "workbench/tour/TourSteps.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

int count(Company& company, const std::string& condition) {
    return company.scalar("SELECT COUNT(*) FROM Terms WHERE " + condition).toLong();
}

/// Positions of the commands in the "More" popup, without separators.
enum class MoreCommand { Import = 1, Export, Print, Save, MoveReferences, InstallDefaults };

}  // namespace

Script termsTour(Company& company, std::string folder) {
    Album album(folder);
    const std::string exported = "terms.xml";  // a relative path: dialogs start in the working folder
    std::filesystem::current_path(pathOf(folder));
    std::filesystem::remove(exported);

    const auto chooseMore = [](MoreCommand command) -> Script::Wait {
        press('m', wxMOD_ALT);
        int step = 0;
        // The menu takes a moment to grab the keyboard; then one key is sent per tick.
        return until("the \"More\" command is chosen", [command, step]() mutable {
            if (!popupIsOpen() && step == 0) return false;
            if (step++ < static_cast<int>(command)) {
                press(WXK_DOWN);
                return false;
            }
            press(WXK_RETURN);
            return true;
        });
    };
    const auto keys = [](std::initializer_list<const char*> fields) {
        const char* separator = "";
        for (const char* field : fields) {
            if (*separator) press(WXK_TAB);
            separator = "\t";
            type(field);
        }
    };

    company.execute("DELETE FROM Terms");
    co_await untilActive("Tessaline Workbench");
    type("ShowTerms");
    co_await settled();
    album.take("workbench", "the workbench, its operations narrowed to ShowTerms");
    press(WXK_RETURN);

    co_await untilActive("Tessaline");
    co_await settled();
    album.take("offer", "the empty list offers the default terms");
    press(WXK_RETURN);
    co_await until("the package processor has installed the defaults",
                   [&] { return count(company, "ID > 0") >= 10; });
    co_await untilActive("Terms");
    co_await settled();
    album.take("defaults", "the defaults, installed by the package processor");
    const int defaults = count(company, "ID > 0");

    press(WXK_INSERT);
    co_await untilActive("New Terms");
    keys({"Net 21", "21", "1.5", "7"});
    co_await settled();
    album.take("new", "New: a term of 21 days with a discount of 1.5 %");
    press(WXK_RETURN);
    co_await untilActive("Terms");
    expect(count(company, "Terms = 'Net 21' AND DueDays = 21 AND Discount = 0.015 AND DiscountDays = 7") == 1,
           "the new term was stored, its discount as a fraction");

    press(WXK_RETURN);
    co_await untilActive("Edit Terms");
    keys({"Net 21 Days", "20"});
    co_await settled();
    album.take("edit", "Edit: the same term with another name");
    press(WXK_RETURN);
    co_await untilActive("Terms");
    expect(count(company, "Terms = 'Net 21'") == 0 &&
               count(company, "Terms = 'Net 21 Days' AND DueDays = 20") == 1,
           "the term was changed");
    co_await settled();
    album.take("changed", "the list shows the changed row");

    press(WXK_INSERT);
    co_await untilActive("New Terms");
    keys({"net 21 DAYS"});
    press(WXK_RETURN);
    co_await untilActive("Tessaline");
    co_await settled();
    album.take("duplicate", "a name that exists already is refused, whatever its letter case");
    press(WXK_RETURN);
    co_await untilActive("New Terms");
    press(WXK_ESCAPE);
    co_await untilActive("Terms");
    expect(count(company, "ID > 0") == defaults + 1, "the duplicate was not stored");

    press(WXK_HOME);
    press(WXK_DOWN, wxMOD_SHIFT);
    press(WXK_DOWN, wxMOD_SHIFT);
    co_await settled();
    album.take("selected", "three rows selected");
    press(WXK_DELETE);
    co_await untilActive("Tessaline");
    co_await settled();
    album.take("delete", "the Del key asks before it deletes");
    expect(count(company, "ID > 0") == defaults + 1, "nothing is deleted before the answer");
    press(WXK_RETURN);
    co_await until("three terms are deleted", [&] { return count(company, "ID > 0") == defaults - 2; });
    co_await settled();
    album.take("deleted", "Delete: the three rows are gone");

    co_await chooseMore(MoreCommand::Export);
    co_await untilActive("Save As");
    co_await settled();
    type("terms");  // replaces the proposed name; its extension stays
    co_await settled();
    album.take("export", "Export: a file name in the save dialog");
    press(WXK_RETURN);
    co_await untilActive("Tessaline");
    co_await settled();
    album.take("exported", "the terms were exported");
    press(WXK_RETURN);
    co_await untilActive("Terms");
    if (!std::filesystem::exists(exported)) throw ScriptFailure("The export wrote no file.");

    press('a', wxMOD_CONTROL);
    co_await settled();
    press('d', wxMOD_ALT);
    co_await until("all terms are deleted", [&] { return count(company, "ID > 0") == 0; });
    co_await chooseMore(MoreCommand::Import);
    co_await untilActive("Open");
    co_await settled();
    type("./" + exported);  // typing a path opens the dialog's field for it
    co_await settled();
    album.take("import", "Import: every row was deleted, the exported file is imported");
    press(WXK_RETURN);
    co_await untilActive("Tessaline");
    co_await settled();
    album.take("imported", "the terms were imported");
    press(WXK_RETURN);
    co_await untilActive("Terms");
    expect(count(company, "ID > 0") == defaults - 2 &&
               count(company, "Terms = 'Net 21 Days' AND DueDays = 20 AND Discount = 0.015") == 1,
           "the exported terms were imported");

    press('m', wxMOD_ALT);
    co_await until("the popup is open", [] { return popupIsOpen(); });
    co_await settled();
    album.take("more", "the \"More\" commands");
    press(WXK_ESCAPE);
    co_await untilActive("Terms");
    co_await chooseMore(MoreCommand::Print);
    co_await untilActive("Terms - Print Preview");
    co_await pause(std::chrono::milliseconds(1000));
    album.take("print-preview", "the print preview");
    press(WXK_ESCAPE);
    co_await untilActive("Terms");
    co_await settled();
    press(WXK_F1);
    co_await untilActive("UI Reference");
    co_await settled();
    album.take("help", "F1: the help topic");
    press(WXK_ESCAPE);
    co_await untilActive("Terms");

    press(WXK_ESCAPE);
    co_await untilActive("Tessaline Workbench");
    co_await settled();
    album.take("live-pane", "the workbench shows what passed between module and host");
}

}  // namespace tsln::workbench
