#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/sql/SqlRewriter.h"
#include "workbench/sql/SqlVocabulary.h"

namespace tsln::workbench {

/// Translates values and conditions. The translator of SELECT translates the subqueries in them.
class SqlExpressions : public SqlRewriter {
  protected:
    using SqlRewriter::SqlRewriter;
    virtual ~SqlExpressions() = default;

    void condition() { needs(Gives::Condition, either()); }
    void value() { needs(Gives::Value, sum()); }

    virtual void select() = 0;

  private:
    /// The server accepts neither a condition as a value nor a value as a condition.
    enum class Gives { Value, Condition };
    void needs(Gives wanted, Gives given) const;

    // From the lowest to the highest precedence.
    Gives either();
    Gives conjunction();
    Gives negation();
    Gives predicate();
    Gives sum();
    Gives product();
    Gives sign();
    Gives primary();

    bool comparison(Gives left);
    void choice();
    void column();
    void insertOpening(std::size_t start, std::vector<std::string_view> innermostFirst);

    // Calls (SqlExpressionCalls.cpp).
    void call();
    void databaseCall();
    void arguments(const SqlFunction& function, const std::string& name);
    void dateCall(std::string_view target, int values);
    void conditional();
    void cast();
    void convert();
    void conversionEnd(const SqlType& type, std::optional<int> style);
    SqlType type();
    int typeNumber();
};

}  // namespace tsln::workbench
