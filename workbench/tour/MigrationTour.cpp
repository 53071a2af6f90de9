#include "workbench/tour/MigrationTour.h"

#include <filesystem>

#include <wx/defs.h>

#include "automation/FilePath.h"
#include "workbench/company/CompanyFile.h"
#include "workbench/tour/TourSteps.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

constexpr int customers = 30'000;
constexpr std::int16_t withCustomers = 2;
constexpr std::chrono::seconds timeForBaseData{60};

std::int32_t count(Company& company, const std::string& from) {
    return company.scalar("SELECT COUNT(*) FROM " + from).toLong();
}

}  // namespace

Script migrationTour(ObjectPtr library, Company& company, std::string folder) {
    Album album(folder, "migration-");
    const std::string old = folder + "/version42.company";
    std::error_code ignored;
    std::filesystem::remove(pathOf(old), ignored);
    makeCompany42(old, customers);
    const std::int32_t before = count(company, "Customers");

    co_await untilActive("Tessaline Workbench");
    open(library, "Perform42Migration", old, withCustomers);
    co_await untilActive("Migrate From Version 4.2");
    co_await until(
        "customers come over", [&company, before] { return count(company, "Customers") > before; },
        timeForBaseData);
    album.take("customers", "the migration imports customers");
    press(WXK_ESCAPE);
    co_await untilActive("Tessaline Workbench");
    const std::int32_t added = count(company, "Customers") - before;
    expect(added > 0 && added < customers, "Esc ended the migration among the customers");
    expect(count(company, "Company WHERE Name = 'Lanternlight Blinds & Drapery'") == 1,
           "the base data came over");
    expect(count(company, "SalesTaxGroups WHERE SalesTaxGroup = 'WI-STATE'") == 1,
           "a tax code has its own group");
}

}  // namespace tsln::workbench
