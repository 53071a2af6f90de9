#include <algorithm>
#include <numeric>

#include "benchmark/BenchList.h"
#include "benchmark/Lines.h"
#include "benchmark/TimedHost.h"
#include "benchmark/contest/BenchCompany.h"
#include "doubles/QuietDesktop.h"
#include "lists/Lists.h"

namespace tsln::bench {
namespace {

constexpr double mostToDatabase = 0.1;

/// A terms list over a company, with the host's time measured separately.
struct Stage {
    explicit Stage(std::size_t rows) : company(rows, 0), screen(*library, lists::termsList) {
        library->Initialize(timedHost(company.session().sharedCode(), time));
        screen.load();
        screen.loadList();
    }
    /// Selects rows scattered over the list.
    void select(std::size_t count) {
        ReportControl& list = screen.rptItems;
        std::vector<std::size_t> selected;
        for (std::size_t i = 0; i < count; ++i)
            selected.push_back(i * list.rowCount() / count);
        list.userSelect(selected, selected.front());
        time.reset();
    }
    void press() { screen.cmdDelete.userPress(); }

    BenchCompany company;
    test::QuietDesktop desktop;
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);
    HostTime time;
    BenchList screen;
};

}  // namespace

void measureDeleting(const Settings& settings, Report& report) {
    constexpr std::size_t rounds = 5;
    const std::size_t selected = settings.rows / 10;
    std::vector<double> shares;
    Stage stage(settings.rows);
    for (std::size_t i = 0; i < rounds; ++i) {
        stage.select(selected);
        const double all = secondsOf([&] { stage.press(); });
        shares.push_back(all / stage.time.seconds() - 1);
    }
    report.add(Line{"deleting a tenth of the rows, the module's share", "the host with its database",
                    spreadOf(shares), Line::Goal::AtMost, mostToDatabase});

    // Every deleted row needs a statement, so this curve ends at a tenth of the other curves' rows.
    std::unique_ptr<Stage> fresh;
    std::size_t count = 0;
    measureGrowth(settings, report, "deleting the selected rows", settings.mostRows / 10,
                  [&](std::size_t rows) {
                      count = rows;
                      return Contestant{"delete", [&] { fresh->press(); },
                                        [&] {
                                            fresh.reset();
                                            fresh = std::make_unique<Stage>(2 * count);
                                            fresh->select(count);
                                        }};
                  });
}

}  // namespace tsln::bench
