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

/// Why a company file cannot be used. what() is a sentence for the user; the file is untouched.
class CompanyFileError : public std::runtime_error {
  public:
    enum class Reason { CannotCreate, CannotOpen, NotACompany, Locked, NewerVersion, OlderVersion };
    CompanyFileError(Reason reason, const std::string& text) : std::runtime_error(text), reason_(reason) {}
    Reason reason() const noexcept { return reason_; }

  private:
    Reason reason_;
};

/// What a statement gave: a query its rows, any other the number of rows it changed.
struct SqlResult {
    bool isQuery = false;
    std::vector<std::string> columns;
    std::vector<std::vector<Variant>> rows;  ///< values as Company::scalar gives them
    std::int64_t changed = 0;
};

/// What opening a company may do to its file.
enum class OpenMode {
    Create,     ///< read and write; made when it does not exist
    ReadWrite,  ///< read and write; it must exist
    ReadOnly,   ///< read only; it must exist
};

/// One company's database: an SQLite file that understands the statements written for SQL Server.
///
/// Text compares without letter case and without blanks at its end. A file opened read-only (by its
/// permissions or by its OpenMode) can be read; every write then fails with SqlError. When another program
/// holds the file, a statement waits two seconds before it fails. Not for use from two threads.
class Company {
  public:
    /// Opens the file, making it with a retailer's demonstration data when it does not exist and `access`
    /// lets it. A file made comes into being whole or not at all; one of an older version is brought up to
    /// date, its rows as they were. Throws CompanyFileError.
    explicit Company(const std::string& path, OpenMode access = OpenMode::Create);
    ~Company();
    Company(const Company&) = delete;
    Company& operator=(const Company&) = delete;

    const std::string& path() const noexcept;
    bool readOnly() const noexcept;

    /// Runs a SELECT and returns its rows as a query result document:
    /// "<Records><Record>...</Record></Records>", a child element per column that is not NULL, carriage
    /// return and line feed in values as "&#13;" and "&#10;" texts. Columns of the same name follow each
    /// other; a character of a column's name that no element name may have becomes "_xHHHH_". Numbers have a
    /// point, dates are "YYYY-MM-DDTHH:MM:SS", bytes are hexadecimal; a character that XML cannot hold
    /// becomes U+FFFD. Throws SqlError.
    std::string read(std::string_view sql);
    /// The first column of the first row: a Long (a 64-bit number when it is too large for one), a Double,
    /// text (of bytes hexadecimal); Null for a NULL, Empty when there is no row. Throws SqlError.
    Variant scalar(std::string_view sql);
    /// Runs any statement, drops what rows it gives, and returns the number of rows it changed. Throws
    /// SqlError.
    std::int64_t execute(std::string_view sql);
    /// Runs any statement and keeps what it gives. Throws SqlError.
    SqlResult run(std::string_view sql);
    /// The identity value of the row that the last INSERT made; 0 before the first.
    std::int32_t lastInsertId() const noexcept;

    // A transaction that others end. There is one at a time; nothing of it stays when the company is closed
    // before the commit.

    /// Throws SqlError, also when a transaction is open.
    void begin();
    /// Throws SqlError when there is nothing to commit, or it cannot be: all is taken back then.
    void commit();
    /// Takes back what was done since begin(). Nothing happens without a transaction.
    void rollback() noexcept;
    bool inTransaction() const noexcept;

    /// Runs `work` in one transaction: all of it or, when it throws, nothing. Not to be nested. Throws
    /// SqlError and whatever `work` throws.
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
