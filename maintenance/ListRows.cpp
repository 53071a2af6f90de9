#include "maintenance/ListRows.h"

#include <algorithm>
#include <optional>

#include "automation/DateText.h"
#include "automation/NumericText.h"
#include "shared/ValueText.h"

namespace tsln {
namespace {

using modSharedXML::RowReader;
using Show = ListColumn::Show;

constexpr std::size_t sample = 64;  // the number of rows from which the memory for all rows is estimated
constexpr std::size_t spare = 32;   // the estimate is increased by 1/spare

/// Makes records from the texts of fields.
class RowMaker {
  public:
    RowMaker(std::span<const ListColumn> columns, const ListRowStyle& style,
             std::span<const std::string_view> kept)
        : columns_(columns), style_(style), kept_(kept.size()), fields_{"ID"} {
        for (const ListColumn& column : columns) {
            places_.push_back(fields_.size());
            if (column.compute) {
                fields_.insert(fields_.end(), column.uses.begin(), column.uses.end());
            } else {
                fields_.push_back(column.field);
            }
        }
        styleAt_ = fields_.size();
        fields_.insert(fields_.end(), style.uses.begin(), style.uses.end());
        fields_.insert(fields_.end(), kept.begin(), kept.end());
        asTheyAre_ = !style.style && std::ranges::all_of(columns, [](const ListColumn& column) {
            return (column.show == Show::Text || column.show == Show::Number) && !column.compute &&
                   column.instead.empty();
        });
    }

    /// The fields whose texts add() expects, in this order.
    std::span<const std::string_view> fields() const { return fields_; }

    void add(std::span<const std::string_view> texts, ListRows& rows) {
        const std::int32_t ID = modSharedXML::toLong(texts[0]);
        if (kept_ > 0) rows.kept.add(ID, texts.last(kept_));
        if (asTheyAre_) {
            rows.records.add(ID, texts.subspan(1));
            return;
        }
        cells_.clear();
        scratch_.assign(columns_.size(), {});
        dates_.assign(columns_.size(), std::nullopt);
        for (std::size_t i = 0; i < columns_.size(); ++i)
            cells_.push_back(shown(i, texts));
        const std::size_t record = rows.records.add(ID, cells_);
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (dates_[i]) rows.records.setSortValue(record, i, dates_[i]->days);
        }
        if (style_.style) rows.styles.push_back(style_.style(texts.subspan(styleAt_, style_.uses.size())));
    }

  private:
    std::string_view shown(std::size_t i, std::span<const std::string_view> texts) {
        const ListColumn& column = columns_[i];
        if (column.compute)
            return scratch_[i] = column.compute(texts.subspan(places_[i], column.uses.size()));
        const std::string_view text = texts[places_[i]];
        switch (column.show) {
            case Show::YesNo:
                return modSharedXML::toBoolean(text) ? "Yes" : "No";
            case Show::Check:
                return modSharedXML::toBoolean(text) ? "1" : "0";
            case Show::Choice: {
                const auto choice =
                    std::ranges::find(column.choices, modSharedXML::toLong(text), &Choice::number);
                if (choice != column.choices.end()) return choice->caption;
                break;
            }
            case Show::Currency:
                if (const auto number = parseNumber(text)) return scratch_[i] = currencyText(*number);
                break;
            case Show::Date:
            case Show::DateTime:
                dates_[i] = modSharedXML::toDate(text);
                if (dates_[i] && isInRange(*dates_[i])) {
                    return scratch_[i] =
                               column.show == Show::Date ? shortDateText(*dates_[i]) : dateText(*dates_[i]);
                }
                dates_[i].reset();
                break;
            case Show::Text:
            case Show::Number:
                break;
        }
        return text.empty() ? column.instead : text;
    }

    std::span<const ListColumn> columns_;
    const ListRowStyle& style_;
    const std::size_t kept_;  // the number of the last fields that are kept, not shown
    std::vector<std::string_view> fields_;
    std::vector<std::size_t> places_;  // for each column, the index of its first field
    std::size_t styleAt_ = 0;
    bool asTheyAre_ = false;
    std::vector<std::string_view> cells_;
    std::vector<std::string> scratch_;
    std::vector<std::optional<Date>> dates_;
};

void makeRoom(ReportRecords& records, std::size_t expected) {
    const auto withSpare = [](std::size_t size) { return size + size / spare; };
    records.reserve(withSpare(expected), withSpare(records.textBytes() * expected / records.count()));
}

}  // namespace

ListRows readListRows(std::string text, std::span<const ListColumn> columns, const ListRowStyle& style,
                      RowReader::Way way, std::span<const std::string_view> kept) {
    RowMaker maker(columns, style, kept);
    RowReader reader(std::move(text), maker.fields(), way);
    ListRows rows{.records = ReportRecords(columns.size()), .kept = ReportRecords(kept.size())};
    while (reader.next()) {
        maker.add(reader.texts(), rows);
        if (rows.records.count() != sample) continue;
        makeRoom(rows.records, reader.expectedRows());
        if (!kept.empty()) makeRoom(rows.kept, reader.expectedRows());
    }
    return rows;
}

ListRows readListRows(const Recordset& recordset, std::span<const ListColumn> columns,
                      const ListRowStyle& style, std::span<const std::string_view> kept) {
    RowMaker maker(columns, style, kept);
    ListRows rows{.records = ReportRecords(columns.size()), .kept = ReportRecords(kept.size())};
    if (!recordset.isOpen()) return rows;
    std::vector<std::string> held(maker.fields().size());
    std::vector<std::string_view> texts(held.size());
    for (; !recordset.atEnd(); recordset.next()) {
        for (std::size_t i = 0; i < held.size(); ++i)
            texts[i] = held[i] = recordset.text(maker.fields()[i]);
        maker.add(texts, rows);
    }
    return rows;
}

}  // namespace tsln
