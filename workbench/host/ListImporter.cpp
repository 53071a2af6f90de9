#include "workbench/host/ListImporter.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "automation/Object.h"
#include "shared/modSharedXML.h"
#include "workbench/company/RecordsXml.h"
#include "workbench/host/ImportLists.h"
#include "workbench/sql/SqlText.h"
#include "workbench/sql/TextOrder.h"

namespace tsln::workbench {
namespace {

using modSharedXML::Record;
using modSharedXML::Records;

constexpr std::string_view identityColumn = "UniqueID";
constexpr std::string_view keyColumn = "ID";
/// The dates of change are specific to a company, but those of an upgraded one are kept.
constexpr std::string_view datesOfChange[] = {"AddedOn", "UpdatedOn"};

using Value = ImportValue;

class SectionImport {
  public:
    SectionImport(Company& company, const ImportList& list, const ImportManner& manner)
        : company_(company), list_(list), manner_(manner) {
        readRows();
        for (const ImportReference& reference : list.references)
            referenced_.emplace_back(company, reference, manner.upgrade);
    }

    ImportedRecords run(pugi::xml_node section) {
        checkColumns(section);
        if (manner_.upgrade) reserveIdentities(section);
        std::size_t number = 0;
        for (const pugi::xml_node record : section.children("Record")) {
            ++number;
            try {
                import(values(record));
            } catch (const ImportError& error) {
                throw ImportError(where(number) + error.what());
            } catch (const SqlError& error) {
                throw SqlError(error.code(), where(number) + error.what());
            }
            if (manner_.goOn && !manner_.goOn(number)) {
                imported_.cancelled = true;
                break;
            }
        }
        return imported_;
    }

  private:
    std::string where(std::size_t number) const {
        return "Record " + std::to_string(number) + " of the list " + std::string(list_.name) + ": ";
    }

    void readRows() {
        std::string columns = "ID";
        for (const std::string_view key : list_.keys)
            columns += ", " + bracketed(key);
        if (manner_.upgrade) columns += ", " + bracketed(identityColumn);
        const Records rows = Records::parse(
            company_.read("SELECT " + columns + " FROM " + bracketed(list_.name) + " ORDER BY ID"));
        for (const Record row : rows) {
            std::string key;
            for (const std::string_view column : list_.keys)
                key += comparable(modSharedXML::readText(column, row)) + '\0';
            const std::int32_t id = modSharedXML::readLong("ID", row);
            rows_[std::move(key)].ids.push_back(id);
            if (manner_.upgrade)
                identified_.emplace(comparable(modSharedXML::readText(identityColumn, row)), id);
        }
    }

    /// A row whose identity occurs in the file belongs to that record, not to another one of its name.
    void reserveIdentities(pugi::xml_node section) {
        std::unordered_set<std::int32_t> reserved;
        for (const pugi::xml_node record : section.children("Record")) {
            const auto row = identified_.find(comparable(record.child(identityColumn.data()).text().get()));
            if (row != identified_.end()) reserved.insert(row->second);
        }
        if (!list_.rowsRepeat || reserved.empty()) return;
        for (auto& [key, alike] : rows_)
            std::erase_if(alike.ids, [&](std::int32_t id) { return reserved.contains(id); });
    }

    bool hasColumn(std::string_view column) const {
        if (!isPlainName(column)) return false;
        try {
            company_.scalar("SELECT TOP 1 " + bracketed(column) + " FROM " + bracketed(list_.name));
            return true;
        } catch (const SqlError&) {
            return false;
        }
    }

    bool isPassedOver(std::string_view column) const {
        if (sameName(column, keyColumn)) return true;
        const bool dated =
            std::ranges::any_of(datesOfChange, [&](std::string_view name) { return sameName(name, column); });
        if (manner_.upgrade) return dated && !dates_.contains(std::string(column));
        return dated || std::ranges::any_of(referenced_, [&](const ReferencedRows& rows) {
                   return rows.isIdentifiedBy(column);
               });
    }
    bool isReference(std::string_view column) const {
        return std::ranges::any_of(referenced_, [&](const ReferencedRows& rows) {
            return rows.isNamedBy(column) || (manner_.upgrade && rows.isIdentifiedBy(column));
        });
    }

    void checkColumns(pugi::xml_node section) {
        for (const std::string_view date : datesOfChange) {
            if (manner_.upgrade && hasColumn(date)) dates_.insert(std::string(date));
        }
        std::unordered_set<std::string> seen;
        std::string unknown;
        for (const pugi::xml_node record : section.children("Record")) {
            for (const pugi::xml_node field : record.children()) {
                if (field.type() != pugi::node_element || !seen.insert(field.name()).second) continue;
                if (isPassedOver(field.name())) {
                    passedOver_.insert(field.name());
                    continue;
                }
                if (isReference(field.name()) || hasColumn(field.name())) continue;
                unknown += (unknown.empty() ? "" : ", ") + std::string(field.name());
            }
        }
        if (!unknown.empty()) {
            throw ImportError("The list " + std::string(list_.name) +
                              " has no columns of these names: " + unknown + ".");
        }
    }

