#pragma once

#include <string>
#include <utility>

#include "benchmark/contest/BareList.h"
#include "maintenance/ListRows.h"

namespace tsln::bench {

/// Fills a list with a query result, up to the point where it can be shown.
struct Filling {
    using Way = modSharedXML::RowReader::Way;

    const ListDescription& list;
    std::string text;
    BareList bare{list.columns};
    std::string copy = {};

    void takeCopy() { copy = text; }
    void fill(Way way = Way::OnePass) { show(readListRows(std::move(copy), list.columns, {}, way).records); }
    void show(ReportRecords records) {
        bare.report.setRecords(std::move(records));
        bare.report.populate();
    }
};

}  // namespace tsln::bench
