#include "benchmark/Libxml2Partner.h"
#include "benchmark/Lines.h"
#include "benchmark/contest/Filling.h"
#include "benchmark/contest/Partners.h"
#include "benchmark/contest/SampleRows.h"
#include "lists/Lists.h"

namespace tsln::bench {
namespace {

constexpr double mostToPugixml = 1.3;
constexpr double leastToLibxml2 = 5;

void measureRows(Report& report, const std::string& what, const ListDescription& list,
                 std::string text) {
    Filling filling{list, std::move(text)};
    const auto copy = [&] { filling.takeCopy(); };
    const Contestant ours{"one pass", [&] { filling.fill(); }, copy};

    const Contest close({ours,
                         {"pugixml", [&] { use(visitByPugixml(filling.copy)); }, copy},
                         {"nodes", [&] { filling.fill(Filling::Way::Nodes); }, copy}},
                        {.seconds = 6, .leastRounds = 11, .mostRounds = 101});
    report.add(
        Line{what, "pugixml, visiting each field", close.ratio(0, 1), Line::Goal::AtMost, mostToPugixml});
    report.add(Line{what, "our own reading by nodes", close.ratio(0, 2)});

    const Contest libxml2(
        {ours, {"libxml2", [&] { filling.show(fillByLibxml2(filling.text, list.columns)); }}});
    report.add(Line{what, "libxml2, an XPath per field, is slower by", libxml2.ratio(1, 0),
                    Line::Goal::AtLeast, leastToLibxml2});
    const ObjectPtr document = parsedDocument(filling.text);
    const Contest late({ours,
                        {"by name", [&] { filling.show(fillLateBoundByName(*document, list.columns)); }},
                        {"by child", [&] { filling.show(fillLateBoundByChild(*document, list.columns)); }},
                        {"with parsing", [&] {
                             const ObjectPtr parsed = parsedDocument(filling.text);
                             filling.show(fillLateBoundByName(*parsed, list.columns));
                         }}});
    report.add(Line{what, "late-bound within the process, field by name, is slower by", late.ratio(1, 0)});
    report.add(Line{what, "late-bound within the process, child by child, is slower by", late.ratio(2, 0)});
    report.add(Line{what, "late-bound within the process, field by name, with the parsing, is slower by",
                    late.ratio(3, 0)});
}

void measureCurve(const Settings& settings, Report& report, const std::string& what, std::size_t most,
                  const ListDescription& list, std::string (*makeText)(std::size_t)) {
    std::unique_ptr<Filling> filling;
    measureGrowth(settings, report, what, most, [&](std::size_t rows) {
        filling.reset(new Filling{list, makeText(rows)});
        return Contestant{what, [&] { filling->fill(); }, [&] { filling->takeCopy(); }};
    });
}

}  // namespace

void measureList(const Settings& settings, Report& report) {
    measureRows(report, "text to list, 6 columns", lists::termsList, termsResult(settings.rows));
    measureRows(report, "text to list, 45 columns", customersList(), customersResult(settings.customers()));
    measureCurve(settings, report, "text to list, 6 columns", settings.mostRows, lists::termsList,
                 termsResult);
    measureCurve(settings, report, "text to list, 45 columns", settings.mostRows / 10, customersList(),
                 customersResult);
}

}  // namespace tsln::bench
