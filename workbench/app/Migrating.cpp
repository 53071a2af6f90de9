#include "workbench/app/Migrating.h"

#include <cstdio>
#include <utility>
#include <vector>

#include "bridge/Library.h"
#include "module/Module.h"
#include "resources/TextResources.h"
#include "shared/modSharedXML.h"
#include "workbench/app/Console.h"
#include "workbench/app/HeadlessDesktop.h"
#include "workbench/app/SignIn.h"
#include "workbench/company/CompanyFile.h"

namespace tsln::workbench {
namespace {

constexpr std::int16_t withCustomers = 2;  // the kind of migration

/// The tables that a migration fills, in its order, with the number of their rows.
std::vector<std::pair<std::string, std::int64_t>> countRows(Company& company) {
    std::vector<std::pair<std::string, std::int64_t>> counts;
    const auto count = [&](std::string_view table) {
        counts.emplace_back(table,
                            company.scalar("SELECT COUNT(*) FROM [" + std::string(table) + "]").toLong());
    };
    for (const char* set : {"MIGRATEQUERIES42_BASEDATA", "MIGRATEQUERIES42_EMPCUST"}) {
        std::string_view text = resources::text(set).value_or("");
        for (std::size_t end; (end = text.find("\r\n")) != text.npos; text.remove_prefix(end + 2))
            count(text.substr(0, text.find('|')));
    }
    count("SalesTaxGroups");
    return counts;
}

void printEvents(Company& company, std::int32_t after) {
    const auto events = modSharedXML::Records::parse(
        company.read("SELECT EventText FROM EventLog WHERE ID > " + std::to_string(after) + " ORDER BY ID"));
    if (!events.empty()) std::printf("What the event log tells:\n");
    for (const auto event : events)
        std::printf("  %s\n", modSharedXML::readText("EventText", event).c_str());
}

}  // namespace

int makeOldCompany(const Options& options) {
    try {
        makeCompany42(options.make42, options.customers42);
        std::printf("A company of version 4.2 with %d customers is in %s\n", options.customers42,
                    options.make42.c_str());
        return 0;
    } catch (const CompanyFileError& error) {
        complain(error.what());
        return exitCompany;
    }
}

int migrateOldCompany(const Options& options) {
    PrintingUi ui;
    CompanySession session(options.company, options.user, ui);
    if (!signInUnasked(session)) {
        throw SignInError(
            "The user '" + session.user().login +
            "' has a password, which is taken from the environment variable TSLN_PASSWORD here.");
    }
    HeadlessDesktop desktop(session);
    const auto library = std::make_shared<Library>(desktop);
    plugInModule(*library);
    library->Initialize(session.sharedCode());

    Company& company = session.company();
    const auto before = countRows(company);
    const std::int32_t lastEvent = company.scalar("SELECT ISNULL(MAX(ID), 0) FROM EventLog").toLong();
    const bool cancelled = library->Perform42Migration(options.migrate, withCustomers);
    const auto after = countRows(company);
    library->PreTerminate();

    printEvents(company, lastEvent);
    std::printf("Rows in %s:\n  %-20s %9s %9s\n", options.company.c_str(), "Table", "before", "after");
    for (std::size_t i = 0; i < before.size(); ++i) {
        std::printf("  %-20s %9lld %9lld\n", before[i].first.c_str(),
                    static_cast<long long>(before[i].second), static_cast<long long>(after[i].second));
    }
    std::printf(cancelled ? "The migration did not succeed.\n" : "The migration succeeded.\n");
    return cancelled ? exitFailed : 0;
}

}  // namespace tsln::workbench
