#include "benchmark/Lines.h"
#include "doubles/Stage.h"
#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"
#include "roaming/InitialSync.h"

namespace tsln::bench {
namespace {

constexpr auto load = "SELECT * FROM Terms ORDER BY Terms";
constexpr auto rows =
    "<Records><Record><ID>1</ID><Terms>COD</Terms></Record><Record><ID>2</ID><Terms>Net 30</Terms></Record></Records>";

void add(Report& report, const std::string& act, const std::string& ofThem, double calls) {
    report.add(Line{act,
                    "of them " + ofThem,
                    {.median = calls, .low = calls, .high = calls},
                    Line::Goal::AtMost,
                    std::nullopt,
                    "host calls"});
}

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
        const std::size_t rights = stage_.host->callsOf("Security.CanDo").size();
        add(report_, act, "questions for rights: " + std::to_string(rights), calls);
        stage_.host->forget();
        counted_ = stage_.host->callCount();
    }

    Report& report_;
    test::Stage stage_;
    int counted_ = 0;
};

/// Counts the calls of one tick while the screen waits for the initial synchronization.
void measureWait(Report& report) {
    test::Stage stage;
    stage.host->on("Database.ExecuteScaler", Variant(1));  // the state: requested
    stage.desktop.user<roaming::InitialSync>(
        "frmRoamingWorkstationInitial", [&](const roaming::InitialSync& screen) {
            stage.host->forget();
            const int before = stage.host->callCount();
            stage.desktop.tick();
            if (!screen.tmrWait.running()) throw std::runtime_error("The screen does not wait.");
            const std::size_t statements = stage.host->callsOf("Database.ExecuteScaler").size();
            add(report, "a tick of the wait for the initial sync",
                "statements: " + std::to_string(statements), stage.host->callCount() - before);
        });
    stage.library->ShowRoamingWorkstationInitial();
}

}  // namespace

void measureHostCalls(const Settings&, Report& report) {
    CountedActs(report).measure();
    measureWait(report);
}

}  // namespace tsln::bench
