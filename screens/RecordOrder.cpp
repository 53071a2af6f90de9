#include "screens/RecordOrder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <memory>
#include <numeric>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "automation/NumericText.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

constexpr std::size_t fewItems = 64;  // below, comparing is quicker than counting

/// What is sorted: the eight bytes of its key that count now, where it stood before, and where its whole key
/// is.
struct Item {
    std::uint64_t key;
    std::uint32_t place;
    std::uint32_t start;
};

bool before(const Item& a, const Item& b) {
    return a.key != b.key ? a.key < b.key : a.place < b.place;
}

/// Sorts by `key`, equal ones by `place`; they come in by `place`. `spare` is of the same size.
void sortItems(std::span<Item> items, std::span<Item> spare) {
    if (items.size() <= fewItems) {
        std::ranges::sort(items, before);
        return;
    }
    constexpr std::size_t digits = sizeof(std::uint64_t);
    constexpr std::size_t values = 256;
    std::array<std::array<std::uint32_t, values>, digits> counts{};
    for (const Item& item : items) {
        for (std::size_t d = 0; d < digits; ++d)
            ++counts[d][item.key >> (8 * d) & 0xFF];
    }
    std::span<Item> from = items;
    std::span<Item> to = spare.first(items.size());
    for (std::size_t d = 0; d < digits; ++d) {
        const auto digit = [d](const Item& item) { return item.key >> (8 * d) & 0xFF; };
        if (counts[d][digit(from[0])] == from.size()) continue;  // the same in all
        std::uint32_t start = 0;
        for (std::uint32_t& count : counts[d])
            start += std::exchange(count, start);
        for (const Item& item : from)
            to[counts[d][digit(item)]++] = item;
        std::swap(from, to);
    }
    if (from.data() != items.data()) std::ranges::copy(from, items.begin());
}

/// The keys of all records: bytes that order as their texts do, with zeros behind them up to the next eight.
class TextKeys {
  public:
    static constexpr std::size_t word = sizeof(std::uint64_t);

    TextKeys(const ReportRecords& records, std::size_t column) : starts_(records.count()) {
        std::size_t most = 0;
        for (std::size_t i = 0; i < starts_.size(); ++i)
            most += modSharedStrings::sortKeySize(records.cell(i, column)) + word;
        fits_ = most <= std::numeric_limits<std::uint32_t>::max();
        if (!fits_) return;
        bytes_ = std::make_unique_for_overwrite<char[]>(most);
        std::size_t at = 0;
        for (std::size_t i = 0; i < starts_.size(); ++i) {
            starts_[i] = static_cast<std::uint32_t>(at);
            char* const start = bytes_.get() + at;
            char* const end = modSharedStrings::writeSortKey(start, records.cell(i, column));
            const auto size = static_cast<std::size_t>(end - start);
            at += size + word - size % word;
            std::fill(end, bytes_.get() + at, '\0');
        }
    }

    /// Whether there was room for them; if not, there are none.
    bool fit() const noexcept { return fits_; }
    std::uint32_t start(std::uint32_t record) const { return starts_[record]; }
    /// A key from here on, with a zero at its end.
    const char* at(std::size_t place) const { return bytes_.get() + place; }
    /// Eight bytes of a key as a number that orders as they do. Its last byte is zero where the key ends.
    std::uint64_t eightBytes(std::size_t place) const {
        std::uint64_t number = 0;
        std::memcpy(&number, at(place), word);
        if constexpr (std::endian::native == std::endian::little) number = __builtin_bswap64(number);
        return number;
    }

  private:
    std::vector<std::uint32_t> starts_;
    std::unique_ptr<char[]> bytes_;
    bool fits_ = false;
};

/// Items that are equal as far as their keys were looked at.
struct Run {
    std::size_t begin;
    std::size_t end;
    std::size_t depth;  // bytes that were looked at
};

void applyOrder(std::span<std::uint32_t> order, std::span<const Item> items) {
    const std::vector<std::uint32_t> was(order.begin(), order.end());
    for (std::size_t i = 0; i < items.size(); ++i)
        order[i] = was[items[i].place];
}

/// A number that orders as the doubles do.
std::uint64_t orderOf(double value) {
    if (value == 0) value = 0;  // either zero
    const auto bits = std::bit_cast<std::uint64_t>(value);
    constexpr std::uint64_t sign = std::uint64_t{1} << 63;
    return bits & sign ? ~bits : bits | sign;
}

}  // namespace

