#include "workbench/host/ListImporter.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "automation/Object.h"
#include "shared/modSharedStrings.h"
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
/// Columns that are specific to a company.
constexpr std::string_view notTakenOver[] = {"ID", "AddedOn", "UpdatedOn"};

struct Value {
    std::string column;
    std::optional<std::string> text;  ///< none: NULL

    std::string sql() const { return text ? literal(*text) : "NULL"; }
};

/// The text in a form that is equal when the database treats texts as equal.
std::string comparable(std::string_view text) {
    return encodeUtf8(decodeFolded(modSharedStrings::trim(text)));
}

/// The rows of a referenced table, by their names.
class ReferencedRows {
  public:
    ReferencedRows(Company& company, const ImportReference& reference) : reference_(reference) {
        std::string columns = "ID";
        for (const ImportReference::Name& name : reference.nameColumns())
            columns += ", " + bracketed(name.nameColumn);
        const Records rows =
            Records::parse(company.read("SELECT " + columns + " FROM " + bracketed(reference.table)));
        for (const Record row : rows) {
            std::string key;
            for (const ImportReference::Name& name : reference.nameColumns())
                key += comparable(modSharedXML::readText(name.nameColumn, row)) + '\0';
            keys_.try_emplace(std::move(key), std::to_string(modSharedXML::readLong("ID", row)));
        }
    }

    bool isNamedBy(std::string_view column) const {
        return std::ranges::any_of(reference_.nameColumns(), [&](const ImportReference::Name& name) {
            return sameName(name.column, column);
        });
    }
    /// The file may also contain the identity of the referenced row, which is ignored: the name counts.
    bool isIdentifiedBy(std::string_view column) const {
        return sameName(column, std::string(reference_.names[0].column) + std::string(identityColumn));
    }

    /// Replaces the names by the key. Does nothing when the record has none of the names.
    void resolve(std::vector<Value>& values) const {
        std::string key, first;
        bool named = false;
        for (const ImportReference::Name& name : reference_.nameColumns()) {
            const auto value =
                std::ranges::find_if(values, [&](const Value& v) { return sameName(v.column, name.column); });
            std::string text;
            if (value != values.end()) {
                named = true;
                text = value->text.value_or("");
                values.erase(value);
            }
            if (key.empty()) first = text;
            key += comparable(text) + '\0';
        }
        if (!named) return;
        Value result{std::string(reference_.keyColumn), {}};
        if (!(reference_.optional && comparable(first).empty())) {
            const auto found = keys_.find(key);
            if (found == keys_.end()) {
                throw ImportError("There is no '" + first + "' in " + std::string(reference_.table) + ".");
            }
            result.text = found->second;
        }
        if (std::ranges::any_of(values, [&](const Value& v) { return sameName(v.column, result.column); })) {
            throw ImportError("The column " + result.column + " occurs twice.");
        }
        values.push_back(std::move(result));
    }

  private:
    const ImportReference& reference_;
    std::unordered_map<std::string, std::string> keys_;
};

class SectionImport {
  public:
    SectionImport(Company& company, const ImportList& list) : company_(company), list_(list) {
        readRows();
        for (const ImportReference& reference : list.references)
            referenced_.emplace_back(company, reference);
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
        for (const std::string_view key : list_.keys)
            columns += ", " + bracketed(key);
        const Records rows = Records::parse(
            company_.read("SELECT " + columns + " FROM " + bracketed(list_.name) + " ORDER BY ID"));
        for (const Record row : rows) {
            std::string key;
            for (const std::string_view column : list_.keys)
                key += comparable(modSharedXML::readText(column, row)) + '\0';
            rows_[std::move(key)].ids.push_back(modSharedXML::readLong("ID", row));
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

    bool isPassedOver(std::string_view column) const {
        return std::ranges::any_of(notTakenOver,
                                   [&](std::string_view name) { return sameName(name, column); }) ||
               std::ranges::any_of(referenced_,
                                   [&](const ReferencedRows& rows) { return rows.isIdentifiedBy(column); });
    }
    bool isReference(std::string_view column) const {
        return std::ranges::any_of(referenced_,
                                   [&](const ReferencedRows& rows) { return rows.isNamedBy(column); });
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
            if (!fitsInXml(text))
                throw ImportError("The column " + column + " holds a character that is no text.");
            if (std::ranges::any_of(result, [&](const Value& v) { return sameName(v.column, column); })) {
                throw ImportError("The column " + column + " occurs twice.");
            }
            result.push_back({std::move(column), std::move(text)});
        }
        for (const ReferencedRows& rows : referenced_)
            rows.resolve(result);
        return result;
    }

    std::string key(const std::vector<Value>& values) const {
        std::string result;
        for (const std::string_view column : list_.keys) {
            const auto value =
                std::ranges::find_if(values, [&](const Value& v) { return sameName(v.column, column); });
            const std::string text = value == values.end() ? "" : comparable(value->text.value_or(""));
            if (text.empty() && column == list_.keys.front()) {
                throw ImportError("The column " + std::string(column) +
                                  ", which identifies the record, is empty.");
            }
            result += text + '\0';
        }
        return result;
    }

    void import(const std::vector<Value>& values) {
        Alike& alike = rows_[key(values)];
        const std::size_t which = list_.rowsRepeat ? alike.imported++ : 0;
        if (which < alike.ids.size()) {
            update(alike.ids[which], values);
        } else {
            insert(values);
            alike.ids.push_back(company_.lastInsertId());
        }
    }

    void update(std::int32_t id, const std::vector<Value>& values) {
        std::string changes;
        for (const Value& value : values) {
            if (sameName(value.column, identityColumn)) continue;
            changes += (changes.empty() ? "" : ", ") + bracketed(value.column) + " = " + value.sql();
        }
        company_.execute("UPDATE " + bracketed(list_.name) + " SET " + changes +
                         " WHERE ID = " + std::to_string(id));
    }

    void insert(const std::vector<Value>& values) {
        std::string columns, texts;
        for (const Value& value : values) {
            if (sameName(value.column, identityColumn) && !isFree(value.text.value_or(""))) continue;
            columns += (columns.empty() ? "" : ", ") + bracketed(value.column);
            texts += (texts.empty() ? "" : ", ") + value.sql();
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

    /// The table's rows with equal keys, in order, and the number of them that the file has matched so far.
    struct Alike {
        std::vector<std::int32_t> ids;
        std::size_t imported = 0;
    };

    Company& company_;
    const ImportList& list_;
    std::unordered_map<std::string, Alike> rows_;  // by the texts of their keys
    std::vector<ReferencedRows> referenced_;
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
