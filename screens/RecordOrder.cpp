#include "screens/RecordOrder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "automation/NumericText.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

constexpr std::size_t fewItems = 64;  // below, comparing is quicker than counting

/// What is sorted: the eight bytes of its key that count now, and where it stood before.
struct Item {
    std::uint64_t key;
    std::uint32_t place;
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

/// The keys of all records: bytes that order as their texts do, one key after another.
class TextKeys {
  public:
    TextKeys(std::span<const std::uint32_t> order, const ReportRecords& records, std::size_t column)
        : starts_(order.size() + 1) {
        std::size_t most = 0;
        for (const std::uint32_t record : order)
            most += modSharedStrings::sortKeySize(records.cell(record, column));
        bytes_ = std::make_unique_for_overwrite<char[]>(most + sizeof(std::uint64_t));
        char* end = bytes_.get();
        for (std::size_t i = 0; i < order.size(); ++i) {
            starts_[i] = static_cast<std::size_t>(end - bytes_.get());
            end = modSharedStrings::writeSortKey(end, records.cell(order[i], column));
        }
        starts_.back() = static_cast<std::size_t>(end - bytes_.get());
    }

    /// The part of a key behind its first `depth` bytes.
    std::string_view rest(std::size_t place, std::size_t depth) const {
        const std::size_t start = std::min(starts_[place] + depth, starts_[place + 1]);
        return {bytes_.get() + start, starts_[place + 1] - start};
    }
    /// Eight bytes of the key as a number that orders as they do; zeros behind its end, which no key holds.
    std::uint64_t eightBytes(std::size_t place, std::size_t depth) const {
        const std::string_view bytes = rest(place, depth);
        std::uint64_t number = 0;
        std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof number));
        if constexpr (std::endian::native == std::endian::little) number = __builtin_bswap64(number);
        return number;
    }

  private:
    std::vector<std::size_t> starts_;
    std::unique_ptr<char[]> bytes_;
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
    const TextKeys keys(order, records, column);
    std::vector<Item> items(order.size());
    std::vector<Item> spare(order.size());
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i].place = static_cast<std::uint32_t>(i);

    const std::uint64_t turned = descending ? ~std::uint64_t{0} : 0;
    std::vector<Run> runs{{0, items.size(), 0}};
    while (!runs.empty()) {
        const Run run = runs.back();
        runs.pop_back();
        const auto part = std::span(items).subspan(run.begin, run.end - run.begin);
        if (run.depth > 0 && part.size() <= fewItems) {
            std::ranges::sort(part, [&](const Item& a, const Item& b) {
                const int compared = keys.rest(a.place, run.depth).compare(keys.rest(b.place, run.depth));
                if (compared == 0) return a.place < b.place;
                return descending ? compared > 0 : compared < 0;
            });
            continue;
        }
        for (Item& item : part)
            item.key = keys.eightBytes(item.place, run.depth) ^ turned;
        sortItems(part, spare);
        for (std::size_t begin = 0, end = 0; begin < part.size(); begin = end) {
            while (end < part.size() && part[end].key == part[begin].key)
                ++end;
            const bool goesOn = ((part[begin].key ^ turned) & 0xFF) != 0;
            if (goesOn && end - begin > 1) {
                runs.push_back({run.begin + begin, run.begin + end, run.depth + sizeof(std::uint64_t)});
            }
        }
    }
    applyOrder(order, items);
}

void sortByNumber(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                  bool descending) {
    const std::uint64_t turned = descending ? ~std::uint64_t{0} : 0;
    std::vector<Item> items(order.size());
    std::vector<Item> spare(order.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const double value =
            parseNumber(records.cell(order[i], column)).value_or(-std::numeric_limits<double>::infinity());
        items[i] = {orderOf(value) ^ turned, static_cast<std::uint32_t>(i)};
    }
    sortItems(items, spare);
    applyOrder(order, items);
}

}  // namespace tsln
