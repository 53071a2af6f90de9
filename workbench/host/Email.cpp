#include "workbench/host/Email.h"

#include <algorithm>

#include "automation/DateText.h"
#include "shared/modSharedSQL.h"
#include "workbench/host/HostDate.h"
#include "workbench/host/TextOf.h"
#include "workbench/sql/SqlText.h"

namespace tsln::workbench {
namespace {

using modSharedSQL::format;

constexpr std::string_view views[] = {"vwDocumentProcessing_Customers", "vwDocumentProcessing_Vendors",
                                      "vwDocumentProcessing_Employees", "vwDocumentProcessing_Orders"};
constexpr std::string_view addressField = "Email";

/// The first row of a query, by its columns' names.
class FirstRow {
  public:
    FirstRow(Company& company, const std::string& query) : result_(company.run(query)) {}
    bool exists() const { return !result_.rows.empty(); }
    std::optional<std::string> value(std::string_view name) const {
        const auto column = std::ranges::find_if(result_.columns,
                                                 [&](const std::string& own) { return sameName(own, name); });
        if (column == result_.columns.end() || !exists()) return std::nullopt;
        const Variant& found =
            result_.rows.front()[static_cast<std::size_t>(column - result_.columns.begin())];
        return textOf(found);
    }

  private:
    SqlResult result_;
};

void store(HostContext& context, const Email& email) {
    std::string values = literal(sqlDateText(now()));
    for (const std::string_view text : std::initializer_list<std::string_view>{
             context.user.name, email.from, email.to, email.cc, email.bcc, email.subject, email.body}) {
        values += ", " + literal(text);
    }
    context.company.execute(
        "INSERT INTO SentMessages (SentOn, SentBy, FromAddress, ToAddress, CcAddress, BCcAddress, Subject, BodyText) "
        "VALUES (" +
        values + ")");
}

}  // namespace

std::string mergeFields(std::string_view text,
                        const std::function<std::optional<std::string>(std::string_view name)>& valueOf) {
    constexpr std::string_view open = "<<", close = ">>";
    std::string merged;
    for (std::size_t end = 0; (end = text.find(close)) != text.npos;) {
        const std::size_t at = text.substr(0, end).rfind(open);  // the innermost one
        const auto value =
            at == text.npos ? std::nullopt : valueOf(text.substr(at + open.size(), end - at - open.size()));
        if (value) {
            merged += text.substr(0, at);
            merged += *value;
        } else {
            merged += text.substr(0, end + close.size());
        }
        text.remove_prefix(end + close.size());
    }
    return merged += text;
}

Variant sendEmailWithTemplate(HostContext& context, Arguments a) {
    a.require(4, 4);
    const std::int32_t type = a[0].toLong(), ID = a[1].toLong();
    if (type < 1 || type > static_cast<std::int32_t>(std::size(views)))
        throw HostError(code::badIndex, "SharedCode",
                        "There is no type " + std::to_string(type) + " of templates.");
    const FirstRow record(context.company, format("SELECT * FROM {0} WHERE ID = {1}",
                                                  views[static_cast<std::size_t>(type) - 1], ID));
    if (!record.exists()) {
        throw HostError(code::badIndex, "SharedCode",
                        "There is no record " + std::to_string(ID) + " to fill the template with.");
    }
    const auto valueOf = [&](std::string_view name) { return record.value(name); };
    const FirstRow sender(context.company,
                          format("SELECT Email1 AS Email FROM Employees WHERE ID = {0}", context.user.ID));
    const Email filled{.from = sender.value(addressField).value_or(""),
                       .to = record.value(addressField).value_or(""),
                       .subject = mergeFields(textOf(a[2]), valueOf),
                       .body = mergeFields(textOf(a[3]), valueOf)};
    if (const auto sent = context.ui.editEmail(filled)) store(context, *sent);
    return {};
}

}  // namespace tsln::workbench
