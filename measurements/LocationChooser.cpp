#include "measurements/LocationChooser.h"

#include "maintenance/ListRows.h"
#include "maintenance/modSharedReportControl.h"
#include "measurements/MeasurementsList.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::measurements {
namespace {

using modSharedReportControl::focusedRecord;
using modSharedSQL::format;

constexpr std::string_view screenName = "frmCustomerMeasurements_SelectLocation";
constexpr ListColumn locationColumn[] = {{"Location", 140, "Location"}};
constexpr std::size_t location = 0;  // the column of the location in both lists

/// True for texts that the database takes for one: without regard to letter case and to blanks at their ends.
bool isOneLocation(std::string_view a, std::string_view b) {
    const auto shortened = [](std::string_view text) {
        return text.substr(0, text.find_last_not_of(' ') + 1);
    };
    return modSharedStrings::equalNoCase(shortened(a), shortened(b));
}

void define(ReportControl& report, std::span<const ListColumn> columns) {
    for (const ListColumn& column : columns)
        report.columns.push_back({.caption = std::string(column.caption), .width = column.width});
}

}  // namespace

LocationChooser::LocationChooser(Library& library) : RecordDialog(library, std::string(screenName)) {
    define(rptLocations, locationColumn);
    define(rptItems, sizeColumns);
    rptLocations.accessibleName = "Locations";
    rptItems.accessibleName = "Measurements";
    rptLocations.onSelectionChanged = [this] { showLocation(); };
    rptItems.onSelectionChanged = [this] { updateButtons(); };
    for (ReportControl* list : {&rptLocations, &rptItems})
        list->onRowDoubleClick = [this](std::size_t) { cmdOK.userPress(); };
}

Layout LocationChooser::content() {
    using namespace tsln::layout;
    return column({fill(rptLocations), fill(rptItems)});
}

bool LocationChooser::initialize(std::int32_t customerID) {
    return handle([&] {
               const Database database = host().database();
               const auto rows = [&](std::string_view statement, std::span<const ListColumn> columns) {
                   return readListRows(database.ExecuteReadText(format(statement, customerID)), columns)
                       .records;
               };
               setCaption(format("Customer Measurements - {0}", host().common().GetCustomerName(customerID)));
               rptLocations.setRecords(
                   rows("SELECT DISTINCT Location FROM CustomerMeasurements WHERE CustomerID = {0}",
                        locationColumn));
               rptItems.setRecords(rows(
                   "SELECT * FROM CustomerMeasurements WHERE CustomerID = {0} ORDER BY Location,Room,Item",
                   sizeColumns));
               if (rptItems.recordCount() == 0) {
                   tell("This customer does not have any saved measurements.", MessageIcon::Information);
                   return;
               }
               rptLocations.populate();
               rptItems.populate();
               if (rptLocations.rowCount() > 0) rptLocations.selectRow(0);
               showLocation();
               setFocus(rptLocations);
           }) &&
           rptItems.recordCount() > 0;
}

/// Shows the measurements of the selected location, or all without one, and selects the first.
void LocationChooser::showLocation() {
    const auto chosen = focusedRecord(rptLocations);
    rptItems.setFilterPredicate([this, chosen](std::size_t record) {
        return !chosen ||
               isOneLocation(rptItems.cell(record, location), rptLocations.cell(*chosen, location));
    });
    rptItems.populate();
    if (rptItems.rowCount() > 0) rptItems.selectRow(0);
    updateButtons();
}

void LocationChooser::updateButtons() {
    cmdOK.setEnabled(focusedRecord(rptItems).has_value());
}

bool LocationChooser::save() {
    const auto record = focusedRecord(rptItems);
    if (!record) return false;
    ID = rptItems.id(*record);
    Location = rptItems.cell(*record, location);
    return true;
}

std::int32_t chooseLocation(Library& library, std::int32_t customerID, bool& chosen) {
    const auto closed = library.screens().show(
        screenName, [&] { return std::make_shared<LocationChooser>(library); },
        [&](LocationChooser& chooser) { return chooser.initialize(customerID); });
    chosen = !closed->Cancelled && !closed->Location.empty();
    return closed->result();
}

}  // namespace tsln::measurements