void sortByText(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                bool descending) {
    const TextKeys keys(records, column);
    if (!keys.fit()) {
        std::ranges::stable_sort(order, [&](std::uint32_t a, std::uint32_t b) {
            const int compared =
                modSharedStrings::compareNoCase(records.cell(a, column), records.cell(b, column));
            return descending ? compared > 0 : compared < 0;
        });
        return;
    }
    std::vector<Item> items(order.size());
    std::vector<Item> spare(order.size());
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i] = {0, static_cast<std::uint32_t>(i), keys.start(order[i])};

    const std::uint64_t turned = descending ? ~std::uint64_t{0} : 0;
    std::vector<Run> runs{{0, items.size(), 0}};
    while (!runs.empty()) {
        const Run run = runs.back();
        runs.pop_back();
        const auto part = std::span(items).subspan(run.begin, run.end - run.begin);
        if (run.depth > 0 && part.size() <= fewItems) {
            std::ranges::sort(part, [&](const Item& a, const Item& b) {
                const int compared = std::strcmp(keys.at(a.start + run.depth), keys.at(b.start + run.depth));
                if (compared == 0) return a.place < b.place;
                return descending ? compared > 0 : compared < 0;
            });
            continue;
        }
        constexpr std::size_t ahead = 12;  // the keys lie all over the memory: some are asked for beforehand
        for (std::size_t i = 0; i < part.size(); ++i) {
            if (i + ahead < part.size()) __builtin_prefetch(keys.at(part[i + ahead].start + run.depth));
            part[i].key = keys.eightBytes(part[i].start + run.depth) ^ turned;
        }
        sortItems(part, spare);
        for (std::size_t begin = 0, end = 0; begin < part.size(); begin = end) {
            while (end < part.size() && part[end].key == part[begin].key)
                ++end;
            const bool goesOn = ((part[begin].key ^ turned) & 0xFF) != 0;
            if (goesOn && end - begin > 1) {
                runs.push_back({run.begin + begin, run.begin + end, run.depth + TextKeys::word});
            }
        }
    }
    applyOrder(order, items);
}

std::vector<std::uint32_t> rankTexts(const ReportRecords& records, std::size_t column) {
    // Few texts are different from each other where rows are grouped, and the same one often follows itself.
    std::unordered_map<std::string, std::uint32_t> numbers;
    std::vector<const std::string*> keys;
    std::vector<std::uint32_t> ranks(records.count());
    std::string key;
    std::string_view before;
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const std::string_view text = records.cell(i, column);
        if (i > 0 && text == before) {
            ranks[i] = ranks[i - 1];
            continue;
        }
        before = text;
        key.resize(modSharedStrings::sortKeySize(text));
        key.resize(static_cast<std::size_t>(modSharedStrings::writeSortKey(key.data(), text) - key.data()));
        const auto [entry, isNew] = numbers.try_emplace(key, static_cast<std::uint32_t>(keys.size()));
        if (isNew) keys.push_back(&entry->first);
        ranks[i] = entry->second;
    }
    std::vector<std::uint32_t> numbersInOrder(keys.size());
    std::iota(numbersInOrder.begin(), numbersInOrder.end(), 0U);
    std::ranges::sort(numbersInOrder, [&](std::uint32_t a, std::uint32_t b) { return *keys[a] < *keys[b]; });
    std::vector<std::uint32_t> rankOf(keys.size());
    for (std::size_t rank = 0; rank < rankOf.size(); ++rank)
        rankOf[numbersInOrder[rank]] = static_cast<std::uint32_t>(rank);
    for (std::uint32_t& rank : ranks)
        rank = rankOf[rank];
    return ranks;
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

void sortByNumber(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                  bool descending) {
    const std::uint64_t turned = descending ? ~std::uint64_t{0} : 0;
    std::vector<Item> items(order.size());
    std::vector<Item> spare(order.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const double value =
            parseNumber(records.cell(order[i], column)).value_or(-std::numeric_limits<double>::infinity());
        items[i] = {orderOf(value) ^ turned, static_cast<std::uint32_t>(i), 0};
    }
    sortItems(items, spare);
    applyOrder(order, items);
}

}  // namespace tsln
