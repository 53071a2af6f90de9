#include "workbench/tour/CustomerTour.h"

#include <wx/app.h>
#include <wx/defs.h>

#include "workbench/host/TextOf.h"
#include "workbench/tour/TourSteps.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

constexpr auto newest = "(SELECT MAX(ID) FROM Customers)";

void expectValue(Company& company, const std::string& sql, const std::string& wanted) {
    const std::string found = textOf(company.scalar(sql));
    if (found != wanted) throw ScriptFailure(sql + " gives '" + found + "' instead of '" + wanted + "'.");
}

void pressTimes(int key, int times, int modifiers = 0) {
    for (int i = 0; i < times; ++i)
        press(key, modifiers);
}

/// Enter on a link opens a window at once, while the key is being sent. Sent from the event loop, it does not hold up the
/// script.
void followLink() {
    wxTheApp->CallAfter([] { press(WXK_RETURN); });
}

}  // namespace

Script customerTour(Company& company, std::string folder) {
    Album album(folder, "customer-");
    co_await untilActive("Tessaline Workbench");
    press('a', wxMOD_CONTROL);
    type("ShowEditCustomer");
    co_await settled();
    press('b', wxMOD_ALT);
    co_await untilActive("Customers");
    co_await settled();
    album.take("browse", "the customers, and the history of the selected one");

    press('n', wxMOD_ALT);
    co_await untilActive("New Customer");
    co_await settled();
    type("Anna M. Quayside");
    press(WXK_TAB);
    co_await settled();
    album.take("name", "New: the name is split when it is left");
    press('1', wxMOD_ALT);
    press(WXK_TAB);  // from the label to the number
    type("555 0199");
    press('m', wxMOD_ALT);
    pressTimes(WXK_TAB, 4);  // e-mail, active, exported, billing address
    type("9 Quay Road");
    press(WXK_RETURN);
    type("Merriden Falls, WI 53099");
    press(WXK_TAB, wxMOD_CONTROL);  // the empty list of addresses is skipped
    co_await settled();
    type("9 Quay Road, rear");
    press(WXK_RETURN);
    type("Merriden Falls, WI 53099");
    press(WXK_TAB, wxMOD_CONTROL);
    co_await settled();
    press(WXK_TAB);
    followLink();
    co_await untilActive("New Address");
    type("Lake house");
    co_await settled();
    album.take("label", "a second address gets its label");
    press(WXK_RETURN);
    co_await untilActive("New Customer");
    co_await settled();
    type("30 Lakeshore Drive");
    press(WXK_RETURN);
    type("Tamarack Point, WI 53097");
    press(WXK_TAB, wxMOD_CONTROL);
    pressTimes(WXK_TAB, 4);
    press(WXK_RETURN);
    co_await settled();
    album.take("addresses", "and becomes the default address");
    pressTimes(WXK_PAGEDOWN, 4, wxMOD_CONTROL);
    co_await settled();
    for (const int key : {int(WXK_DOWN), int(WXK_SPACE), int(WXK_DOWN), int(WXK_SPACE)}) {
        press(key);
        co_await settled();
    }
    co_await settled();
    album.take("groups", "the customer joins two groups");
    press(WXK_RETURN);
    co_await untilActive("Customers");
    co_await settled();
    album.take("added", "the history begins");

    const std::string of = std::string(" FROM Customers WHERE ID = ") + newest;
    expectValue(
        company,
        "SELECT CustomerName + '|' + FirstName + '|' + MiddleInitial + '|' + LastName + '|' + Phone1" + of,
        "Anna M. Quayside|Anna|M|Quayside|555 0199");
    const std::string addresses = std::string(" FROM CustomerAddresses WHERE CustomerID = ") + newest;
    expectValue(company, "SELECT COUNT(*)" + addresses, "2");
    expectValue(company,
                "SELECT AddressLabel + '|' + Address1 + '|' + City" + addresses + " AND isDefault <> 0",
                "Lake house|30 Lakeshore Drive|Tamarack Point");
    expectValue(company, std::string("SELECT COUNT(*) FROM GroupedCustomers WHERE CustomerID = ") + newest,
                "3");

    press(WXK_RETURN);
    co_await untilActive("Edit Customer");
    co_await settled();
    album.take("reopened", "the customer is opened again");
    press('o', wxMOD_ALT);
    type("Quayside Interiors");
    press(WXK_RETURN);
    co_await untilActive("Customers");
    co_await settled();
    album.take("history", "and changed: the history tells the change");
    expectValue(company,
                std::string("SELECT TOP 1 Activity FROM CustomerActivity WHERE CustomerID = ") + newest +
                    " ORDER BY ID DESC",
                "Customer updated:\r\nCompanyName:  to Quayside Interiors");
    press(WXK_ESCAPE);
    co_await untilActive("Tessaline Workbench");
}

}  // namespace tsln::workbench