    std::vector<Value> values(pugi::xml_node record) const {
        std::vector<Value> result;
        for (const pugi::xml_node field : record.children()) {
            if (field.type() != pugi::node_element || passedOver_.contains(field.name())) continue;
            std::string column = field.name(), text;
            for (const pugi::xml_node part : field.children()) {
                if (part.type() == pugi::node_element)
                    throw ImportError("The column " + column + " holds no text.");
                text += part.value();
            }
            text = modSharedXML::decodeFieldText(text);
            if (!fitsInXml(text))
                throw ImportError("The column " + column + " holds a character that is no text.");
            if (findValue(result, column) != result.end()) {
                throw ImportError("The column " + column + " occurs twice.");
            }
            result.push_back({std::move(column), std::move(text)});
        }
        for (const ReferencedRows& rows : referenced_)
            rows.resolve(result);
        return result;
    }

    /// The texts of the columns that identify the record; empty for a record without a name that has an identity.
    std::string key(const std::vector<Value>& values, bool identified) const {
        std::string result;
        for (const std::string_view column : list_.keys) {
            const auto value = findValue(values, column);
            const std::string text = value == values.end() ? "" : comparable(value->text.value_or(""));
            if (text.empty() && column == list_.keys.front()) {
                if (identified) return {};
                throw ImportError("The column " + std::string(column) +
                                  ", which identifies the record, is empty.");
            }
            result += text + '\0';
        }
        return result;
    }

    void import(const std::vector<Value>& values) {
        std::string identity;
        if (const auto value = findValue(values, identityColumn); value != values.end())
            identity = value->text.value_or("");
        const bool identified = manner_.upgrade && !identity.empty();
        const auto known = identified ? identified_.find(comparable(identity)) : identified_.end();
        const std::int32_t id = known != identified_.end() ? update(known->second, values)
                                                           : importByName(key(values, identified), values);
        if (manner_.upgrade) manner_.upgrade->add(list_.name, identity, id);
    }

    std::int32_t importByName(const std::string& name, const std::vector<Value>& values) {
        const bool oneRow = list_.keys.empty();
        if (name.empty() && !oneRow) return insert(values);
        Alike& alike = rows_[name];
        const std::size_t which = list_.rowsRepeat ? alike.imported++ : 0;
        if (which < alike.ids.size()) return update(alike.ids[which], values);
        return alike.ids.emplace_back(insert(values));
    }

    std::int32_t update(std::int32_t id, const std::vector<Value>& values) {
        std::string changes;
        for (const Value& value : values) {
            if (sameName(value.column, identityColumn)) continue;
            changes += (changes.empty() ? "" : ", ") + bracketed(value.column) + " = " + value.sql();
        }
        company_.execute("UPDATE " + bracketed(list_.name) + " SET " + changes +
                         " WHERE ID = " + std::to_string(id));
        ++imported_.updated;
        return id;
    }

    std::int32_t insert(const std::vector<Value>& values) {
        std::string columns, texts;
        for (const Value& value : values) {
            if (sameName(value.column, identityColumn) && !isFree(value.text.value_or(""))) continue;
            columns += (columns.empty() ? "" : ", ") + bracketed(value.column);
            texts += (texts.empty() ? "" : ", ") + value.sql();
        }
        company_.execute("INSERT INTO " + bracketed(list_.name) + " (" + columns + ") VALUES(" + texts + ")");
        ++imported_.added;
        return company_.lastInsertId();
    }

    bool isFree(const std::string& identity) {
        if (identity.empty()) return false;
        if (!identities_) {
            identities_.emplace();
            const Records rows =
                Records::parse(company_.read("SELECT UniqueID FROM " + bracketed(list_.name)));
            for (const Record row : rows)
                identities_->insert(comparable(modSharedXML::readText(identityColumn, row)));
        }
        return identities_->insert(comparable(identity)).second;
    }

    /// The table's rows with equal keys, in order, and the number of them that the file has matched so far.
    struct Alike {
        std::vector<std::int32_t> ids;
        std::size_t imported = 0;
    };

    Company& company_;
    const ImportList& list_;
    const ImportManner& manner_;
    ImportedRecords imported_;
    std::unordered_map<std::string, Alike> rows_;               // by the texts of their keys
    std::unordered_map<std::string, std::int32_t> identified_;  // keys by identity; for an upgrade
    std::unordered_set<std::string> dates_;                     // the dates of change that the table has
    std::unordered_set<std::string> passedOver_;                // columns of the file that are not imported
    std::vector<ReferencedRows> referenced_;
    std::optional<std::unordered_set<std::string>> identities_;
};

}  // namespace

ImportedRecords importSection(Company& company, pugi::xml_node section, const ImportManner& manner) {
    const ImportList* list = findImportList(section.name(), manner.upgrade != nullptr);
    if (!list)
        throw ImportError("There is no list '" + std::string(section.name()) + "' that can be imported.");
    return SectionImport(company, *list, manner).run(section);
}

}  // namespace tsln::workbench
