#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "workbench/company/Company.h"
#include "workbench/host/ImportLists.h"

namespace tsln::workbench {

/// A column of a record that is imported.
struct ImportValue {
    std::string column;
    std::optional<std::string> text;  ///< none: NULL

    std::string sql() const;
};

/// The value of this column, or the end.
std::vector<ImportValue>::const_iterator findValue(const std::vector<ImportValue>& values,
                                                   std::string_view column);

/// The text in a form that is equal when the database treats texts as equal.
std::string comparable(std::string_view text);

/// The rows that an upgrade from version 4.2 has written, by table and by the identity that they had in the old company.
/// A row that was there before keeps its identity, so the file's references to it are found here only.
class UpgradedRows {
  public:
    void add(std::string_view table, std::string_view identity, std::int32_t ID);
    /// The key of the row; null when there is none.
    const std::string* find(std::string_view table, std::string_view identity) const;

  private:
    std::map<std::string, std::unordered_map<std::string, std::string>, std::less<>> tables_;
};

/// The rows of a referenced table, by their names and, for an upgrade, their identities.
class ReferencedRows {
  public:
    /// `reference` and `upgrade` must outlive the object. `upgrade` is null for an import that is none.
    ReferencedRows(Company& company, const ImportReference& reference, const UpgradedRows* upgrade);

    bool isNamedBy(std::string_view column) const;
    /// The column that holds the identity of the referenced row. In an upgrade the row with it is referred to, if there
    /// is one; otherwise the name counts alone.
    bool isIdentifiedBy(std::string_view column) const;

    /// Replaces names and identity by the key. Does nothing when the record has none of them. A reference that leads to no
    /// row throws ImportError; in an upgrade, one that may be missing becomes NULL.
    void resolve(std::vector<ImportValue>& values) const;

  private:
    const std::string* keyOf(std::string_view identity, std::span<const std::string> names) const;

    const ImportReference& reference_;
    const UpgradedRows* upgrade_;
    std::string identityColumn_;                               // in the file
    std::unordered_map<std::string, std::string> keys_;        // by their names
    std::unordered_map<std::string, std::string> identities_;  // keys by the rows' own identities
};

}  // namespace tsln::workbench
