#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Object.h"

namespace tsln {

/// The rows of a query that was run on a connection, one at a time. The destructor closes it.
class Recordset {
  public:
    /// `rows` may be null: a recordset without rows.
    explicit Recordset(ObjectPtr rows) : rows_(std::move(rows)) {}
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    /// True when it has rows to read. The result of a statement other than a query is not open.
    bool isOpen() const;
    bool atEnd() const;
    void next() const;
    /// The value in the current row. A NULL reads as the empty text or 0.
    std::string text(std::string_view field) const;
    std::int32_t number(std::string_view field) const;
    float single(std::string_view field) const;

    std::int32_t fieldCount() const;
    /// The name of a field, by its index from 0, and its value in the current row.
    std::string name(std::int32_t field) const;
    Variant value(std::int32_t field) const;

  private:
    ObjectPtr field(const Variant& which) const;
    Variant value(std::string_view field) const;
    ObjectPtr rows_;
};

/// The company's open connection, an ADO connection of the host. Every call may raise HostError.
class Connection {
  public:
    /// `connection` must not be null.
    explicit Connection(ObjectPtr connection) : connection_(std::move(connection)) {}

    /// Runs a statement. A failure raises HostError; errors() describes it.
    void Execute(std::string_view sql) const;
    /// Runs a statement and returns how many rows it changed; nothing when the connection does not tell.
    std::optional<std::int32_t> ExecuteCounting(std::string_view sql) const;
    Recordset read(std::string_view sql) const;
    /// A property of the connection, such as "DefaultDatabase".
    Variant property(std::string_view name) const;
    /// The descriptions of the errors that the connection reports.
    std::vector<std::string> errors() const;
    const ObjectPtr& object() const noexcept { return connection_; }

  private:
    ObjectPtr connection_;
};

}  // namespace tsln
