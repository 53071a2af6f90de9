#include "workbench/host/ListImporter.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "automation/Object.h"
#include "shared/modSharedStrings.h"
#include "shared/modSharedXML.h"
#include "workbench/company/SqlText.h"
#include "workbench/company/TextOrder.h"
#include "workbench/host/ImportLists.h"

namespace tsln::workbench {
namespace {

using modSharedXML::Record;
using modSharedXML::Records;

constexpr std::string_view identityColumn = "UniqueID";
/// Columns that belong to the company they come from.
constexpr std::string_view notTakenOver[] = {"ID", "AddedOn", "UpdatedOn"};

struct Value {
    std::string column, text;
};

/// The text as the database compares it.
std::string comparable(std::string_view text) {
    return encodeUtf8(decodeFolded(modSharedStrings::trim(text)));
}

class SectionImport {
  public:
    SectionImport(Company& company, const ImportList& list) : company_(company), list_(list) {
        readRows();
        if (list.reference) readReferenced();
    }

    std::size_t run(pugi::xml_node section) {
        checkColumns(section);
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
        }
        return number;
    }

  private:
    std::string where(std::size_t number) const {
        return "Record " + std::to_string(number) + " of the list " + std::string(list_.name) + ": ";
    }

    void readRows() {
        std::string columns = "ID";
        for (const std::string_view key : list_.keyColumns())
            columns += ", " + bracketed(key);
        const Records rows =
            Records::parse(company_.read("SELECT " + columns + " FROM " + bracketed(list_.name)));
        for (const Record row : rows) {
            std::string key;
            for (const std::string_view column : list_.keyColumns())
                key += comparable(modSharedXML::readText(column, row)) + '\0';
            rows_.try_emplace(std::move(key), modSharedXML::readLong("ID", row));
        }
    }

    void readReferenced() {
        const ImportReference& reference = *list_.reference;
        const Records rows = Records::parse(company_.read("SELECT ID, " + bracketed(reference.nameColumn) +
                                                          " FROM " + bracketed(reference.table)));
        for (const Record row : rows) {
            referenced_.try_emplace(comparable(modSharedXML::readText(reference.nameColumn, row)),
                                    std::to_string(modSharedXML::readLong("ID", row)));
        }
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

    /// A reference's own identity travels beside its name, which is what counts here.
    bool isPassedOver(std::string_view column) const {
        return std::ranges::any_of(notTakenOver,
                                   [&](std::string_view name) { return sameName(name, column); }) ||
               (list_.reference &&
                sameName(column, std::string(list_.reference->column) + std::string(identityColumn)));
    }
    bool isReference(std::string_view column) const {
        return list_.reference && sameName(column, list_.reference->column);
    }

    void checkColumns(pugi::xml_node section) const {
        std::unordered_set<std::string> seen;
        std::string unknown;
        for (const pugi::xml_node record : section.children("Record")) {
            for (const pugi::xml_node field : record.children()) {
                if (field.type() != pugi::node_element || !seen.insert(field.name()).second) continue;
                if (isPassedOver(field.name()) || isReference(field.name()) || hasColumn(field.name()))
                    continue;
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
            if (field.type() != pugi::node_element || isPassedOver(field.name())) continue;
            std::string column = field.name(), text;
            for (const pugi::xml_node part : field.children()) {
                if (part.type() == pugi::node_element)
                    throw ImportError("The column " + column + " holds no text.");
                text += part.value();
            }
            text = modSharedXML::decodeFieldText(text);
            if (isReference(column)) {
                const auto found = referenced_.find(comparable(text));
                if (found == referenced_.end()) {
                    throw ImportError("There is no '" + text + "' in " + std::string(list_.reference->table) +
                                      ".");
                }
                column = list_.reference->keyColumn;
                text = found->second;
            }
            if (std::ranges::any_of(result, [&](const Value& v) { return sameName(v.column, column); })) {
                throw ImportError("The column " + column + " stands there twice.");
            }
            result.push_back({std::move(column), std::move(text)});
        }
        return result;
    }

    std::string key(const std::vector<Value>& values) const {
        std::string result;
        for (const std::string_view column : list_.keyColumns()) {
            const auto value =
                std::ranges::find_if(values, [&](const Value& v) { return sameName(v.column, column); });
            const std::string text = value == values.end() ? "" : comparable(value->text);
            if (text.empty() && column == list_.keys.front()) {
                throw ImportError("The column " + std::string(column) + ", which names it, is empty.");
            }
            result += text + '\0';
        }
        return result;
    }

    void import(const std::vector<Value>& values) {
        std::string rowKey = key(values);
        const auto existing = rows_.find(rowKey);
        if (existing != rows_.end()) {
            update(existing->second, values);
        } else {
            insert(values);
            rows_.emplace(std::move(rowKey), company_.lastInsertId());
        }
    }

    void update(std::int32_t id, const std::vector<Value>& values) {
        std::string changes;
        for (const Value& value : values) {
            if (sameName(value.column, identityColumn)) continue;
            changes += (changes.empty() ? "" : ", ") + bracketed(value.column) + " = " + literal(value.text);
        }
        company_.execute("UPDATE " + bracketed(list_.name) + " SET " + changes +
                         " WHERE ID = " + std::to_string(id));
    }

    void insert(const std::vector<Value>& values) {
        std::string columns, texts;
        for (const Value& value : values) {
            if (sameName(value.column, identityColumn) && !isFree(value.text)) continue;
            columns += (columns.empty() ? "" : ", ") + bracketed(value.column);
            texts += (texts.empty() ? "" : ", ") + literal(value.text);
        }
        company_.execute("INSERT INTO " + bracketed(list_.name) + " (" + columns + ") VALUES(" + texts + ")");
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

    Company& company_;
    const ImportList& list_;
    std::unordered_map<std::string, std::int32_t> rows_;       // by the texts of their keys
    std::unordered_map<std::string, std::string> referenced_;  // keys by name
    std::optional<std::unordered_set<std::string>> identities_;
};

}  // namespace

std::size_t importSection(Company& company, pugi::xml_node section) {
    const ImportList* list = findImportList(section.name());
    if (!list)
        throw ImportError("There is no list '" + std::string(section.name()) + "' that can be imported.");
    return SectionImport(company, *list).run(section);
}

}  // namespace tsln::workbench
