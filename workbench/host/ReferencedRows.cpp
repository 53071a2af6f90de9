#include "workbench/host/ReferencedRows.h"

#include <algorithm>

#include "automation/Object.h"
#include "shared/modSharedStrings.h"
#include "shared/modSharedXML.h"
#include "workbench/host/ListImporter.h"
#include "workbench/sql/SqlText.h"
#include "workbench/sql/TextOrder.h"

namespace tsln::workbench {

using modSharedXML::Record;
using modSharedXML::Records;

std::string ImportValue::sql() const {
    return text ? literal(*text) : "NULL";
}

std::vector<ImportValue>::const_iterator findValue(const std::vector<ImportValue>& values,
                                                   std::string_view column) {
    return std::ranges::find_if(values, [&](const ImportValue& v) { return sameName(v.column, column); });
}

std::string comparable(std::string_view text) {
    return encodeUtf8(decodeFolded(modSharedStrings::trim(text)));
}

void UpgradedRows::add(std::string_view table, std::string_view identity, std::int32_t ID) {
    if (!identity.empty())
        tables_[std::string(table)].insert_or_assign(comparable(identity), std::to_string(ID));
}

const std::string* UpgradedRows::find(std::string_view table, std::string_view identity) const {
    const auto rows = tables_.find(table);
    if (rows == tables_.end()) return nullptr;
    const auto row = rows->second.find(comparable(identity));
    return row == rows->second.end() ? nullptr : &row->second;
}

ReferencedRows::ReferencedRows(Company& company, const ImportReference& reference,
                               const UpgradedRows* upgrade)
    : reference_(reference),
      upgrade_(upgrade),
      identityColumn_(reference.identity.empty() ? std::string(reference.names[0].column) + "UniqueID"
                                                 : std::string(reference.identity)) {
    std::string columns = "ID";
    for (const ImportReference::Name& name : reference.nameColumns())
        columns += ", " + bracketed(name.nameColumn);
    if (upgrade_) columns += ", UniqueID";
    const Records rows =
        Records::parse(company.read("SELECT " + columns + " FROM " + bracketed(reference.table)));
    for (const Record row : rows) {
        const std::string id = std::to_string(modSharedXML::readLong("ID", row));
        std::string key;
        for (const ImportReference::Name& name : reference.nameColumns())
            key += comparable(modSharedXML::readText(name.nameColumn, row)) + '\0';
        keys_.try_emplace(std::move(key), id);
        if (upgrade_) identities_.try_emplace(comparable(modSharedXML::readText("UniqueID", row)), id);
    }
}

bool ReferencedRows::isNamedBy(std::string_view column) const {
    return std::ranges::any_of(reference_.nameColumns(), [&](const ImportReference::Name& name) {
        return sameName(name.column, column);
    });
}

bool ReferencedRows::isIdentifiedBy(std::string_view column) const {
    return sameName(column, identityColumn_);
}

const std::string* ReferencedRows::keyOf(std::string_view identity,
                                         std::span<const std::string> names) const {
    if (!identity.empty()) {
        if (const std::string* upgraded = upgrade_->find(reference_.table, identity)) return upgraded;
        if (const auto own = identities_.find(comparable(identity)); own != identities_.end())
            return &own->second;
    }
    std::string key;
    for (const std::string& name : names)
        key += comparable(name) + '\0';
    const auto named = keys_.find(key);
    return named == keys_.end() ? nullptr : &named->second;
}

void ReferencedRows::resolve(std::vector<ImportValue>& values) const {
    std::vector<std::string> names;
    std::string identity;
    bool refers = false;
    const auto take = [&](std::string_view column) {
        const auto value = findValue(values, column);
        if (value == values.end()) return std::string();
        refers = true;
        std::string text = value->text.value_or("");
        values.erase(value);
        return text;
    };
    for (const ImportReference::Name& name : reference_.nameColumns())
        names.push_back(take(name.column));
    if (upgrade_) identity = take(identityColumn_);
    if (!refers) return;

    ImportValue result{std::string(reference_.keyColumn), {}};
    const bool none = modSharedStrings::trim(names.front()).empty() && identity.empty();
    if (!(reference_.optional && none)) {
        if (const std::string* key = keyOf(identity, names)) {
            result.text = *key;
        } else if (!(upgrade_ && reference_.optional)) {
            throw ImportError("There is no '" + names.front() + "' in " + std::string(reference_.table) +
                              ".");
        }
    }
    if (findValue(values, result.column) != values.end())
        throw ImportError("The column " + result.column + " occurs twice.");
    values.push_back(std::move(result));
}

}  // namespace tsln::workbench
