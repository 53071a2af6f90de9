#include "messages/TemplateTypes.h"

#include <algorithm>

namespace tsln::messages {
namespace {

constexpr TemplateType types[] = {
    {1, "vwDocumentProcessing_Customers", "Test this template with customer",
     "SELECT ID FROM Customers WHERE CustomerName = '{0}'", "The specified customer cannot be found."},
    // The name of the table is sent as it is spelled here (deliberate).
    {2, "vwDocumentProcessing_Vendors", "Test this template with vendor",
     "SELECT ID FROM Vendodrs WHERE VendorName = '{0}'", "The specified vendor cannot be found."},
    {3, "vwDocumentProcessing_Employees", "Test this template with employee (user name)",
     "SELECT ID FROM Employees WHERE UserName = '{0}'", "The specified employee cannot be found."},
    {4, "vwDocumentProcessing_Orders", {}, {}, "The specified quote, sale or order cannot be found."},
};

}  // namespace

const TemplateType* findTemplateType(std::int32_t number) {
    const auto found = std::ranges::find(types, number, &TemplateType::number);
    return found == std::end(types) ? nullptr : found;
}

}  // namespace tsln::messages
