#include "benchmark/Lines.h"
#include "benchmark/TimedHost.h"
#include "benchmark/contest/BenchCompany.h"
#include "bridge/Library.h"
#include "doubles/QuietDesktop.h"
#include "properties/DatabaseProperties.h"

namespace tsln::bench {
namespace {

constexpr double mostToHost = 0.05;
constexpr std::size_t customers = 100'000, measurements = 300'000, events = 500'000, attachments = 100'000;

/// The screen, whose filling can be timed.
struct Filling : properties::DatabaseProperties {
    using DatabaseProperties::DatabaseProperties;
    using DatabaseProperties::Form_Activate;
};

}  // namespace

void measureProperties(const Settings&, Report& report) {
    BenchCompany bench(0, customers);
    workbench::Company& company = bench.session().company();
    insertRows(company, "CustomerMeasurements (CustomerID, Location, Room)", measurements,
               [](std::size_t row) { return std::to_string(1 + row % customers) + ", 'House', 'Kitchen'"; });
    insertRows(company, "EventLog (EventType, EventText)", events,
               [](std::size_t row) { return std::to_string(1 + row % 3) + ", 'Something happened.'"; });
    insertRows(company, "Attachments (OriginalFileName, CustomerID)", attachments, [](std::size_t row) {
        return "'Picture " + std::to_string(row) + ".jpg', " + std::to_string(1 + row % customers);
    });
    test::QuietDesktop desktop;
    HostTime time;
    Library library(desktop);
    library.Initialize(timedHost(bench.session().sharedCode(), time));
    const Spread share = shareOf(time, [&] { Filling(library).Form_Activate(); });
    report.add(Line{"the properties of a company of a million rows, the module's share",
                    "the host with its database", share, Line::Goal::AtMost, mostToHost});
}

}  // namespace tsln::bench
