#include <wx/defs.h>

#include "workbench/tour/Tour.h"
#include "workbench/tour/TourSteps.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

constexpr int customers = 200;

int count(Company& company, const std::string& from) {
    return company.scalar("SELECT COUNT(*) FROM " + from).toLong();
}

void addCustomers(Company& company, int number) {
    std::string insert = "INSERT INTO Customers (CustomerName) VALUES ";
    for (int i = 0; i < number; ++i)
        insert += (i == 0 ? "('Tour " : ", ('Tour ") + std::to_string(i) + "')";
    company.execute(insert);
}

/// Goes to the workbench's search field. What is typed then replaces its text.
void selectSearchText() {
    press('f', wxMOD_CONTROL);
    press('a', wxMOD_CONTROL);
}

}  // namespace

Script pricingTour(Company& company, std::string folder) {
    Album album(folder, "pricing-");
    const auto operation = [](const char* name) {
        selectSearchText();
        type(name);
    };

    co_await untilActive("Tessaline Workbench");
    operation("ShowAdditionalCharges");
    co_await settled();
    press(WXK_RETURN);
    co_await untilActive("Additional Charges");
    press(WXK_INSERT);
    co_await untilActive("Edit Additional Charge");
    type("Lift");
    press('o', wxMOD_ALT);
    type("2");
    press('m', wxMOD_ALT);
    press(WXK_DOWN);
    press('v', wxMOD_ALT);
    type("-5");
    co_await settled();
    album.take("charge", "a charge, entered as -5");
    press(WXK_RETURN);
    co_await untilActive("Additional Charges");
    expect(count(company, "AdditionalCharges WHERE ChargeName = 'Lift' AND Value = '5'") == 1,
           "the charge was stored as 5");
    co_await settled();
    press('u', wxMOD_ALT);
    co_await until("the duplicate is stored",
                   [&] { return count(company, "AdditionalCharges WHERE ChargeName = 'Lift 1'") == 1; });
    co_await settled();
    album.take("duplicate-charge", "a duplicate, which the list shows");
    press(WXK_UP);
    co_await settled();
    press('u', wxMOD_ALT);
    co_await settled();
    album.take("search-for-name", "its name is taken: the search repeats until it is cancelled");
    press(WXK_ESCAPE);
    co_await settled();
    expect(count(company, "AdditionalCharges WHERE ChargeName LIKE 'Lift%'") == 2,
           "the cancelled search made no duplicate");
    press(WXK_ESCAPE);

    co_await untilActive("Tessaline Workbench");
    addCustomers(company, customers - count(company, "Customers"));
    company.execute("UPDATE Customers SET TaxExNumber = 'X'");
    company.execute("DELETE FROM EventLog");
    operation("ShowBulkChange");
    co_await settled();
    press('b', wxMOD_ALT);
    co_await untilActive("Select for Bulk Change");
    press(WXK_DOWN);
    co_await settled();
    press('a', wxMOD_CONTROL);
    co_await settled();
    album.take("select-customers", "200 customers are selected for a bulk change");
    press(WXK_RETURN);
    co_await untilActive("Bulk Change");
    company.execute("DELETE FROM Customers WHERE ID IN (SELECT TOP 3 ID FROM Customers ORDER BY ID)");
    press('c', wxMOD_ALT);
    co_await settled();
    album.take("bulk-change", "their tax exemption numbers are to be cleared; meanwhile three were deleted");
    press(WXK_RETURN);
    co_await untilActive("Tessaline");
    press(WXK_RETURN);
    co_await until("the customers are changed",
                   [&] { return count(company, "Customers WHERE TaxExNumber = 'X'") == 0; });
    co_await untilActive("Tessaline");
    co_await settled();
    album.take("bulk-change-problems", "the message tells of the three that failed");
    expect(
        count(company,
              "EventLog WHERE EventText LIKE 'Customer %could not have its tax exemtion number cleared%'") ==
            3,
        "each failure has a line in the event log");
    press(WXK_RETURN);
    co_await untilActive("Tessaline Workbench");
    selectSearchText();
    co_await settled();
}

}  // namespace tsln::workbench
