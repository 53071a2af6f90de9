#include <algorithm>
#include <limits>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include "automation/NumericText.h"
#include "screens/RecordOrder.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

/// Produces texts that differ at the start, at the end, in letter case only, or not at all.
std::string randomText(std::mt19937& random) {
    static const std::string parts[] = {"a",
                                        "A",
                                        "b",
                                        "é",
                                        "É",
                                        "z",
                                        "€",
                                        "\x80",
                                        "\xC3",
                                        "\1",
                                        "\xFF",
                                        "Smith,",
                                        "SMITH",
                                        " ",
                                        "12",
                                        "-3.5",
                                        "0",
                                        "-0",
                                        "ñ",
                                        "Ñ",
                                        "Ж",
                                        "ж",
                                        "long enough to differ late "};
    std::string text;
    for (std::size_t i = random() % 5; i > 0; --i)
        text += parts[random() % std::size(parts)];
    if (random() % 40 == 0) text.insert(text.size() / 2, 1, '\0');
    return text;
}

class RecordOrder : public testing::TestWithParam<std::size_t> {
  protected:
    RecordOrder() {
        std::mt19937 random(static_cast<unsigned>(GetParam()));
        for (std::size_t i = 0; i < GetParam(); ++i) {
            const std::string text = randomText(random);
            const std::string_view cells[] = {"", text};
            records.add(0, cells);
        }
        order.resize(GetParam());
        std::iota(order.begin(), order.end(), 0U);
        std::ranges::shuffle(order, random);
        expected = order;
    }
    ReportRecords records{2};
    std::vector<std::uint32_t> order;
    std::vector<std::uint32_t> expected;
};

TEST_P(RecordOrder, SortByTextAgreesWithCompareNoCase) {
    for (const bool descending : {false, true}) {
        std::ranges::stable_sort(expected, [&](std::uint32_t a, std::uint32_t b) {
            const int compared = modSharedStrings::compareNoCase(records.cell(a, 1), records.cell(b, 1));
            return descending ? compared > 0 : compared < 0;
        });
        sortByText(order, records, 1, descending);
        ASSERT_EQ(order, expected);
    }
}

TEST_P(RecordOrder, SortByNumberAgreesWithComparingTheParsedNumbers) {
    std::vector<double> values;
    for (std::size_t i = 0; i < records.count(); ++i) {
        values.push_back(parseNumber(records.cell(i, 1)).value_or(-std::numeric_limits<double>::infinity()));
    }
    for (const bool descending : {false, true}) {
        std::ranges::stable_sort(expected, [&](std::uint32_t a, std::uint32_t b) {
            return descending ? values[a] > values[b] : values[a] < values[b];
        });
        sortByNumber(order, records, 1, descending);
        ASSERT_EQ(order, expected);
    }
}

TEST_P(RecordOrder, SortByRankAgreesWithSortByText) {
    const auto ranks = rankTexts(records, 1);
    sortByText(expected, records, 1, false);
    sortByRank(order, ranks);
    ASSERT_EQ(order, expected);
    for (std::size_t i = 1; i < order.size(); ++i) {
        const bool same =
            modSharedStrings::equalNoCase(records.cell(order[i - 1], 1), records.cell(order[i], 1));
        ASSERT_EQ(ranks[order[i]], ranks[order[i - 1]] + (same ? 0 : 1)) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, RecordOrder, testing::Values(0, 1, 50, 65, 3000));

TEST(RecordOrderOfLongTexts, ComparesTheLastCharacterAndKeepsEqualTextsInOrder) {
    ReportRecords records(1);
    const std::string same(200'000, 'x');
    for (int i = 0; i < 100; ++i) {
        const std::string text = same + (i % 2 ? "a" : "B");
        const std::string_view cells[] = {text};
        records.add(i, cells);
    }
    std::vector<std::uint32_t> order(100);
    std::iota(order.begin(), order.end(), 0U);
    sortByText(order, records, 0, false);
    for (std::uint32_t i = 0; i < 100; ++i)
        EXPECT_EQ(order[i], i < 50 ? 2 * i + 1 : 2 * (i - 50));
}

}  // namespace
}  // namespace tsln
