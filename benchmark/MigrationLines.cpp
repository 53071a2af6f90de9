#include <fstream>
#include <memory>

#include <SQLiteCpp/SQLiteCpp.h>
#include <pugixml.hpp>

#include "automation/FilePath.h"
#include "benchmark/HeapMeter.h"
#include "benchmark/Lines.h"
#include "benchmark/contest/BenchCompany.h"
#include "bridge/Library.h"
#include "doubles/QuietDesktop.h"
#include "migration/MigrateScreen.h"
#include "migration/MigrationRun.h"
#include "migration/QuerySet.h"
#include "resources/TextResources.h"
#include "workbench/company/CompanyFile.h"
#include "workbench/sql/SqlDialect.h"
#include "workbench/sql/SqlFunctions.h"

namespace tsln::bench {
namespace {

constexpr double mostToExport = 2;
constexpr const char* customersSet = "MIGRATEQUERIES42_EMPCUST";

std::string customersStatement() {
    for (const migration::Query& query :
         migration::readQuerySet(resources::text(customersSet).value_or(""))) {
        if (query.section == "Customers") return std::string(query.statement);
    }
    throw std::runtime_error("There is no query for customers.");
}

/// A desktop with the components of a company's host, and a query set of the customers alone.
class ExportDesktop : public test::QuietDesktop {
  public:
    explicit ExportDesktop(workbench::CompanySession& session) : session_(session) {}
    ObjectPtr createObject(std::string_view programId) override {
        if (programId == "tslniee5.Engine") return std::make_shared<Importer>();
        return session_.createObject(programId);
    }
    std::optional<std::string> textResource(std::string_view) override {
        return "Customers|" + customersStatement();
    }

  private:
    /// Takes every document, and imports none.
    class Importer : public Object {
        Variant invoke(std::string_view member, Access, Arguments) override {
            return sameName(member, "ImportFile") ? Variant(true) : Variant();
        }
    };
    workbench::CompanySession& session_;
};

/// An old company with many customers, and what exports it.
struct ExportStage {
    explicit ExportStage(std::size_t customers) {
        workbench::makeCompany42(old, static_cast<int>(customers));
        library->Initialize(bench.session().sharedCode());
    }
    void exportCustomers() {
        migration::MigrateScreen screen(*library);
        if (!migration::MigrationRun(screen).migrate(old, migration::Kind::BaseData))
            throw std::runtime_error("The customers were not exported.");
    }
    /// Reads the rows and writes the same document by a tree.
    void exportBare() const {
        SQLite::Database database(old, SQLite::OPEN_READONLY);
        workbench::addSqlFunctions(database);
        SQLite::Statement rows(database, workbench::translateSql(customersStatement()).sql);
        pugi::xml_document document;
        pugi::xml_node sections = document.append_child("Sections");
        sections.append_attribute("source") = "42upgrade";
        pugi::xml_node section = sections.append_child("Customers");
        while (rows.executeStep()) {
            pugi::xml_node record = section.append_child("Record");
            for (int i = 0; i < rows.getColumnCount(); ++i) {
                if (!rows.getColumn(i).isNull())
                    record.append_child(rows.getColumnName(i)).text() = rows.getColumn(i).getText();
            }
        }
        std::ofstream file(pathOf(folder.file("bare.xml")), std::ios::binary);
        document.save(file, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    }

    test::TempFolder folder{"tessaline-bench-"};
    std::string old = folder.file("old.company");
    BenchCompany bench{0, 0};
    ExportDesktop desktop{bench.session()};
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);
};

}  // namespace

void measureMigration(const Settings& settings, Report& report) {
    {
        ExportStage stage(settings.rows);
        const Contest contest(
            {{"module", [&] { stage.exportCustomers(); }}, {"bare", [&] { stage.exportBare(); }}},
            {.seconds = 20, .leastRounds = 3, .mostRounds = 9});
        report.add(Line{"exporting " + std::to_string(settings.rows) + " customers of version 4.2",
                        "reading them from SQLite and writing the document with pugixml", contest.ratio(0, 1),
                        Line::Goal::AtMost, mostToExport});
        workbench::Company company(stage.old, workbench::OpenMode::Version42);
        const auto text = static_cast<double>(company.read(customersStatement()).size());
        const HeapMeter meter;
        stage.exportCustomers();
        const double peak = static_cast<double>(meter.peak()) / text;
        report.add(Line{
            .what = "memory of that export", .against = "the query's result", .value = {peak, peak, peak}});
    }
    measureGrowth(settings, report, "exporting customers of version 4.2", settings.rows,
                  [](std::size_t rows) {
                      const auto stage = std::make_shared<ExportStage>(rows);
                      return Contestant{"export", [stage] { stage->exportCustomers(); }};
                  });
}

}  // namespace tsln::bench
