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

/// A record with what it is sorted by, and where it stood before.
template <class Key>
struct Item {
    Key key;
    std::uint32_t place;
    std::uint32_t record;
};

/// Puts the records in the order of `keyOf(record)`, equal ones in the order they come in.
/// `compare(a, b)`: below, equal to or above zero.
template <class KeyOf, class Compare>
void sortByKey(std::span<std::uint32_t> order, bool descending, const KeyOf& keyOf, const Compare& compare) {
    using Key = decltype(keyOf(0U));
    std::vector<Item<Key>> items;
    items.reserve(order.size());
    for (const std::uint32_t record : order)
        items.push_back({keyOf(record), static_cast<std::uint32_t>(items.size()), record});
    const auto sort = [&](const auto& before) {
        std::ranges::sort(items, [&](const Item<Key>& a, const Item<Key>& b) {
            const auto compared = compare(a.key, b.key);
            return compared != 0 ? before(compared, 0) : a.place < b.place;
        });
    };
    if (descending) {
        sort(std::greater());
    } else {
        sort(std::less());
    }
    std::ranges::transform(items, order.begin(), &Item<Key>::record);
}

void sortByDoubles(std::span<std::uint32_t> order, bool descending, const auto& valueOf) {
    sortByKey(order, descending, valueOf,
              [](double a, double b) { return static_cast<int>(a > b) - static_cast<int>(a < b); });
}

/// The keys of all records: bytes that order as their texts do, each with a zero at its end.
class TextKeys {
  public:
    /// A key: its first eight bytes as a number that orders as they do, and the bytes behind them; null when
    /// there are none.
    struct Key {
        std::uint64_t start;
        const char* rest;
    };
    static int compare(const Key& a, const Key& b) {
        if (a.start != b.start) return a.start < b.start ? -1 : 1;
        return a.rest ? std::strcmp(a.rest, b.rest) : 0;  // equal starts go on both or neither
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
    sortByKey(order, descending, keys, TextKeys::compare);
}

void sortByNumber(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                  bool descending) {
    sortByDoubles(order, descending, [&](std::uint32_t record) {
        return parseNumber(records.cell(record, column)).value_or(-std::numeric_limits<double>::infinity());
    });
}

void sortByValue(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                 bool descending) {
    sortByDoubles(order, descending, [&](std::uint32_t record) { return records.sortValue(record, column); });
}

TextNumbers numberTexts(const ReportRecords& records, std::size_t column) {
    // Few texts are different from each other where rows are grouped, and the same one often follows itself.
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
    std::vector<std::uint32_t> order(texts.first.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::sort(order, [&](std::uint32_t a, std::uint32_t b) {
        return modSharedStrings::compareNoCase(records.cell(texts.first[a], column),
                                               records.cell(texts.first[b], column)) < 0;
    });
    std::vector<std::uint32_t> rankOf(order.size());
    for (std::size_t rank = 0; rank < rankOf.size(); ++rank)
        rankOf[order[rank]] = static_cast<std::uint32_t>(rank);
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
