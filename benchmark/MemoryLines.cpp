#include "benchmark/HeapMeter.h"
#include "benchmark/Lines.h"
#include "benchmark/contest/BareList.h"
#include "benchmark/contest/SampleRows.h"
#include "maintenance/ListRows.h"
#include "lists/Lists.h"

namespace tsln::bench {
namespace {

constexpr double mostMemory = 1.0;

using Way = modSharedXML::RowReader::Way;

/// The peak of heap memory while a text becomes a list, without the text, as a multiple of the text's size.
double peakOver(const ListDescription& list, std::string text, Way way) {
    BareList bare(list.columns);
    const auto size = static_cast<double>(text.size());
    const HeapMeter meter;
    bare.report.setRecords(readListRows(std::move(text), list.columns, {}, way).records);
    bare.report.populate();
    return static_cast<double>(meter.peak()) / size;
}

void measureRows(Report& report, const std::string& what, const ListDescription& list,
                 const std::string& text) {
    const double ours = peakOver(list, text, Way::OnePass);
    report.add(Line{.what = what, .against = "the text", .value = {ours, ours, ours}, .goal = mostMemory});
    const double nodes = peakOver(list, text, Way::Nodes);
    report.add(Line{.what = what + ", read by nodes", .against = "the text", .value = {nodes, nodes, nodes}});
}

}  // namespace

void measureMemory(const Settings& settings, Report& report) {
    measureRows(report, "memory beyond the text, 6 columns", lists::termsList, termsResult(settings.rows));
    measureRows(report, "memory beyond the text, 45 columns", customersList(),
                customersResult(settings.customers()));
}

}  // namespace tsln::bench
