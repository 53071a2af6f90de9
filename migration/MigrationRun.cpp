#include "migration/MigrationRun.h"

#include <limits>
#include <system_error>

#include "migration/ExportFile.h"
#include "migration/OldCompany.h"
#include "migration/QuerySet.h"
#include "migration/ReportFiles.h"
#include "shared/RecordTexts.h"
#include "shared/modSharedSQL.h"

namespace tsln::migration {
namespace {

using modSharedSQL::doubleQuotes;
using modSharedSQL::format;

constexpr std::string_view baseData = "MIGRATEQUERIES42_BASEDATA";
constexpr std::string_view employeesAndCustomers = "MIGRATEQUERIES42_EMPCUST";

/// Sets a property that only shows the progress: the import works without it.
void offer(const Component& engine, std::string_view property, const Variant& value) {
    try {
        engine->put(property, value);
    } catch (const HostError&) {
    }
}

}  // namespace

MigrationRun::MigrationRun(MigrateScreen& screen)
    : screen_(screen), job_(screen, 0, &screen.ProgressBar1, &screen.cmdCancel) {
    job_.onCancel = [this] { requestCancel(); };
    screen_.ProgressBar1.onAdvanced = [this] { job_.goOn(); };
}

MigrationRun::~MigrationRun() {
    screen_.ProgressBar1.onAdvanced = nullptr;
}

void MigrationRun::requestCancel() noexcept {
    try {
        if (engine_) engine_->call("RequestCancel");
    } catch (const std::exception&) {
        // The engine ends its file then, and the migration ends after it.
    }
}

bool MigrationRun::fail(std::string_view code) const {
    screen_.tell(code, MessageIcon::None);
    return false;
}

void MigrationRun::record(const std::string& failure) const noexcept {
    try {
        screen_.host().RecordEvent("Migration from version 4.2: " + failure);
    } catch (const std::exception&) {
        // A failure to log must not replace the failure being logged.
    }
}

bool MigrationRun::migrate(const std::string& sourceCompany, Kind kind) {
    if (kind != Kind::BaseData && kind != Kind::WithCustomers) return false;
    std::optional<CompanyManager> manager;
    try {
        manager.emplace(screen_.desktop());
        if (!manager->load(sourceCompany)) return false;
    } catch (const HostError& error) {
        record(error.text());
        return false;
    }
    if (job_.cancelled()) return false;
    const auto connection = manager->connectionString();
    if (!connection) {
        screen_.tell("The TSLN 4.2 company file cannot be opened.", MessageIcon::Critical);
        return false;
    }
    return import(sourceCompany, *connection, kind);
}

bool MigrationRun::import(const std::string& sourceCompany, const std::string& connectionString, Kind kind) {
    const Component engine(screen_.desktop().createObject("tslniee5.Engine"), screen_.host());
    // Without this, the engine would take the file for one of another company of this version.
    engine->put("Is42Upgrade", true);
    offer(engine, "Verbose", true);
    offer(engine, "ProgressLabel", screen_.lblStatus.automation());
    offer(engine, "ProgressBar", screen_.ProgressBar1.automation());

    struct Reachable {
        Object*& pointer;
        ~Reachable() { pointer = nullptr; }
    } const reachable{engine_};
    engine_ = engine.operator->();
    return migrateSet(baseData, connectionString) && createTaxGroups() && copyReports(sourceCompany) &&
           (kind == Kind::BaseData || migrateSet(employeesAndCustomers, connectionString));
}

bool MigrationRun::migrateSet(std::string_view resource, const std::string& connectionString) {
    screen_.lblStatus.setCaption("Initializing...");
    if (!job_.goOn()) return false;
    std::optional<ExportFile> file;
    try {
        file.emplace();
    } catch (const std::system_error& error) {
        record(error.what());
        return fail("Errror 20");  // so spelled on purpose, like "Errror 25"
    }
    const std::string queries = screen_.desktop().textResource(resource).value_or("");
    if (!queries.empty()) {
        screen_.lblStatus.setCaption("Exporting base data...");
        try {
            if (!exportSet(queries, connectionString, *file)) return false;
        } catch (const std::system_error& error) {
            // A document that could not be written completely counts as one without data: none of it is imported.
            record(error.what());
            return fail("Errror 25");
        }
    }
    return importFile(*file);
}

// Export ----------------------------------------------------------------------------------------------

/// A statement's export fails with one message box, which tells whether the engine is missing, does not open the company,
/// or fails to run the statement.
bool MigrationRun::exportSet(std::string_view queries, const std::string& connectionString,
                             ExportFile& file) {
    std::optional<OldCompany> company;
    for (const Query& query : readQuerySet(queries)) {
        screen_.lblStatus.setCaption("Exporting: " + std::string(query.section));
        if (!job_.goOn()) return false;
        if (!company) {
            try {
                company.emplace(screen_.desktop());
            } catch (const HostError& error) {
                record(error.text());
                return fail("Error 30");
            }
            if (!company->connect(connectionString)) return fail("Error 31");
        }
        try {
            if (!exportSection(*company, query, file)) return false;
        } catch (const HostError& error) {
            record(std::string(query.section) + ": " + error.text());
            return fail("Error 21");
        }
    }
    return true;
}

bool MigrationRun::exportSection(const OldCompany& company, const Query& query, ExportFile& file) {
    modSharedXML::RecordTexts records(company.read(query.statement));
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    screen_.ProgressBar1.setValue(0);
    screen_.ProgressBar1.setRange(0, static_cast<std::int32_t>(std::min(records.expectedRows(), most)));
    file.begin(query.section);
    while (const auto record = records.next()) {
        file.add(*record);
        if (!job_.step()) return false;
    }
    return true;
}

// Import ----------------------------------------------------------------------------------------------

bool MigrationRun::importFile(ExportFile& file) {
    if (!job_.goOn()) return false;
    screen_.lblStatus.setCaption("Importing base data...");
    bool hasData = false;
    try {
        hasData = file.finish() > ExportFile::emptyLength;
    } catch (const std::system_error& error) {
        record(error.what());
    }
    if (!hasData) return fail("Errror 25");
    bool imported = false;
    try {
        imported = engine_->call("ImportFile", file.path()).toBoolean();
    } catch (const HostError& error) {
        record(error.text());
    }
    // An import that the user has cancelled has not failed.
    if (job_.cancelled()) return false;
    return imported || fail("Error 50");
}

// Tax groups and report files -------------------------------------------------------------------------

/// Version 4.2 has tax codes, but no groups of them: each code gets a group of its own name. A code that gets none does
/// not keep the others from theirs, but the step has failed then.
bool MigrationRun::createTaxGroups() {
    Records codes;
    try {
        codes = screen_.host().database().ExecuteRead("SELECT * FROM SalesTaxCodes");
    } catch (const HostError& error) {
        record("The sales tax codes cannot be read. " + error.text());
        return false;
    }
    bool complete = true;
    for (const Record row : codes) {
        if (!job_.goOn()) return false;
        const std::string name = modSharedXML::readText("Code", row);
        try {
            if (createTaxGroup(name, modSharedXML::readLong("ID", row))) continue;
            record("The sales tax group '" + name + "' cannot be created.");
        } catch (const HostError& error) {
            record("The sales tax group '" + name + "' cannot be created. " + error.text());
        }
        complete = false;
    }
    return complete;
}

bool MigrationRun::createTaxGroup(const std::string& codeName, std::int32_t codeID) {
    const Database database = screen_.host().database();
    const std::string name = doubleQuotes(codeName);
    const std::int32_t count = countOf(database.ExecuteScaler(
        format("SELECT COUNT(*) AS theCount FROM SalesTaxGroups WHERE SalesTaxGroup = '{0}'", name)));
    if (count > 0) return true;
    const std::int32_t group = database.ExecuteNonQueryWithID(
        format("INSERT INTO SalesTaxGroups (SalesTaxGroup) VALUES('{0}')", name));
    return group > 0 &&
           database.ExecuteNonQuery(
               format("INSERT INTO SalesTaxGroupCodes (SalesTaxGroupID, SalesTaxCodeID) VALUES({0},{1})",
                      group, codeID));
}

/// Reports without their pictures still print, so nothing that fails here fails the migration.
bool MigrationRun::copyReports(const std::string& sourceCompany) {
    if (!job_.goOn()) return false;
    try {
        copyReportFiles(sourceCompany, screen_.host().options().UserFileLocation("Reports"),
                        [this] { return job_.goOn(); });
    } catch (const std::exception& error) {
        record("The report files cannot be copied. " + std::string(error.what()));
    }
    return !job_.cancelled();
}

}  // namespace tsln::migration
