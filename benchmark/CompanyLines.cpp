#include <SQLiteCpp/SQLiteCpp.h>

#include "benchmark/BenchList.h"
#include "benchmark/Lines.h"
#include "benchmark/contest/BareList.h"
#include "benchmark/contest/BenchCompany.h"
#include "benchmark/contest/SampleRows.h"
#include "maintenance/ListRows.h"
#include "lists/Lists.h"
#include "doubles/QuietDesktop.h"
#include "workbench/company/CompanyFile.h"
#include "workbench/sql/SqlDialect.h"

namespace tsln::bench {
namespace {

constexpr double mostToParts = 2;

/// A list screen over a company, without windows.
struct Stage {
    Stage(BenchCompany& company, const ListDescription& list) : screen(*library, list) {
        library->Initialize(company.session().sharedCode());
        screen.load();
    }
    test::QuietDesktop desktop;
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);
    BenchList screen;
};

/// Reads all values of all rows from the database, as text.
std::size_t readBySqlite(SQLite::Database& database, const std::string& sql) {
    SQLite::Statement statement(database, sql);
    std::size_t bytes = 0;
    while (statement.executeStep()) {
        for (int i = 0; i < statement.getColumnCount(); ++i) {
            const SQLite::Column column = statement.getColumn(i);
            if (column.getText() != nullptr) bytes += static_cast<std::size_t>(column.getBytes());
        }
    }
    return bytes;
}

void measureLoad(Report& report, const std::string& what, BenchCompany& company,
                 const ListDescription& list, const std::string& ownStatement = "") {
    Stage stage(company, list);
    stage.screen.statement = ownStatement;
    const std::string statement = stage.screen.loadStatement();
    const std::string sql = workbench::translateSql(statement).sql;
    const auto database = workbench::openCompanyFile(company.file(), workbench::OpenMode::ReadOnly);
    const std::string text = company.session().company().read(statement);
    BareList bare(list.columns);
    std::string copy;

    const Contest contest({{"all", [&] { stage.screen.loadList(); }},
                           {"SQLite", [&] { use(readBySqlite(*database, sql)); }},
                           {"list",
                            [&] {
                                bare.report.setRecords(readListRows(std::move(copy), list.columns).records);
                                bare.report.populate();
                            },
                            [&] { copy = text; }}},
                          {.seconds = 8, .leastRounds = 7});
    std::vector<double> ratios;
    for (std::size_t i = 0; i < contest.rounds(); ++i) {
        const double parts = contest.seconds(1)[i] + contest.seconds(2)[i];
        ratios.push_back(contest.seconds(0)[i] / parts);
    }
    report.add(Line{what, "reading from SQLite, and text to list", spreadOf(ratios), Line::Goal::AtMost,
                    mostToParts});
    report.add(Line{what + ", its text to list", "the whole", contest.ratio(2, 0)});
}

}  // namespace

void measureCompany(const Settings& settings, Report& report) {
    {
        BenchCompany company(settings.rows, settings.customers());
        measureLoad(report, "statement to list, terms", company, lists::termsList);
        measureLoad(report, "statement to list, customers", company, customersList());
        // Sorting in the database dominates the lines above. Without it, the shares of host and text show.
        measureLoad(report, "statement to list, terms in no order", company, lists::termsList,
                    "SELECT * FROM Terms");
    }
    std::unique_ptr<BenchCompany> company;
    std::unique_ptr<Stage> stage;
    const auto makeCompany = [&](std::size_t rows) {
        stage.reset();
        company = std::make_unique<BenchCompany>(rows, 0);
        stage = std::make_unique<Stage>(*company, lists::termsList);
    };
    measureGrowth(settings, report, "statement to list, terms", settings.mostRows, [&](std::size_t rows) {
        makeCompany(rows);
        return Contestant{"list", [&] { stage->screen.loadList(); }};
    });
    std::unique_ptr<SQLite::Database> database;
    measureGrowth(settings, report, "the same statement, SQLite alone", settings.mostRows,
                  [&](std::size_t rows) {
                      database.reset();
                      makeCompany(rows);
                      database = workbench::openCompanyFile(company->file(), workbench::OpenMode::ReadOnly);
                      const std::string sql = workbench::translateSql(stage->screen.loadStatement()).sql;
                      return Contestant{"SQLite", [&database, sql] { use(readBySqlite(*database, sql)); }};
                  });
}

}  // namespace tsln::bench
