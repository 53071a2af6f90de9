#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "automation/Variant.h"

namespace tsln::workbench {

/// Why a company file cannot be used. what() is a sentence for the user; the file is untouched.
class CompanyFileError : public std::runtime_error {
  public:
    enum class Reason { CannotCreate, CannotOpen, NotACompany, Locked, NewerVersion };
    CompanyFileError(Reason reason, const std::string& text) : std::runtime_error(text), reason_(reason) {}
    Reason reason() const noexcept { return reason_; }

  private:
    Reason reason_;
};

/// A statement that the database, or the reader of the SQL Server dialect, refused. what() is its text.
class SqlError : public std::runtime_error {
  public:
    SqlError(int sqlCode, const std::string& text) : std::runtime_error(text), code_(sqlCode) {}
    int code() const noexcept { return code_; }

  private:
    int code_;
};

/// One company's database: an SQLite file that understands the statements written for SQL Server.
///
/// Text compares without letter case. A file opened read-only (by its permissions) can be read; every write
/// then fails with SqlError. Not for use from two threads.
class Company {
  public:
    /// Opens the file, making it with a retailer's demonstration data when it does not exist.
    /// Throws CompanyFileError.
    explicit Company(const std::string& path);
    ~Company();
    Company(const Company&) = delete;
    Company& operator=(const Company&) = delete;

    const std::string& path() const noexcept;
    bool readOnly() const noexcept;

    /// Runs a SELECT and returns its rows as a query result document: "<Records><Record>...</Record></Records>",
    /// a child element per column that is not NULL, carriage return and line feed in values as "&#13;" and
    /// "&#10;" texts. Throws SqlError.
    std::string read(std::string_view sql);
    /// The first column of the first row; Null for a NULL, Empty when there is no row. Throws SqlError.
    Variant scalar(std::string_view sql);
    /// Runs any other statement and returns the number of rows it changed. Throws SqlError.
    std::int64_t execute(std::string_view sql);
    /// The identity value of the row that the last INSERT made.
    std::int32_t lastInsertId() const noexcept;

    /// Runs `work` in one transaction: all of it or, when it throws, nothing.
    template <class F>
    void transaction(F&& work) {
        begin();
        try {
            work();
        } catch (...) {
            rollback();
            throw;
        }
        commit();
    }

  private:
    void begin();
    void commit();
    void rollback() noexcept;

    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace tsln::workbench
