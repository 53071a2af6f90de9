#include "benchmark/Lines.h"
#include "doubles/Stage.h"
#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"

namespace tsln::bench {
namespace {

constexpr auto load = "SELECT * FROM Terms ORDER BY Terms";
constexpr auto rows =
    "<Records><Record><ID>1</ID><Terms>COD</Terms></Record><Record><ID>2</ID><Terms>Net 30</Terms></Record></Records>";

/// Counts the calls of the terms list and its dialog to the host for each action of the user. Fetching a sub-object
/// counts as a call.
class CountedActs {
  public:
    explicit CountedActs(Report& report) : report_(report) {
        stage_.host->rows(load, rows);
        stage_.host->rows("SELECT * FROM Terms WHERE ID = 1", rows);
        stage_.host->rows("SELECT * FROM Terms WHERE ID = 2", rows);
    }

    void measure() {
        stage_.desktop.user<ListScreen>("frmTerms", [this](ListScreen& list) {
            told("opening the terms");
            stage_.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
                dialog.textBox("txtTerms").userType("Net 60");
                dialog.cmdOK.userPress();
            });
            list.cmdNew.userPress();
            told("New, a term typed and saved");
            list.rptItems.userSelect({{0}}, 0);
            told("selecting a row");
            stage_.desktop.user<RecordDialog>("frmTerms_Edit",
                                              [](RecordDialog& dialog) { dialog.cmdOK.userPress(); });
            list.cmdEdit.userPress();
            told("Edit, the term saved as it is");
            list.cmdDelete.userPress();
            told("Delete of one row");
        });
        stage_.library->ShowTerms();
    }

  private:
    void told(const std::string& act) {
        const double calls = stage_.host->callCount() - counted_;
        const double rights = static_cast<double>(stage_.host->callsOf("Security.CanDo").size());
        report_.add(Line{act,
                         "of them questions for rights: " + std::to_string(static_cast<int>(rights)),
                         {.median = calls, .low = calls, .high = calls},
                         Line::Goal::AtMost,
                         std::nullopt,
                         "host calls"});
        stage_.host->forget();
        counted_ = stage_.host->callCount();
    }

    Report& report_;
    test::Stage stage_;
    int counted_ = 0;
};

}  // namespace

void measureHostCalls(const Settings&, Report& report) {
    CountedActs(report).measure();
}

}  // namespace tsln::bench
