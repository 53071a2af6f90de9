#include "workbench/company/CompanyFile.h"

#include <filesystem>
#include <system_error>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "automation/FilePath.h"
#include "workbench/company/LockHolder.h"
#include "workbench/company/NewFile.h"
#include "workbench/company/Schema.h"
#include "workbench/sql/SqlFunctions.h"

namespace tsln::workbench {

namespace {

namespace fs = std::filesystem;

using Reason = CompanyFileError::Reason;

std::string quoted(const std::string& path) {
    return "'" + path + "'";
}

/// Builds the new company in memory and writes it at once, so that a file with this name is always complete.
template <class Fill>
void create(const std::string& path, Fill&& fill) {
    SQLite::Database memory(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    addSqlFunctions(memory);
    fill(memory);
    sqlite3_int64 size = 0;
    std::unique_ptr<unsigned char, decltype(&sqlite3_free)> image(
        sqlite3_serialize(memory.getHandle(), "main", &size, 0), sqlite3_free);
    if (!image) throw std::bad_alloc();

    const std::string failure = writeNewFile(path, image.get(), std::size_t(size));
    if (!failure.empty()) {
        throw CompanyFileError(Reason::CannotCreate,
                               "The company file " + quoted(path) + " cannot be made. " + failure);
    }
}

[[noreturn]] void reportOpenFailure(const std::string& path, const SQLite::Exception& error) {
    std::string file = "The file " + quoted(path);
    switch (error.getErrorCode()) {
        case SQLITE_NOTADB:
            throw CompanyFileError(Reason::NotACompany, file + " is not a company file.");
        case SQLITE_CORRUPT:
            throw CompanyFileError(Reason::NotACompany, file + " is damaged and cannot be opened.");
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw CompanyFileError(Reason::Locked, "The company file " + quoted(path) + " is in use by " +
                                                       lockHolder(path) + ". Try again in a moment.");
        case SQLITE_READONLY:  // its journal cannot be played back
            throw CompanyFileError(
                Reason::CannotOpen,
                "The company file " + quoted(path) +
                    " was not closed properly: work in it was cut off and must be undone. Open it once where it can be written.");
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
        case SQLITE_AUTH:
            throw CompanyFileError(Reason::CannotOpen,
                                   file + " cannot be opened. You may not have the permission.");
        default:
            throw CompanyFileError(Reason::CannotOpen, file + " cannot be opened: " + error.what() + ".");
    }
}

int pragma(SQLite::Database& database, const char* name) {
    return database.execAndGet("PRAGMA " + std::string(name)).getInt();
}

void checkIsCompany42(SQLite::Database& database, const std::string& path) {
    if (pragma(database, "application_id") == schema::applicationId42) return;
    throw CompanyFileError(Reason::NotACompany,
                           "The file " + quoted(path) + " is a database, but not a company of version 4.2.");
}

void checkIsCompany(SQLite::Database& database, const std::string& path) {
    if (pragma(database, "application_id") != schema::applicationId) {
        throw CompanyFileError(Reason::NotACompany,
                               "The file " + quoted(path) + " is a database, but not a company.");
    }
    int version = pragma(database, "user_version");
    if (version > schema::version) {
        throw CompanyFileError(
            Reason::NewerVersion,
            "The company file " + quoted(path) +
                " was made by a newer version of this program, which is needed to open it.");
    }
    if (version < schema::oldestVersion) {
        throw CompanyFileError(Reason::NotACompany,
                               "The company file " + quoted(path) +
                                   " was made by a version of this program that is no longer known.");
    }
}

/// Upgrades a company of an older version, which must be writable.
void upgrade(SQLite::Database& database, const std::string& path) {
    if (pragma(database, "user_version") >= schema::version) return;
    const std::string file =
        "The company file " + quoted(path) + " was made by an older version of this program";
    if (sqlite3_db_readonly(database.getHandle(), "main") != 0) {
        throw CompanyFileError(
            Reason::OlderVersion,
            file +
                " and must be brought up to date, but it can only be read. Open it once where it can be written.");
    }
    try {
        schema::upgrade(database);
    } catch (const SQLite::Exception& failure) {
        const int code = failure.getErrorCode();
        if (code == SQLITE_BUSY || code == SQLITE_LOCKED) throw;
        throw CompanyFileError(Reason::OlderVersion, file + " and cannot be brought up to date: " +
                                                         failure.what() + ". It is unchanged.");
    }
}

void checkIsFile(const std::string& path) {
    std::error_code error;
    fs::file_status status = fs::status(pathOf(path), error);
    std::string file = "The company file " + quoted(path);
    if (status.type() == fs::file_type::not_found)
        throw CompanyFileError(Reason::CannotOpen, file + " does not exist.");
    if (status.type() == fs::file_type::directory) {
        throw CompanyFileError(Reason::CannotOpen, quoted(path) + " is a folder, not a company file.");
    }
    if (status.type() == fs::file_type::none) {
        throw CompanyFileError(Reason::CannotOpen, file + " cannot be opened. " + error.message() + ".");
    }
    // Opening a pipe would block until its other end is opened.
    if (status.type() != fs::file_type::regular) {
        throw CompanyFileError(Reason::NotACompany, quoted(path) + " is not a company file.");
    }
}

}  // namespace

std::unique_ptr<SQLite::Database> openCompanyFile(const std::string& path, OpenMode access) {
    if (path.empty()) throw CompanyFileError(Reason::CannotOpen, "No company file was named.");
    std::error_code error;
    if (access == OpenMode::Create &&
        fs::symlink_status(pathOf(path), error).type() == fs::file_type::not_found)
        create(path, schema::create);
    checkIsFile(path);

    // An absolute path, because SQLite gives some names a meaning, such as ":memory:".
    std::string file = utf8Of(fs::absolute(pathOf(path), error));
    const bool version42 = access == OpenMode::Version42;
    const int flags =
        version42 || access == OpenMode::ReadOnly ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE;
    try {
        auto database = std::make_unique<SQLite::Database>(error ? path : file, flags, busySeconds * 1000);
        version42 ? checkIsCompany42(*database, path) : checkIsCompany(*database, path);
        // A name in double quotes must not be read as a text when no such column exists.
        sqlite3_db_config(database->getHandle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        addSqlFunctions(*database);
        if (!version42) upgrade(*database, path);
        return database;
    } catch (const SQLite::Exception& failure) {
        reportOpenFailure(path, failure);
    }
}

void makeCompany42(const std::string& path, int customers) {
    std::error_code error;
    if (fs::exists(fs::symlink_status(pathOf(path), error))) {
        throw CompanyFileError(Reason::CannotCreate,
                               "The company file " + quoted(path) + " cannot be made. The file exists.");
    }
    create(path, [customers](SQLite::Database& database) { schema::create42(database, customers); });
}

}  // namespace tsln::workbench
