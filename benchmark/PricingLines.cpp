#include <numeric>

#include "benchmark/Lines.h"
#include "benchmark/TimedHost.h"
#include "benchmark/contest/BenchCompany.h"
#include "bridge/Library.h"
#include "doubles/QuietDesktop.h"
#include "pricing/AdditionalCharges.h"
#include "pricing/BulkChange.h"
#include "pricing/VendorCostMethods.h"

namespace tsln::bench {
namespace {

constexpr double mostToHost = 0.1;

/// A library over a company, with the host's time measured separately.
struct Stage {
    Stage() { library->Initialize(timedHost(company.session().sharedCode(), time)); }

    BenchCompany company{0, 0};
    test::QuietDesktop desktop;
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);
    HostTime time;
};

void measureBulkChange(Report& report, std::size_t records) {
    Stage stage;
    insertRows(stage.company.session().company(), "Customers (ID, CustomerName, TaxExNumber)", records,
               [](std::size_t row) { return std::to_string(row + 1) + ", 'Customer', 'X'"; });
    std::string selection = "1";
    for (std::size_t i = 2; i <= records; ++i)
        selection += "," + std::to_string(i);
    pricing::BulkChange screen(*stage.library);
    screen.initialize(1, selection);
    screen.optC_ClearTaxEx.userSelect();
    report.add(Line{"a bulk change of " + std::to_string(records) + " customers, the module's share",
                    "the host with its database", shareOf(stage.time, [&] { screen.cmdOK.userPress(); }),
                    Line::Goal::AtMost, mostToHost});
}

/// Lists charges whose steps can be called and timed.
class List : public pricing::AdditionalChargesScreen {
  public:
    using AdditionalChargesScreen::AdditionalChargesScreen;
    using AdditionalChargesScreen::loadList;
};

void measureCharges(Report& report, std::size_t charges, std::size_t groups) {
    Stage stage;
    insertRows(
        stage.company.session().company(),
        "AdditionalCharges (ChargeType, GroupName, ChargeName, ChargeMethod, Value, Criteria, StartsOn)",
        charges, [groups](std::size_t row) {
            const std::string n = std::to_string(row);
            return "8, 'Group " + std::to_string(row % groups) + "', 'Charge " + n + "', " +
                   std::to_string(1 + row % 12) + ", '" + std::to_string(row % 90) + "', 'Width > " + n +
                   "', '2024-03-01T00:00:00'";
        });
    const auto type = pricing::ChargeType::AdditionalCharge;
    List list(*stage.library, pricing::chargesList(type), type);
    list.load();
    const std::string what = std::to_string(charges) + " charges in " + std::to_string(groups) + " groups";
    report.add(Line{what + ", opened, all but the statement", "the host's statement",
                    shareOf(stage.time, [&] { list.loadList(); })});
    // Each round filters by another text.
    std::size_t round = 0;
    const Contest contest({{"open", [&] { list.loadList(); }},
                           {"filter", [&] { list.txtFilter.userType(std::to_string(10 + round)); },
                            [&] { round = (round + 1) % 90; }}});
    report.add(Line{what + ", filtered", "opened", contest.ratio(1, 0)});
}

void measureCostMethods(Report& report, std::size_t vendors) {
    Stage stage;
    insertRows(stage.company.session().company(), "Vendors (VendorName, CostMethod)", vendors,
               [](std::size_t row) {
                   return "'Vendor " + std::to_string(row) + "', " + std::to_string(1 + row % 3);
               });
    /// A grid whose steps can be called and timed.
    struct Grid : pricing::VendorCostMethods {
        using VendorCostMethods::opened;
        using VendorCostMethods::VendorCostMethods;
    };
    std::vector<double> statements, shares;
    for (std::size_t i = 0; i < shareRounds; ++i) {
        Grid grid(*stage.library);
        stage.time = {};
        const double all = secondsOf([&] { grid.opened(); });
        shares.push_back(all / stage.time.seconds() - 1);
        stage.time = {};
        const std::string_view shown = grid.rptItems.rowText(7, 1);
        grid.rptItems.userEdit(7, 1, shown == "% of MSRP" ? "Cost from Product" : "% of MSRP");
        grid.cmdOK.userPress();
        statements.push_back(static_cast<double>(stage.time.statements));
    }
    const std::string what = "cost methods of " + std::to_string(vendors) + " vendors";
    report.add(Line{what + ", opened, the module's share", "the host with its database", spreadOf(shares)});
    report.add(Line{what + ", one changed, statements", "one", spreadOf(statements), Line::Goal::AtMost, 1});
}

}  // namespace

void measurePricing(const Settings& settings, Report& report) {
    measureBulkChange(report, settings.rows / 10);
    measureCharges(report, settings.rows / 5, 200);
    measureCostMethods(report, settings.rows / 20);
}

}  // namespace tsln::bench
