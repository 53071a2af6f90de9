#include "workbench/agent/SyncRequests.h"

#include <algorithm>
#include <filesystem>
#include <thread>

#include <SQLiteCpp/SQLiteCpp.h>

#include "automation/DateText.h"
#include "automation/FilePath.h"
#include "bridge/SyncState.h"
#include "workbench/company/CompanyFile.h"
#include "workbench/host/EventLog.h"
#include "workbench/host/HostDate.h"
#include "workbench/host/OptionStore.h"
#include "workbench/sql/SqlText.h"

namespace tsln::workbench {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view optionSection = "Roaming Workstations";
const std::string appVersion = "5.0.118";

std::int32_t stateOf(Company& company) {
    const Variant state = company.scalar("SELECT SyncState FROM Company");
    return state.isEmpty() ? NotSetUp : state.toLong();
}

void setState(Company& company, std::int32_t state) {
    company.execute("UPDATE Company SET SyncState = " + std::to_string(state));
}

std::string identityOf(Company& company) {
    const Variant code = company.scalar("SELECT UniqueID FROM Company");
    return code.isText() ? code.toText() : std::string();
}

bool isSet(Company& company, std::string_view option) {
    const auto value = OptionStore(company).get({}, {option, optionSection});
    return value && *value != "0" && !value->empty();
}

/// Returns the path of the company that has a roaming workstation with the identity code, another one than `own` if
/// possible; empty when there is none.
std::string mainCompanyOf(const std::string& own, const std::string& identity,
                          const std::vector<std::string>& companies) {
    std::string found;
    for (const std::string& path : companies) {
        Company company(path, OpenMode::ReadOnly);
        const bool knows =
            company.scalar("SELECT COUNT(*) FROM RoamingWorkstations WHERE UniqueID = " + literal(identity))
                .toLong() > 0;
        if (knows && path != own) return path;
        if (knows) found = path;
    }
    return found;
}

/// Copies the rows of every table that is empty in `to`.
void fillEmptyTables(const std::string& to, const std::string& from) {
    const auto database = openCompanyFile(to, OpenMode::ReadWrite);
    SQLite::Statement attach(*database, "ATTACH DATABASE ? AS main_company");
    attach.bind(1, from);
    attach.exec();

    std::vector<std::string> tables;
    SQLite::Statement names(
        *database,
        "SELECT name FROM main.sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%' "
        "AND name <> 'EventLog' AND name IN (SELECT name FROM main_company.sqlite_schema)");
    while (names.executeStep())
        tables.push_back(names.getColumn(0).getString());

    SQLite::Transaction transaction(*database);
    for (const std::string& table : tables) {
        if (database->execAndGet("SELECT EXISTS (SELECT 1 FROM main.\"" + table + "\")").getInt() != 0)
            continue;
        const std::string columns =
            database
                ->execAndGet("SELECT group_concat('\"' || name || '\"') FROM pragma_table_info('" + table +
                             "', 'main')")
                .getString();
        std::string copy = "INSERT INTO main.\"";
        copy.append(table).append("\" (").append(columns).append(") SELECT ").append(columns);
        database->exec(copy.append(" FROM main_company.\"").append(table).append("\""));
    }
    transaction.commit();
}

/// Waits for one step. Returns false when the agent is told to stop.
bool waitStep(Company& company, std::chrono::milliseconds step) {
    std::this_thread::sleep_for(step);
    return !isSet(company, "StopSync");
}

void finishInitialSync(Company& company, const std::string& mainPath, const std::string& identity) {
    const std::string own = company.path();
    std::string mainIdentity = identity;
    if (mainPath != own) {
        fillEmptyTables(own, mainPath);
        mainIdentity = [&] {
            Company main(mainPath, OpenMode::ReadOnly);
            return identityOf(main);
        }();
    }
    const std::string now = literal(sqlDateText(tsln::now()));
    Company(mainPath, OpenMode::ReadWrite)
        .execute("UPDATE RoamingWorkstations SET SyncState = " + std::to_string(InSync) +
                 ", LastSentTo = " + now + ", LastReceivedFrom = " + now + ", LastKnownAppVersion = '" +
                 appVersion + "' WHERE UniqueID = " + literal(identity));
    company.execute(
        "UPDATE Company SET SyncState = " + std::to_string(InSync) +
        ", NextSequenceToMain = 1, NextSequenceFromMain = 1, MainUniqueID = " + literal(mainIdentity));
}

bool carryOutInitialSync(Company& company, const std::vector<std::string>& companies,
                         std::chrono::milliseconds step) {
    EventLog log(company, "");
    const bool verbose = isSet(company, "DebugSyncAgent");
    for (const std::int32_t state : {InitialSyncSent, InitialSyncReceived}) {
        if (!waitStep(company, step)) return true;
        setState(company, state);
        if (verbose) log.record(EventLog::Notice, "Sync agent: state " + std::to_string(state), "Sync agent");
    }
    if (!waitStep(company, step)) return true;
    const std::string identity = identityOf(company);
    const std::string mainPath = mainCompanyOf(company.path(), identity, companies);
    if (mainPath.empty()) {
        setState(company, NotSetUp);
        log.record(EventLog::Error,
                   "No main company knows the identity code " + identity + ". The initial sync was refused.",
                   "Sync agent");
        return false;
    }
    finishInitialSync(company, mainPath, identity);
    log.record(EventLog::Notice, "The initial sync was completed.", "Sync agent");
    return true;
}

}  // namespace

std::vector<std::string> companiesIn(const std::string& folder) {
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator entry(pathOf(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string path = utf8Of(entry->path());
        try {
            const Company company(path, OpenMode::ReadOnly);
            paths.push_back(path);
        } catch (const CompanyFileError&) {
            // Another kind of file.
        }
    }
    std::ranges::sort(paths);
    return paths;
}

bool carryOutRequest(const std::string& path, const std::vector<std::string>& companies,
                     std::chrono::milliseconds step) {
    Company company(path, OpenMode::ReadWrite);
    const std::int32_t state = stateOf(company);
    if (state >= InitialSyncRequested && state < InSync) return carryOutInitialSync(company, companies, step);
    if (state == ResetRequested && waitStep(company, step)) {
        company.execute("UPDATE Company SET SyncState = " + std::to_string(InSync) +
                        ", ResetRequestedOn = NULL");
        EventLog(company, "").record(EventLog::Notice, "The sync state was reset.", "Sync agent");
    }
    return true;
}

}  // namespace tsln::workbench
