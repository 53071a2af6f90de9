#pragma once

#include <optional>
#include <string>

#include "workbench/sql/SqlExpressions.h"

namespace tsln::workbench {

/// Translates SELECT with its sources.
class SqlSelect : public SqlExpressions {
  protected:
    using SqlExpressions::SqlExpressions;

    /// From the word SELECT to the end of ORDER BY.
    void select() override;
    /// A table or view, with or without "dbo.". Returns its name.
    std::string table();
    /// The WHERE part, when there is one.
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
