#include "benchmark/contest/SampleRows.h"

#include <array>

namespace tsln::bench {
namespace {

constexpr std::array<const char*, 20> firstNames{
    "Anna",  "Bjørn", "Carla", "David", "Elena", "Frank", "Grace", "Hanna", "Ivan",  "Julia",
    "Karim", "Laura", "Marco", "Nadia", "Oscar", "Paula", "Quinn", "Rosa",  "Simon", "Tara"};
constexpr std::array<const char*, 20> lastNames{"Andersen", "Baker",   "Castillo", "Dubois", "Evans",
                                                "Fischer",  "García",  "Huang",    "Ibsen",  "Johnson",
                                                "Kowalski", "Larsen",  "Martin",   "Nguyen", "O'Brien",
                                                "Petrov",   "Quigley", "Rossini",  "Silva",  "Thompson"};
constexpr std::array<const char*, 12> towns{"Albany", "Boulder",   "Concord",  "Duluth",
                                            "Eugene", "Fresno",    "Glendale", "Houston",
                                            "Ithaca", "Jamestown", "Kingston", "Laredo"};

/// Returns numbers that look random and are equal in every run.
std::size_t scatter(std::size_t row, std::size_t salt) {
    std::size_t x = row * 0x9E3779B97F4A7C15U + salt * 0xD1B54A32D192ED03U;
    x ^= x >> 29;
    x *= 0xBF58476D1CE4E5B9U;
    return x ^ x >> 32;
}

void append(std::string& xml, const std::string& column, std::string_view value) {
    if (value.empty()) return;  // NULL
    xml.append("<").append(column).append(">");
    for (const char c : value) {
        if (c == '&') {
            xml += "&amp;";
        } else if (c == '\n') {
            xml += "&amp;#13;&amp;#10;";
        } else {
            xml += c;
        }
    }
    xml.append("</").append(column).append(">");
}

struct CustomerColumn {
    const char* name;
    enum Kind { Id, Name, Short, Phone, Mail, Street, Town, Number, Flag, Amount, Memo, Moment } kind;
};
constexpr CustomerColumn customerColumns[] = {
    {"ID", CustomerColumn::Id},
    {"CustomerName", CustomerColumn::Name},
    {"AccountNumber", CustomerColumn::Number},
    {"CompanyName", CustomerColumn::Name},
    {"Contact", CustomerColumn::Name},
    {"FirstName", CustomerColumn::Short},
    {"LastName", CustomerColumn::Short},
    {"Phone1Label", CustomerColumn::Short},
    {"Phone1", CustomerColumn::Phone},
    {"Phone2Label", CustomerColumn::Short},
    {"Phone2", CustomerColumn::Phone},
    {"Phone3Label", CustomerColumn::Short},
    {"Phone3", CustomerColumn::Phone},
    {"Email1Label", CustomerColumn::Short},
    {"Email1", CustomerColumn::Mail},
    {"Email2Label", CustomerColumn::Short},
    {"Email2", CustomerColumn::Mail},
    {"BillToAddress1", CustomerColumn::Street},
    {"BillToAddress2", CustomerColumn::Street},
    {"BillToCity", CustomerColumn::Town},
    {"BillToState", CustomerColumn::Short},
    {"BillToZip", CustomerColumn::Number},
    {"BillToCountry", CustomerColumn::Short},
    {"SalesTaxGroupID", CustomerColumn::Number},
    {"ResaleNumber", CustomerColumn::Number},
    {"DiscountGroupID", CustomerColumn::Number},
    {"CustomerTypeID", CustomerColumn::Number},
    {"TermsID", CustomerColumn::Number},
    {"SalesRepID", CustomerColumn::Number},
    {"InstallerID", CustomerColumn::Number},
    {"DesignerID", CustomerColumn::Number},
    {"ShippingMethodID", CustomerColumn::Number},
    {"ReferralMethodID", CustomerColumn::Number},
    {"SalesAccount", CustomerColumn::Short},
    {"CreditHold", CustomerColumn::Flag},
    {"OrderEntryComment", CustomerColumn::Memo},
    {"CSRMessage", CustomerColumn::Memo},
    {"Notes", CustomerColumn::Memo},
    {"Active", CustomerColumn::Flag},
    {"ValidateAddresses", CustomerColumn::Flag},
    {"LocationID", CustomerColumn::Number},
    {"CreditLimit", CustomerColumn::Amount},
    {"CustomerDiscountGroupID", CustomerColumn::Number},
    {"Exported", CustomerColumn::Flag},
    {"LastUsed", CustomerColumn::Moment},
};
static_assert(std::size(customerColumns) == 45);

template <class Value>
std::string result(std::size_t rows, const std::vector<std::string>& columns, const Value& value) {
    std::string xml = "<Records>";
    for (std::size_t row = 0; row < rows; ++row) {
        xml += "<Record>";
        for (std::size_t c = 0; c < columns.size(); ++c)
            append(xml, columns[c], value(row, c));
        xml += "</Record>";
    }
    xml += "</Records>";
    xml.shrink_to_fit();
    return xml;
}

std::string termsValue(std::size_t row, std::size_t column) {
    switch (column) {
        case 0:
            return std::to_string(row + 1);
        case 1:
            return "Net " + std::to_string(scatter(row, 1) % 100) + " " + townName(row) + " " +
                   std::to_string(row);
        case 3:
            return row % 4 == 0 ? "0" : "0.0" + std::to_string(row % 9 + 1);
        case 5:
            return row % 2 == 0 ? "0" : "1";
        default:
            return std::to_string(scatter(row, column) % 120);
    }
}

}  // namespace

std::string personName(std::size_t row) {
    const std::size_t at = scatter(row, 2);
    return std::string(lastNames[at % lastNames.size()]) + ", " +
           firstNames[at / lastNames.size() % firstNames.size()] + " " + std::to_string(at / 400 % 10000);
}

std::string townName(std::size_t row) {
    return towns[scatter(row, 3) % towns.size()];
}

std::string customerValue(std::size_t row, std::size_t column) {
    const std::size_t at = scatter(row, column + 10);
    switch (customerColumns[column].kind) {
        case CustomerColumn::Id:
            return std::to_string(row + 1);
        case CustomerColumn::Name:
            return column == 3 ? (at % 3 == 0 ? townName(at) + " Blinds & Shades" : "") : personName(row);
        case CustomerColumn::Short:
            return at % 4 == 0 ? "" : firstNames[at % firstNames.size()];
        case CustomerColumn::Phone:
            return at % 3 == 0 ? "" : "(555) " + std::to_string(1000000 + at % 9000000);
        case CustomerColumn::Mail:
            return at % 3 == 0 ? "" : "office" + std::to_string(at % 10000) + "@example.com";
        case CustomerColumn::Street:
            return at % 3 == 0 ? "" : std::to_string(at % 900 + 1) + " " + townName(at) + " Road";
        case CustomerColumn::Town:
            return townName(row);
        case CustomerColumn::Number:
            return at % 5 == 0 ? "" : std::to_string(at % 1000);
        case CustomerColumn::Flag:
            return at % 2 == 0 ? "0" : "1";
        case CustomerColumn::Amount:
            return std::to_string(at % 10000) + ".5";
        case CustomerColumn::Memo:
            return at % 4 != 0 ? "" : "Call before delivery; the gate is locked.\nAsk for the key at no. 7.";
        case CustomerColumn::Moment:
            return "2011-03-0" + std::to_string(at % 9 + 1) + "T10:20:30";
    }
    return {};
}

const std::vector<std::string>& termsColumns() {
    static const std::vector<std::string> columns{"ID",       "Terms",        "DueDays",
                                                  "Discount", "DiscountDays", "Exported"};
    return columns;
}

const std::vector<std::string>& customersColumns() {
    static const std::vector<std::string> columns = [] {
        std::vector<std::string> names;
        for (const CustomerColumn& column : customerColumns)
            names.emplace_back(column.name);
        return names;
    }();
    return columns;
}

std::string termsResult(std::size_t rows) {
    return result(rows, termsColumns(), termsValue);
}

std::string customersResult(std::size_t rows) {
    return result(rows, customersColumns(), customerValue);
}

const ListDescription& customersList() {
    static const ListDescription list = [] {
        ListDescription description{.open = Operation::ShowTerms,
                                           .edit = Operation::ShowEditTerms,
                                           .screenName = "frmCustomersOfTheBenchmark",
                                           .caption = "Customers",
                                           .table = "Customers",
                                           .orderBy = "CustomerName",
                                           .columns = {},
                                           .deleteFailure = "There was a problem."};
        for (const CustomerColumn& column : customerColumns) {
            if (column.kind != CustomerColumn::Id) {
                description.columns.push_back({column.name, 100, column.name});
            }
        }
        return description;
    }();
    return list;
}

}  // namespace tsln::bench
