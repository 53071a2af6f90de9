#include "bridge/modSharedRecordHistory.h"

#include <algorithm>
#include <initializer_list>

#include "automation/NumericText.h"
#include "automation/Object.h"
#include "bridge/Connection.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedXML.h"

namespace tsln::modSharedRecordHistory {
namespace {

constexpr const char* root = "RecordContents";

/// A column of a table, both names in lower case.
struct Column {
    std::string_view table, column;
    bool is(std::string_view otherTable, std::string_view otherColumn) const {
        return sameName(table, otherTable) && sameName(column, otherColumn);
    }
};

constexpr Column leftOut[] = {
    {"customers", "updatedon"}, {"customers", "lastused"},
    {"customers", "addedon"},   {"customers", "alternateuniqueid"},
    {"customers", "uniqueid"},

    {"orders", "updatedon"},    {"orders", "addedon"},
    {"orders", "created"},      {"orders", "createdby"},
    {"orders", "lastmodified"}, {"orders", "lastmodifiedby"},
    {"orders", "uniqueid"},

    {"jobs", "notes"},          {"jobs", "updatedon"},
    {"jobs", "lastused"},       {"jobs", "addedon"},
    {"jobs", "created"},        {"jobs", "createdby"},
    {"jobs", "lastmodified"},   {"jobs", "lastmodifiedby"},
    {"jobs", "uniqueid"},
};

constexpr struct {
    Column column;
    std::string_view shown;
} displayNames[] = {
    {{"customers", "customername"}, "Customer name"},
    {{"orders", "statusid"}, "Status"},
    {{"orders", "shippingmethodid"}, "Shipping Method"},
};

/// Identifiers that are shown as names; `member` of the host's "Common" gives the name. The status is looked up for
/// the column `status`, although its display name belongs to `statusid` (deliberate).
constexpr struct {
    Column column;
    std::string_view member;
} displayLookups[] = {
    {{"orders", "status"}, "GetOrderStatusNameFromID"},
    {{"orders", "salesrepid"}, "GetEmployeeName"},
    {{"orders", "designerid"}, "GetEmployeeName"},
    {{"orders", "installerid"}, "GetEmployeeName"},
    {{"orders", "shippingmethodid"}, "GetShippingMethodName"},
};

/// Columns whose changes are told without the values, which nobody is to read.
constexpr Column hiddenValues[] = {{"employees", "passwordhash"}, {"employees", "emailsmtppassword"}};

/// Returns work's result, or an empty value when it throws.
template <class Work>
auto ignoringErrors(const Work& work) noexcept -> decltype(work()) {
    try {
        return work();
    } catch (const std::exception&) {
        return {};
    }
}

Document makeDocument() {
    auto document = std::make_unique<pugi::xml_document>();
    document->append_child(root);
    return document;
}

pugi::xml_node addField(const Document& document, const char* name) {
    pugi::xml_node field = document->child(root).append_child("Field");
    field.append_attribute("Name") = name;
    return field;
}

/// Returns the value as text; a value without a text form, such as bytes, reads as empty.
std::string textOf(const Variant& value) {
    return value.isNull() ? std::string() : ignoringErrors([&] { return value.toText(); });
}

std::string_view displayName(std::string_view table, std::string_view column) {
    for (const auto& row : displayNames) {
        if (row.column.is(table, column)) return row.shown;
    }
    return column;
}

std::string lookUp(std::string_view member, const std::string& value, const ObjectPtr& sharedCode) {
    std::int32_t ID = 0;
    if (!sharedCode || readNumber(value, ID) != Reading::Done) return {};
    return ignoringErrors([&] { return textOf(sharedCode->get("Common").object().call(member, ID)); });
}

std::string displayValue(std::string_view table, std::string_view column, const std::string& value,
                         const ObjectPtr& sharedCode) {
    if (Column{"customers", "active"}.is(table, column)) return value != "0" ? "Yes" : "No";
    if (std::ranges::any_of(hiddenValues, [&](const Column& hidden) { return hidden.is(table, column); }))
        return "(hidden)";
    for (const auto& row : displayLookups) {
        if (row.column.is(table, column)) return lookUp(row.member, value, sharedCode);
    }
    return value;
}

}  // namespace

Document takeSnapshot(std::string_view table, std::int32_t ID, const ObjectPtr& connection) noexcept {
    return ignoringErrors([&]() -> Document {
        if (!connection) return nullptr;
        const std::string sql = modSharedSQL::fillTags("SELECT * FROM [<table>] WHERE ID = <id>",
                                                       {{"<table>", table}, {"<id>", ID}});
        const Recordset row = Connection(connection).read(sql);
        if (!row.isOpen() || row.atEnd()) return nullptr;
        Document snapshot = makeDocument();
        const std::int32_t count = row.fieldCount();
        for (std::int32_t i = 0; i < count; ++i) {
            const std::string text = modSharedXML::encodeFieldText(textOf(row.value(i)));
            addField(snapshot, row.name(i).c_str()).text().set(text.c_str());
        }
        return snapshot;
    });
}

Document compare(const Document& before, const Document& after) noexcept {
    return ignoringErrors([&]() -> Document {
        if (!before || !after) return nullptr;
        Document comparison = makeDocument();
        pugi::xml_node now = after->child(root).child("Field");
        for (const pugi::xml_node was : before->child(root).children("Field")) {
            const std::string_view text = was.text().get();
            if (text != now.text().get()) {
                pugi::xml_node field = addField(comparison, was.attribute("Name").value());
                field.append_attribute("Before") = was.text().get();
                field.append_attribute("After") = now.text().get();
            }
            now = now.next_sibling("Field");
        }
        return comparison;
    });
}

std::string describeChanges(const Document& comparison, std::string_view table,
                            const ObjectPtr& sharedCode) noexcept {
    return ignoringErrors([&] {
        std::string text;
        if (!comparison) return text;
        for (const pugi::xml_node field : comparison->child(root).children("Field")) {
            const std::string_view column = field.attribute("Name").value();
            if (std::ranges::any_of(leftOut, [&](const Column& out) { return out.is(table, column); }))
                continue;
            const auto shown = [&](const char* which) {
                return displayValue(
                    table, column, modSharedXML::decodeFieldText(field.attribute(which).value()), sharedCode);
            };
            if (!text.empty()) text += "\r\n";
            text += std::string(displayName(table, column)) + ": ";
            text += shown("Before") + " to ";
            text += shown("After");
        }
        return text;
    });
}

}  // namespace tsln::modSharedRecordHistory
