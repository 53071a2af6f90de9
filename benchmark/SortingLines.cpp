#include <algorithm>
#include <utility>

#include "automation/NumericText.h"
#include "benchmark/Lines.h"
#include "benchmark/contest/BareList.h"
#include "benchmark/contest/SampleRows.h"
#include "shared/modSharedStrings.h"

namespace tsln::bench {
namespace {

constexpr double mostToSort = 1.5;
constexpr double mostToFilter = 2;

constexpr ListColumn columns[] = {
    {"Name", 200, "Name"}, {"Number", 80, "Number", ListColumn::Show::Number}, {"Town", 80, "Town"}};
enum { name, number, town };

/// A list to sort and its prepared sort keys.
struct Sorting {
    explicit Sorting(std::size_t rows) {
        for (std::size_t row = 0; row < rows; ++row) {
            const std::string texts[] = {personName(row), customerValue(row, 41), townName(row)};
            const std::string_view cells[] = {texts[0], texts[1], texts[2]};
            bare.report.addRecord(static_cast<std::int32_t>(row + 1), cells);
            names.push_back(modSharedStrings::toLower(texts[0]));
            towns.push_back(modSharedStrings::toLower(texts[2]));
            numbers.push_back(parseNumber(texts[1]).value_or(0));
        }
        bare.report.populate();
    }

    BareList bare{columns};
    std::vector<std::string> names;
    std::vector<std::string> towns;
    std::vector<double> numbers;

    std::vector<std::string_view> nameKeys() const { return {names.begin(), names.end()}; }
    std::vector<std::pair<std::string_view, std::string_view>> groupedKeys() const {
        std::vector<std::pair<std::string_view, std::string_view>> keys;
        for (std::size_t i = 0; i < names.size(); ++i)
            keys.emplace_back(towns[i], names[i]);
        return keys;
    }
    /// Clicks the header of a list that is in its original order.
    Contestant click(int column, bool grouped = false) {
        return {"list", [this, column] { bare.report.userClickHeader(static_cast<std::size_t>(column)); },
                [this, grouped] {
                    bare.report.sortBy(std::nullopt);
                    bare.report.groupBy(grouped ? std::optional<std::size_t>(town) : std::nullopt);
                }};
    }
};

template <class Key>
Contestant sortKeys(std::vector<Key>& keys, const std::vector<Key>& unsorted) {
    return {"std::sort", [&] { std::sort(keys.begin(), keys.end()); }, [&] { keys = unsorted; }};
}

template <class Key>
void measureSort(Report& report, const std::string& what, const Contestant& list,
                 const std::vector<Key>& unsorted) {
    std::vector<Key> keys;
    const Contest contest({list, sortKeys(keys, unsorted)});
    report.add(
        Line{what, "std::sort of the keys alone", contest.ratio(0, 1), Line::Goal::AtMost, mostToSort});
}

/// Measures a filter that changes the shown rows, compared with one pass over all texts.
void measureFilter(const Settings& settings, Report& report) {
    Sorting sorting(settings.rows);
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < settings.rows; ++row)
        texts.push_back(sorting.names[row] + customerValue(row, 41) + sorting.towns[row]);
    const std::string needle = texts[texts.size() / 2].substr(0, 4);
    const Contest contest(
        {{"list", [&] { sorting.bare.report.setFilter(needle); },
          [&] { sorting.bare.report.setFilter(needle.substr(0, 3)); }},
         {"pass", [&] {
              use(static_cast<std::size_t>(std::ranges::count_if(
                  texts, [&](const std::string& text) { return text.find(needle) != text.npos; })));
          }}});
    report.add(Line{"a key in the filter", "looking for it in every row's text, folded already",
                    contest.ratio(0, 1), Line::Goal::AtMost, mostToFilter});
}

}  // namespace

void measureSorting(const Settings& settings, Report& report) {
    {
        Sorting sorting(settings.rows);
        measureSort(report, "sorting by a text", sorting.click(name), sorting.nameKeys());
        measureSort(report, "sorting by a number", sorting.click(number), sorting.numbers);
        measureSort(report, "sorting by a text in groups", sorting.click(name, true), sorting.groupedKeys());
    }
    measureFilter(settings, report);
    for (const bool grouped : {false, true}) {
        std::unique_ptr<Sorting> sorting;
        measureGrowth(settings, report, grouped ? "sorting in groups" : "sorting by a text",
                      settings.mostRows, [&](std::size_t rows) {
                          sorting = std::make_unique<Sorting>(rows);
                          return sorting->click(name, grouped);
                      });
    }
}

}  // namespace tsln::bench
