#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "automation/Object.h"

namespace tsln {

/// The rows of a query that was run on a connection, one at a time. Closed in the end.
class Recordset {
  public:
    /// `rows` may be nothing, which has no rows.
    explicit Recordset(ObjectPtr rows) : rows_(std::move(rows)) {}
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    /// It has rows to give; what a statement other than a query returns has not.
    bool isOpen() const;
    bool atEnd() const;
    void next() const;
    /// Of the current row; the database's "no value" is the empty text or 0.
    std::string text(std::string_view field) const;
    std::int32_t number(std::string_view field) const;
    float single(std::string_view field) const;

    std::int32_t fieldCount() const;
    /// A field by its place, from 0: its name, and its value in the current row.
    std::string name(std::int32_t field) const;
    Variant value(std::int32_t field) const;

  private:
    ObjectPtr field(const Variant& which) const;
    Variant value(std::string_view field) const;
    ObjectPtr rows_;
};

/// The company's open connection, an ADO connection of the host's. Every call may raise HostError.
class Connection {
  public:
    /// `connection` must not be nothing.
    explicit Connection(ObjectPtr connection) : connection_(std::move(connection)) {}

    /// Runs a statement; one that fails raises HostError, and what was wrong stands in errors().
    void Execute(std::string_view sql) const;
    Recordset read(std::string_view sql) const;
    /// The descriptions of the errors that the connection reports.
    std::vector<std::string> errors() const;

  private:
    ObjectPtr connection_;
};

}  // namespace tsln
