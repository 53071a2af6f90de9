#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Variant.h"
#include "workbench/sql/SqlError.h"

namespace tsln::workbench {

/// A company file that cannot be used. what() is a sentence for the user. The file is unchanged.
class CompanyFileError : public std::runtime_error {
  public:
    enum class Reason { CannotCreate, CannotOpen, NotACompany, Locked, NewerVersion, OlderVersion };
    CompanyFileError(Reason reason, const std::string& text) : std::runtime_error(text), reason_(reason) {}
    Reason reason() const noexcept { return reason_; }

  private:
    Reason reason_;
};

/// The result of a statement: the rows of a query, or the number of changed rows.
struct SqlResult {
    bool isQuery = false;
    std::vector<std::string> columns;
    std::vector<std::vector<Variant>> rows;  ///< values as returned by Company::scalar()
    std::int64_t changed = 0;
};

/// The access to a company file.
enum class OpenMode {
    Create,     ///< read and write; a missing file is created
    ReadWrite,  ///< read and write; the file must exist
    ReadOnly,   ///< read only; the file must exist
    Version42,  ///< read only; the file must exist and be a company of version 4.2, with the tables of that version
};

/// A company's database: an SQLite file that accepts the statements written for SQL Server.
///
/// Text compares without letter case and without trailing blanks. A file opened for reading only (because of its
/// permissions or its OpenMode) can be read; every write fails with SqlError. While another program locks the file, a
/// statement waits two seconds before it fails. Not thread-safe.
class Company {
  public:
    /// Opens the file. When it does not exist and `access` allows it, creates it with a retailer's demonstration
    /// data, completely or not at all. A file of an older version is upgraded; its rows are kept. Throws
    /// CompanyFileError.
    explicit Company(const std::string& path, OpenMode access = OpenMode::Create);
    ~Company();
    Company(const Company&) = delete;
    Company& operator=(const Company&) = delete;

    const std::string& path() const noexcept;
    bool readOnly() const noexcept;

    /// Runs a SELECT and returns its rows as a query result document: "<Records><Record>...</Record></Records>", with
    /// a child element per column that is not NULL. Carriage return and line feed in values are the texts "&#13;" and
    /// "&#10;". Columns with equal names follow each other. A character that is invalid in an element's name becomes
    /// "_xHHHH_". Numbers have a decimal point, dates are "YYYY-MM-DDTHH:MM:SS", bytes are hexadecimal. A character
    /// that XML cannot represent becomes U+FFFD. Throws SqlError.
    std::string read(std::string_view sql);
    /// Returns the first column of the first row: a Long (or a 64-bit number), a Double, or text (hexadecimal for
    /// bytes); Null for a NULL, Empty without a row. Throws SqlError.
    Variant scalar(std::string_view sql);
    /// Runs any statement, ignores its rows, and returns the number of rows it changed. Throws SqlError.
    std::int64_t execute(std::string_view sql);
    /// Runs any statement and returns its result. Throws SqlError.
    SqlResult run(std::string_view sql);
    /// The identity value of the row that the last INSERT added, 0 before the first INSERT.
    std::int32_t lastInsertId() const noexcept;

    // A transaction with an explicit end. There is at most one. Closing the company before the commit rolls it back.

    /// Throws SqlError, also when a transaction is open.
    void begin();
    /// Throws SqlError without a transaction, and after a failed commit, which rolls the transaction back.
    void commit();
    /// Undoes all changes since begin(). Does nothing without a transaction.
    void rollback() noexcept;
    bool inTransaction() const noexcept;

    /// Runs `work` in one transaction, which is rolled back when `work` throws. Cannot be nested. Throws SqlError and
    /// the exceptions of `work`.
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
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace tsln::workbench
