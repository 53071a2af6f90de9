#include "workbench/sql/SqlDates.h"
#include "workbench/sql/SqlFunctionCall.h"
#include "workbench/sql/SqlFunctionTables.h"

namespace tsln::workbench {

namespace {

SqlDate toDate(SqlValue value) {
    std::string text = value.text();
    auto date = value.isText() ? readDate(text) : std::nullopt;
    if (!date) refuseConversion(text, "date");
    return *date;
}

template <bool DateOnly>
void toDateText(const SqlCall& call) {
    if (call[0].isNull()) return call.giveNull();
    SqlDate date = toDate(call[0]);
    date.dateOnly = DateOnly;
    call.give(date.text());
}

void dateAdd(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    auto date = addToDate(call[0].text(), toInteger(call[1], "int"), toDate(call[2]));
    if (!date) throw SqlRefusal("Adding a value to a date column caused an overflow.");
    call.give(date->text());
}

void dateDiff(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    call.give(dateDifference(call[0].text(), toDate(call[1]), toDate(call[2])));
}

void datePart(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    auto part = partOfDate(call[0].text(), toDate(call[1]));
    if (!part) throw SqlRefusal("DATEPART of a " + call[0].text() + " is not known to this database.");
    call.give(*part);
}

constexpr SqlFunctionEntry entries[] = {
    {"tsql_date", 1, guarded<toDateText<true>>},      {"tsql_dateadd", 3, guarded<dateAdd>},
    {"tsql_datediff", 3, guarded<dateDiff>},          {"tsql_datepart", 2, guarded<datePart>},
    {"tsql_datetime", 1, guarded<toDateText<false>>},
};

}  // namespace

std::span<const SqlFunctionEntry> sqlDateFunctions() {
    return entries;
}

}  // namespace tsln::workbench
