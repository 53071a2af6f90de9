#pragma once

#include <optional>
#include <string>

#include "workbench/sql/SqlExpressions.h"

namespace tsln::workbench {

/// Translates SELECT and its FROM clause.
class SqlSelect : public SqlExpressions {
  protected:
    using SqlExpressions::SqlExpressions;

    /// Translates from the word SELECT to the end of ORDER BY.
    void select() override;
    /// Translates the name of a table or view, with or without "dbo.". Returns the name.
    std::string table();
    /// Translates the WHERE clause, when there is one.
    void where();

  private:
    std::optional<std::string> selectCore();
    std::optional<std::string> top();
    void closeBranch(std::size_t start, const std::optional<std::string>& limit);
    void selectItem();
    void joinedTables();
    void tableSource();
    bool alias();
};

}  // namespace tsln::workbench
