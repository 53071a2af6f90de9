#include <wx/evtloop.h>

#include "benchmark/Lines.h"
#include "benchmark/WatchedList.h"
#include "benchmark/contest/BenchCompany.h"
#include "desktop/WxDesktop.h"

namespace tsln::bench {
namespace {

constexpr double mostToData = 0.5;
constexpr double mostToFewRows = 1.2;  // 1, with an allowance for measuring errors
constexpr std::size_t fewRows = 1'000;
constexpr int steps = 100;

struct Stage {
    Stage(std::size_t rows, const std::string& settings) : company(rows, 0), desktop(nullptr, settings) {
        library->Initialize(company.session().sharedCode());
    }
    BenchCompany company;
    desktop::WxDesktop desktop;
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);
};

/// Returns the seconds of actions on rows all over the list; each one is drawn before the next begins.
template <class Act>
double secondsOfActs(desktop::ReportGrid& list, std::size_t rows, const Act& act) {
    return secondsOf(
        [&] {
            for (int i = 0; i < steps; ++i) {
                act((static_cast<std::size_t>(i) * 7919 + 13) % 100 * rows / 100);
                wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
                list.rowsWindow().Update();
            }
        },
        false);
}

void measureActs(const Settings& settings, Report& report, Library& library) {
    const std::size_t sizes[] = {fewRows, settings.rows};
    std::vector<double> scrolling, selecting;
    for (int round = 0; round < 7; ++round) {
        double scroll[2] = {}, select[2] = {};
        for (int i = 0; i < 2; ++i) {
            WatchedList::open(library, sizes[i], [&](desktop::ReportGrid& list) {
                scroll[i] = secondsOfActs(list, sizes[i], [&](std::size_t row) { list.bringIntoView(row); });
                select[i] = secondsOfActs(list, sizes[i], [&](std::size_t row) { list.goTo(row); });
            });
        }
        scrolling.push_back(scroll[1] / scroll[0]);
        selecting.push_back(select[1] / select[0]);
    }
    const std::string against = "the same in a list of 1,000 rows";
    report.add(Line{"scrolling", against, spreadOf(scrolling), Line::Goal::AtMost, mostToFewRows});
    report.add(Line{"selecting a row", against, spreadOf(selecting), Line::Goal::AtMost, mostToFewRows});
}

}  // namespace

void measureWindow(const Settings& settings, Report& report) {
    {
        Stage stage(settings.rows, "");
        std::vector<double> beyond, empty;
        for (int round = 0; round < 11; ++round) {
            const auto full = WatchedList::open(*stage.library, std::nullopt);
            const auto none = WatchedList::open(*stage.library, 0);
            if (round == 0) continue;  // includes one-time work of the toolkit
            beyond.push_back((full.total() - full.data()) / full.data());
            empty.push_back((none.total() - none.data()) / full.data());
        }
        report.add(Line{"opening the list's window beyond the data", "the data: statement to list",
                        spreadOf(beyond), Line::Goal::AtMost, mostToData});
        report.add(Line{"opening the window of an empty list", "the same data", spreadOf(empty)});
        measureActs(settings, report, *stage.library);
    }
    std::unique_ptr<Stage> stage;
    measureGrowth(
        settings, report, "opening the list's window", settings.mostRows,
        [&](std::size_t rows) {
            stage.reset();
            stage = std::make_unique<Stage>(rows, "");
            return Contestant{"window", [&] { WatchedList::open(*stage->library, std::nullopt); }};
        },
        false);
}

}  // namespace tsln::bench
