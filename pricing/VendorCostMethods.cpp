#include "pricing/VendorCostMethods.h"

#include <algorithm>
#include <map>

#include "screens/Job.h"
#include "shared/modSharedSQL.h"

namespace tsln::pricing {
namespace {

constexpr std::string_view screenName = "frmVendorCostMethods";
constexpr std::size_t vendorColumn = 0;
constexpr std::size_t methodColumn = 1;

constexpr Choice methods[] = {{1, "% of MSRP"}, {2, "Cost from Product"}, {3, "Price from Product"}};

}  // namespace

VendorCostMethods::VendorCostMethods(Library& library) : RecordDialog(library, std::string(screenName)) {
    setCaption("Vendor Cost Methods");
    rptItems.accessibleName = "Vendors and their cost methods";
    ReportColumn method{
        .caption = "Cost Method", .width = 170, .kind = ReportColumn::Kind::Choice, .editable = true};
    for (const Choice& choice : methods)
        method.choices.push_back({choice.number, std::string(choice.caption)});
    rptItems.columns = {{.caption = "Vendor", .width = 260}, std::move(method)};
    cmdOK.setEnabled(false);  // until the vendors are read
}

Layout VendorCostMethods::content() {
    return layout::column({layout::fill(rptItems)});
}

void VendorCostMethods::opened() {
    setFocus(rptItems);
    const Records vendors = host().database().ExecuteRead(
        "SELECT ID, VendorName, CostMethod FROM Vendors WHERE VendorName <> '(None)' ORDER BY VendorName");
    std::map<std::int32_t, std::string> names;  // each is asked of the host once
    for (const Record vendor : vendors) {
        const std::int32_t method = modSharedXML::readLong("CostMethod", vendor);
        const auto [name, isNew] = names.try_emplace(method);
        if (isNew) name->second = host().common().GetVendorCostMethodName(method);
        const std::string vendorName = modSharedXML::readText("VendorName", vendor);
        const std::string_view cells[] = {vendorName, name->second};
        rptItems.addRecord(modSharedXML::readLong("ID", vendor), cells);
        stored_.push_back(name->second);
    }
    rptItems.populate();
    cmdOK.setEnabled(true);
}

bool VendorCostMethods::save() {
    const Connection connection = host().companyConnection();
    Job job(*this, stored_.size(), nullptr, nullptr);
    for (std::size_t record = 0; record < stored_.size(); ++record) {
        const std::string_view name = rptItems.cell(record, methodColumn);
        if (name == stored_[record]) continue;
        const auto method = std::ranges::find(methods, name, &Choice::caption);
        if (method == std::end(methods)) continue;
        try {
            connection.Execute(
                modSharedSQL::fillTags("UPDATE Vendors SET CostMethod = <cm> WHERE ID = <id>",
                                       {{"<cm>", method->number}, {"<id>", rptItems.id(record)}}));
        } catch (const std::exception&) {
            // "Payment method" is deliberate. What was written stays; the next OK writes the rest.
            host().ShowADOErrorMessage("Payment method '" + std::string(rptItems.cell(record, vendorColumn)) +
                                           "' could not be saved. (3738)",
                                       saveAgainExplanation);
            return false;
        }
        stored_[record] = name;
        job.step();
    }
    return true;
}

bool editVendorCostMethods(Library& library) {
    const auto closed = library.screens().show(
        screenName, [&] { return std::make_shared<VendorCostMethods>(library); }, [](VendorCostMethods&) {});
    return closed->Cancelled;
}

}  // namespace tsln::pricing
