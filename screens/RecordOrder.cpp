#include "screens/RecordOrder.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <numeric>
#include <string>
#include <unordered_map>

#include "automation/NumericText.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

/// Sorts the records by `keyOf(record)`. Records with equal keys keep their order.
template <class KeyOf, class Before>
void sortByKey(std::span<std::uint32_t> order, bool descending, const KeyOf& keyOf, const Before& before) {
    struct Item {
        decltype(keyOf(0U)) key;
        std::uint32_t record;
    };
    std::vector<Item> items;
    items.reserve(order.size());
    for (const std::uint32_t record : order)
        items.push_back({keyOf(record), record});
    // std::sort is slower when many keys are equal: it would also have to compare the positions of the
    // records.
    if (descending) {
        std::stable_sort(items.begin(), items.end(),
                         [&](const Item& a, const Item& b) { return before(b.key, a.key); });
    } else {
        std::stable_sort(items.begin(), items.end(),
                         [&](const Item& a, const Item& b) { return before(a.key, b.key); });
    }
    std::ranges::transform(items, order.begin(), &Item::record);
}

/// The rank of each number from 0 to `count` - 1 in the order that `before` gives two numbers.
template <class Before>
std::vector<std::uint32_t> rankNumbers(std::size_t count, const Before& before) {
    std::vector<std::uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::sort(order, before);
    std::vector<std::uint32_t> ranks(count);
    for (std::size_t rank = 0; rank < count; ++rank)
        ranks[order[rank]] = static_cast<std::uint32_t>(rank);
    return ranks;
}

template <class ValueOf>
void sortByValues(std::span<std::uint32_t> order, bool descending, std::size_t records,
                  const ValueOf& valueOf) {
    // A list often holds few distinct numbers. Then only those are sorted, and the records are ranked by
    // them.
    const std::size_t few = order.size() / 4;
    std::unordered_map<double, std::uint32_t> numbers(few);
    std::vector<double> values;
    std::vector<std::uint32_t> ranks(records);
    for (const std::uint32_t record : order) {
        const double value = valueOf(record);
        const auto [entry, isNew] = numbers.try_emplace(value, static_cast<std::uint32_t>(values.size()));
        if (isNew) values.push_back(value);
        if (values.size() > few) return sortByKey(order, descending, valueOf, std::less());
        ranks[record] = entry->second;
    }
    const auto rankOf = rankNumbers(values.size(), [&](std::uint32_t a, std::uint32_t b) {
        return descending ? values[a] > values[b] : values[a] < values[b];
    });
    for (std::uint32_t& rank : ranks)
        rank = rankOf.empty() ? 0 : rankOf[rank];
    sortByRank(order, ranks);
}

/// The sort keys of all records: zero-terminated bytes that compare as the texts do.
class TextKeys {
  public:
    /// The first eight bytes of a key as a number that compares as they do, and the bytes after them; null
    /// when there are none.
    struct Key {
        std::uint64_t start;
        const char* rest;
    };
    static bool before(const Key& a, const Key& b) {
        if (a.start != b.start) return a.start < b.start;
        return a.rest && std::strcmp(a.rest, b.rest) < 0;  // equal starts: both have a rest or neither
    }

    TextKeys(const ReportRecords& records, std::size_t column) : starts_(records.count()) {
        std::size_t most = 0;
        for (std::size_t i = 0; i < starts_.size(); ++i)
            most += modSharedStrings::sortKeySize(records.cell(i, column)) + word;
        bytes_ = std::make_unique_for_overwrite<char[]>(most);
        char* at = bytes_.get();
        for (std::size_t i = 0; i < starts_.size(); ++i) {
            starts_[i] = at;
            char* const end = modSharedStrings::writeSortKey(at, records.cell(i, column));
            at = std::max(end + 1, at + word);
            std::fill(end, at, '\0');
        }
    }

    Key operator()(std::uint32_t record) const {
        const char* const bytes = starts_[record];
        std::uint64_t number = 0;
        std::memcpy(&number, bytes, word);
        if constexpr (std::endian::native == std::endian::little) number = __builtin_bswap64(number);
        return {number, bytes[word - 1] != '\0' ? bytes + word : nullptr};
    }

  private:
    static constexpr std::size_t word = sizeof(std::uint64_t);
    std::vector<const char*> starts_;
    std::unique_ptr<char[]> bytes_;
};

}  // namespace

void sortByText(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                bool descending) {
    const TextKeys keys(records, column);
    sortByKey(order, descending, keys, TextKeys::before);
}

void sortByNumber(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                  bool descending) {
    const auto valueOf = [&](std::uint32_t record) {
        return parseNumber(records.cell(record, column)).value_or(-std::numeric_limits<double>::infinity());
    };
    sortByValues(order, descending, records.count(), valueOf);
}

void sortByValue(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                 bool descending) {
    const auto valueOf = [&](std::uint32_t record) { return records.sortValue(record, column); };
    sortByValues(order, descending, records.count(), valueOf);
}

TextNumbers numberTexts(const ReportRecords& records, std::size_t column) {
    // A column used for grouping has few distinct texts, and consecutive records often have equal ones.
    std::unordered_map<std::string, std::uint32_t> numbers;
    TextNumbers result{std::vector<std::uint32_t>(records.count()), {}};
    std::string key;
    std::string_view before;
    for (std::uint32_t i = 0; i < result.numbers.size(); ++i) {
        const std::string_view text = records.cell(i, column);
        if (i > 0 && text == before) {
            result.numbers[i] = result.numbers[i - 1];
            continue;
        }
        before = text;
        key.resize(modSharedStrings::sortKeySize(text));
        key.resize(static_cast<std::size_t>(modSharedStrings::writeSortKey(key.data(), text) - key.data()));
        const auto [entry, isNew] = numbers.try_emplace(key, static_cast<std::uint32_t>(result.first.size()));
        if (isNew) result.first.push_back(i);
        result.numbers[i] = entry->second;
    }
    return result;
}

std::vector<std::uint32_t> rankTexts(const ReportRecords& records, std::size_t column) {
    TextNumbers texts = numberTexts(records, column);
    const auto rankOf = rankNumbers(texts.first.size(), [&](std::uint32_t a, std::uint32_t b) {
        return modSharedStrings::compareNoCase(records.cell(texts.first[a], column),
                                               records.cell(texts.first[b], column)) < 0;
    });
    for (std::uint32_t& number : texts.numbers)
        number = rankOf[number];
    return std::move(texts.numbers);
}

void sortByRank(std::span<std::uint32_t> order, std::span<const std::uint32_t> ranks) {
    const std::vector<std::uint32_t> was(order.begin(), order.end());
    std::vector<std::uint32_t> starts(ranks.size() + 1);
    for (const std::uint32_t record : was)
        ++starts[ranks[record] + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    for (const std::uint32_t record : was)
        order[starts[ranks[record]]++] = record;
}

}  // namespace tsln
