// The lines that only a Windows host can measure: the module as a DLL, and late-bound calls to the system's document
// object. Run by ./bench --windows.

#include <cstdio>
#include <exception>
#include <string_view>

#include "benchmark/contest/Filling.h"
#include "benchmark/contest/Partners.h"
#include "benchmark/contest/Report.h"
#include "benchmark/contest/SampleRows.h"
#include "benchmark/windows/HostedStart.h"
#include "com/edge/DispatchObject.h"
#include "lists/Lists.h"

namespace {

using namespace tsln;
using namespace tsln::bench;

constexpr double leastToLateBound = 20;
constexpr std::size_t rows = 10'000;

/// Parses the text into a document object of the system.
ObjectPtr systemDocument(const std::string& text) {
    ObjectPtr document = com::createComponent("Msxml2.DOMDocument");
    if (!document->call("loadXML", text).toBoolean())
        throw std::runtime_error("The system reads no document.");
    return document;
}

void measureRows(Report& report, const std::string& what, const ListDescription& list,
                 std::string text) {
    Filling filling{list, std::move(text)};
    const auto copy = [&] { filling.takeCopy(); };
    const ObjectPtr document = systemDocument(filling.text);
    const Contest contest({{"one pass", [&] { filling.fill(); }, copy},
                           {"pugixml", [&] { use(visitByPugixml(filling.copy)); }, copy},
                           {"by name", [&] { filling.show(fillLateBoundByName(*document, list.columns)); }},
                           {"by child", [&] { filling.show(fillLateBoundByChild(*document, list.columns)); }},
                           {"with parsing",
                            [&] {
                                const ObjectPtr parsed = systemDocument(filling.text);
                                filling.show(fillLateBoundByName(*parsed, list.columns));
                            }}},
                          {.ofProcessor = false});
    report.add(Line{what, "pugixml, visiting each field", contest.ratio(0, 1)});
    report.add(Line{what, "late-bound by COM, field by name, is slower by", contest.ratio(2, 0),
                    Line::Goal::AtLeast, leastToLateBound});
    report.add(Line{what, "late-bound by COM, child by child, is slower by", contest.ratio(3, 0),
                    Line::Goal::AtLeast, leastToLateBound});
    report.add(Line{what, "late-bound by COM, field by name, with the parsing, is slower by",
                    contest.ratio(4, 0), Line::Goal::AtLeast, leastToLateBound});
}

void measure() {
    Report report;
    measureRows(report, "text to list, 6 columns", lists::termsList, termsResult(rows));
    measureRows(report, "text to list, 45 columns", customersList(), customersResult(rows / 10));
    measureHostedStart(report);
    std::fputs(report.table().c_str(), stdout);
}

}  // namespace

int main(int argc, char** argv) {
    int result = 0;
    if (FAILED(OleInitialize(nullptr))) return 1;
    try {
        argc == 2 && std::string_view(argv[1]) == "--start-once" ? startOnce() : measure();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        result = 1;
    }
    OleUninitialize();
    return result;
}
