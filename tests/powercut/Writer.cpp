#include "tests/powercut/Writer.h"

#include <array>
#include <unistd.h>

#include "entities/VendorEditor.h"
#include "maintenance/ListCommands.h"
#include "maintenance/ListScreen.h"
#include "pricing/BulkChange.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/company/CompanyFile.h"

namespace tsln::workbench {
namespace {

/// Whole at once, so that whoever reads gets what was written before the end.
void say(const std::string& line) {
    const std::string text = line + "\n";
    if (write(STDOUT_FILENO, text.data(), text.size()) < 0) _exit(1);
}

class Writer {
  public:
    Writer(const std::string& path, int first) : number_(first), session_(path, "admin", ui_) {
        plugInModule(*library_);
        desktop_.components = [this](std::string_view programId) { return session_.createObject(programId); };
        library_->Initialize(session_.sharedCode());
        addCustomers(session_.company());
    }

    void vendor() {
        act("vendor", [&] {
            ID_ = edit(0, [&](entities::VendorEditor& editor) {
                editor.textBox("txtName").userType("Vendor " + std::to_string(number_));
            });
            return ID_ > 0;
        });
    }
    void changeVendor() {
        if (ID_ < 1) return;  // the last one was refused
        act("change", [&] { return edit(ID_, [](entities::VendorEditor&) {}) == ID_; });
    }
    void import() {
        std::string records;
        for (int i = 0; i < acts::termsPerImport; ++i) {
            records += "<Record><Terms>Import " + std::to_string(number_) + "-" + std::to_string(i) +
                       "</Terms><DueDays>" + std::to_string(number_) + "</DueDays></Record>";
        }
        const std::string file =
            folder_.write("terms.xml", "<Sections><Terms>" + records + "</Terms></Sections>");
        act("import", [&] {
            desktop_.user<ListScreen>("frmTerms", [&](ListScreen& list) {
                desktop_.popupChoices = {command::import};
                desktop_.files = {file};
                list.cmdMore.userPress();
            });
            library_->ShowTerms();
            return desktop_.boxes.back().text == "The terms were imported.";
        });
    }
    void bulkChange() {
        std::string selection;
        for (int i = 0; i < acts::customers; ++i)
            selection += (i == 0 ? "" : ",") + std::to_string(acts::firstCustomer + i);
        act("bulk", [&] {
            ui_.replies = {{.answer = MessageAnswer::Yes}};
            desktop_.user<pricing::BulkChange>("frmBulkChange", [&](pricing::BulkChange& screen) {
                screen.optC_ChangeTaxGroup.userSelect();
                screen.cboC_TaxGroup.userChoose(static_cast<std::size_t>(number_ / 4 % 2));
                screen.cmdOK.userPress();
            });
            library_->ShowBulkChange(1, selection);
            return ui_.shown.back().text == "Bulk change has completed";
        });
    }
    void migrate() {
        if (old_.empty()) {
            old_ = folder_.file("old.company");
            makeCompany42(old_, acts::oldCustomers);
        }
        act("migrate", [&] { return !library_->Perform42Migration(old_, 2); });
    }

  private:
    static void addCustomers(Company& company) {
        const std::string mine = std::to_string(acts::firstCustomer);
        if (company.scalar("SELECT COUNT(*) FROM Customers WHERE ID >= " + mine).toLong() > 0) return;
        std::string rows;
        for (int i = 0; i < acts::customers; ++i)
            rows += (i == 0 ? "(" : ", (") + std::to_string(acts::firstCustomer + i) + ", 'Bulk')";
        company.execute("INSERT INTO Customers (ID, CustomerName) VALUES " + rows);
    }
    template <class Work>
    void act(const std::string& kind, Work work) {
        const std::string name = kind + " " + std::to_string(number_);
        ui_.shown.clear();
        say("begin " + name);
        const bool done = work();
        say((done ? "done " : "refused ") + name +
            (done || ui_.shown.empty() ? "" : " " + ui_.shown.back().text + " " + ui_.shown.back().detail));
        ++number_;
    }
    template <class More>
    std::int32_t edit(std::int32_t ID, More more) {
        desktop_.user<entities::VendorEditor>("frmEditVendor", [&](entities::VendorEditor& editor) {
            more(editor);
            editor.textBox("txtBillToAddress").userType(std::to_string(number_) + acts::street);
            editor.textBox("txtNotes").userType(std::to_string(number_));
            editor.cmdOK.userPress();
        });
        return library_->ShowEditVendor(ID);
    }

    int number_;
    std::int32_t ID_ = 0;
    std::string old_;  // a company of version 4.2
    TestFolder folder_;
    RecordingUi ui_;
    CompanySession session_;
    test::ScriptedDesktop desktop_;
    std::shared_ptr<Library> library_ = std::make_shared<Library>(desktop_);
};

}  // namespace

void writeWithoutEnd(const std::string& path, int first, const std::string& kinds) {
    std::optional<Writer> writer;
    while (!writer) {
        try {
            writer.emplace(path, first);
        } catch (const SqlError&) {
            sleep(1);
        } catch (const CompanyFileError& error) {
            if (error.reason() != CompanyFileError::Reason::Locked) throw;
        }
    }
    say("open");
    for (std::size_t i = 0;; i = (i + 1) % kinds.size()) {
        if (kinds[i] == 'v') {
            writer->vendor();
            writer->changeVendor();
        } else if (kinds[i] == 'i') {
            writer->import();
        } else if (kinds[i] == 'm') {
            writer->migrate();
        } else {
            writer->bulkChange();
        }
    }
}

void holdCompany(const std::string& path, int seconds) {
    Company company(path);
    company.transaction([&] {
        company.execute("INSERT INTO Terms (Terms) VALUES ('Held')");
        say("holding");
        sleep(static_cast<unsigned>(seconds));
    });
}

}  // namespace tsln::workbench
