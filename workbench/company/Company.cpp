#include "workbench/company/Company.h"

#include <cstdint>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "workbench/company/CompanyFile.h"
#include "workbench/company/LockHolder.h"
#include "workbench/company/RecordsXml.h"
#include "workbench/sql/SqlDialect.h"
#include "workbench/sql/SqlSecrets.h"

namespace tsln::workbench {

namespace {

/// Converts an SQLite error, with a message for the user where SQLite's is for programmers.
SqlError toSqlError(const SQLite::Exception& error, const std::string& path) {
    std::string text;
    switch (error.getErrorCode()) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            text = "The company is in use by " + lockHolder(path) + ".";
            break;
        case SQLITE_READONLY:
            text = "The company file can only be read.";
            break;
        case SQLITE_FULL:
            text = "The disk is full.";
            break;
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            text = "The company file is damaged.";
            break;
        case SQLITE_IOERR:
            text = "The company file cannot be read or written (" + std::string(error.what()) + ").";
            break;
        case SQLITE_CANTOPEN:
            text = "The company's folder cannot be written to.";
            break;
        default:
            text = error.what();
    }
    return SqlError(error.getExtendedErrorCode() != 0 ? error.getExtendedErrorCode() : error.getErrorCode(),
                    text);
}

Variant toVariant(const SQLite::Column& column) {
    switch (column.getType()) {
        case SQLITE_NULL:
            return Null{};
        case SQLITE_INTEGER: {
            std::int64_t value = column.getInt64();
            if (value >= INT32_MIN && value <= INT32_MAX) return std::int32_t(value);
            return value;
        }
        case SQLITE_FLOAT:
            return column.getDouble();
        default:
            return column.getString();
    }
}

}  // namespace

struct Company::Impl {
    std::string path;
    std::unique_ptr<SQLite::Database> database;
    bool readOnly = false;
    std::int32_t lastInsertId = 0;

    /// Runs the work of a statement. Its error texts hold no passwords.
    template <class F>
    auto orSqlError(std::string_view sql, F&& work) {
        const auto withoutSecrets = [&](const SqlError& error) {
            return SqlError(error.code(), errorWithoutSecrets(sql, error.what()));
        };
        try {
            return work();
        } catch (const SQLite::Exception& error) {
            throw withoutSecrets(toSqlError(error, path));
        } catch (const SqlError& error) {
            throw withoutSecrets(error);
        }
    }

    SQLite::Statement query(std::string_view sql) {
        SqlTranslation translation = translateSql(sql);
        if (translation.kind != SqlTranslation::Kind::Query) {
            throw SqlError(SQLITE_ERROR, "The statement changes the company and gives no rows to read.");
        }
        return SQLite::Statement(*database, translation.sql);
    }

    /// Runs the statement, calls `onRow` for each row, and returns the number of rows that it changed.
    template <class OnRow>
    std::int64_t run(SQLite::Statement& statement, SqlTranslation::Kind kind, OnRow&& onRow) {
        while (statement.executeStep())
            onRow(statement);
        if (kind == SqlTranslation::Kind::Query) return 0;
        if (kind == SqlTranslation::Kind::Insert) lastInsertId = std::int32_t(database->getLastInsertRowid());
        return database->getChanges();
    }
};

Company::Company(const std::string& path, OpenMode access) : impl_(std::make_unique<Impl>()) {
    impl_->path = path;
    impl_->database = openCompanyFile(path, access);
    impl_->readOnly = sqlite3_db_readonly(impl_->database->getHandle(), "main") == 1;
}

Company::~Company() = default;

const std::string& Company::path() const noexcept {
    return impl_->path;
}
bool Company::readOnly() const noexcept {
    return impl_->readOnly;
}
std::int32_t Company::lastInsertId() const noexcept {
    return impl_->lastInsertId;
}

std::string Company::read(std::string_view sql) {
    return impl_->orSqlError(sql, [&] {
        SQLite::Statement statement = impl_->query(sql);
        return recordsXml(statement);
    });
}

Variant Company::scalar(std::string_view sql) {
    return impl_->orSqlError(sql, [&]() -> Variant {
        SQLite::Statement statement = impl_->query(sql);
        if (!statement.executeStep()) return {};
        return toVariant(statement.getColumn(0));
    });
}

std::int64_t Company::execute(std::string_view sql) {
    return impl_->orSqlError(sql, [&] {
        const SqlTranslation translation = translateSql(sql);
        SQLite::Statement statement(*impl_->database, translation.sql);
        return impl_->run(statement, translation.kind, [](SQLite::Statement&) {});
    });
}

SqlResult Company::run(std::string_view sql) {
    return impl_->orSqlError(sql, [&] {
        const SqlTranslation translation = translateSql(sql);
        SQLite::Statement statement(*impl_->database, translation.sql);
        SqlResult result{.isQuery = translation.kind == SqlTranslation::Kind::Query};
        if (result.isQuery) {
            for (int i = 0; i < statement.getColumnCount(); ++i)
                result.columns.push_back(statement.getColumnName(i));
        }
        result.changed = impl_->run(statement, translation.kind, [&](SQLite::Statement& row) {
            std::vector<Variant>& values = result.rows.emplace_back();
            for (int i = 0; i < row.getColumnCount(); ++i)
                values.push_back(toVariant(row.getColumn(i)));
        });
        return result;
    });
}

void Company::begin() {
    if (inTransaction()) throw SqlError(SQLITE_ERROR, "A transaction is already open.");
    impl_->orSqlError("BEGIN", [&] { impl_->database->exec("BEGIN IMMEDIATE"); });
}

void Company::commit() {
    if (!inTransaction()) throw SqlError(SQLITE_ERROR, "No transaction is open.");
    try {
        impl_->orSqlError("COMMIT", [&] { impl_->database->exec("COMMIT"); });
    } catch (...) {
        rollback();
        throw;
    }
}

void Company::rollback() noexcept {
    // A rollback fails only when SQLite has already rolled back.
    impl_->database->tryExec("ROLLBACK");
}

bool Company::inTransaction() const noexcept {
    return sqlite3_get_autocommit(impl_->database->getHandle()) == 0;
}

}  // namespace tsln::workbench
