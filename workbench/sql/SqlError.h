#pragma once

#include <stdexcept>
#include <string>

namespace tsln::workbench {

/// A statement was refused by the database or by the translator of the SQL Server dialect. what() gives the reason.
class SqlError : public std::runtime_error {
  public:
    /// `sqlCode` is an SQLite result code.
    SqlError(int sqlCode, const std::string& text) : std::runtime_error(text), code_(sqlCode) {}
    int code() const noexcept { return code_; }

  private:
    int code_;
};

}  // namespace tsln::workbench
