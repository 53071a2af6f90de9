#include "security/Activities.h"

namespace tsln::security {
namespace {

constexpr std::int32_t lists = ViewAll | Create | Update | Delete;
constexpr std::int32_t ownedLists = lists | ViewOwned;

// clang-format off: one activity per entry. "lsits" is deliberate.
constexpr SecuredActivity catalogue[] = {
    {100, 100, "Maintenance", "Product Types", lists,
     "Product types are used to organize products. You can also assign an estimated delivery date to a product type to help with calculating the estimated delivery date for an order."},
    {101, 100, "Maintenance", "Manufacturers", lists,
     "Manufacturers are used to organize products."},
    {102, 100, "Maintenance", "Shipping Methods", lists,
     "Shipping methods are used to indicate the preferred shipping method for a customer. Each shipping method also indicates the task type (Install, Pickup or Ship) which will determine where line items appear in the workflow of a sale/order. Delivery Ranges are also controlled by this security activity."},
    {103, 100, "Maintenance", "Referral Methods", lists,
     "Referral methods are used to indicate how the customer was referred to your business. This is useful for marketing and reporting."},
    {104, 100, "Maintenance", "Phone and Email Labels", lists,
     "Use custom phone and email labels to identify the phone numbers and email addresses for customers, employees, etc. Note: This does not prevent users from typing in their own phone and email labels when creating or edit customers, employees, etc."},
    {105, 100, "Maintenance", "Option Settings", lists,
     "Control the ability of users to change how options descriptions are created, what default values are used for options and what options are highlighted in Order Entry."},
    {106, 100, "Maintenance", "Terms", lists,
     "Use Terms to keep track of what payment terms you have given your customers."},
    {107, 100, "Maintenance", "Payment Methods", lists,
     "Payment methods are used to keep track of how a customer paid, for example by cash, American Express, Master Card, etc."},
    {108, 100, "Maintenance", "Job and Order Types", lists,
     "Use Job and Order types to classify your quotes, sales and orders."},
    {109, 100, "Maintenance", "Customer Measurement Lists", lists,
     "Maintain consistent lists for room locations, items and mount types."},
    {110, 100, "Maintenance", "Linked Accounts", lists,
     "Maintain account numbers to be used when exporting data to accounting."},
    {111, 100, "Maintenance", "Delivery Ranges", lists,
     "Delivery ranges are used to indicate a general delivery date range for a sale."},
    {112, 100, "Maintenance", "Locations", lists,
     "Use Locations to manage company data with users located in different offices."},
    {200, 200, "Pricing", "Pricing Center", ViewAll,
     "Use the Pricing Center to view the current pricing setup and quickly access other pricing functions. You can also perform tests on product pricing setup. Preventing access to the Pricing Center does not prevent access to other pricing functions such as discounts and additional charges."},
    {201, 200, "Pricing", "Discounts", ViewAll | Update,
     "Discounts are organized in Discount Groups and are typically used as the starting point for calculating cost and the starting retail price."},
    {202, 200, "Pricing", "Additional Charges", lists,
     "Use additional charges to add non-product items to quotes and sales. These items can also be setup to be automatically added."},
    {203, 200, "Pricing", "Sales Tax", lists,
     "Setup tax groups (which are made up of one or more tax codes) to calculate sales tax for your sales."},
    {303, 300, "Customers", "Customers", ownedLists,
     "Create, update and delete customers."},
    {300, 300, "Customers", "Customer Measurements", lists,
     "Customer Measurements allows you to store measurements with a customer to later be used to build a quote or sale."},
    {301, 300, "Customers", "Customer Types", lists,
     "Customer Types allow you to set default pricing and rounding settings for customers, separate from discount groups."},
    {302, 300, "Customers", "Customer Groups", lists,
     "Use Customer Groups to organize customers."},
    {525, 350, "Employees", "Employees", lists,
     "Create, update and delete employees."},
    {550, 375, "Vendors", "Vendors", lists,
     "Create, update and delete vendors."},
    {400, 400, "Products", "Product Manager", lists,
     "Product Manager is used to manage the products that are used for company."},
    {401, 400, "Products", "Product Updater", Update,
     "Use Product Updater to find and download updated products from Kestrane."},
    {502, 500, "Setup", "Roaming Workstations", lists,
     "Add and manage individual Roaming Workstations."},
    {503, 500, "Setup", "Email Templates", lists,
     "Use email templates to provide consistent content to your customers."},
    {501, 500, "Setup", "Security Roles", lists,
     "Create, update and delete security roles."},
    {500, 500, "Setup", "Company Setup", ViewAll,
     "View company setup progress and enable/disable company features."},
    {504, 500, "Setup", "Manage Reports", lists,
     "View, create and delete process reports. Also change the default general report layout and fonts."},
    {600, 600, "Quotes/Sales/Orders", "Quotes", ownedLists,
     "Create, update and delete quotes."},
    {601, 600, "Quotes/Sales/Orders", "Sales", ownedLists,
     "Create, update and delete sales."},
    {602, 600, "Quotes/Sales/Orders", "Orders", ownedLists,
     "Create, update and delete orders."},
    {603, 600, "Quotes/Sales/Orders", "Commenting", lists,
     "Control if users can manage and/or view comments on quotes, sales or orders. Permission to view comments is required to view activity."},
    {604, 600, "Quotes/Sales/Orders", "Attachments", ViewAll | Create | Delete,
     "Control if users can open and/or manage attachments on quotes, sales or orders."},
    {605, 600, "Quotes/Sales/Orders", "Cost", ViewAll | Update,
     "Users can view cost information."},
    {700, 700, "Purchase Orders", "Purchase Orders", ViewOwned | ViewAll | Update,
     "View, update and send purchase orders"},
    {701, 700, "Purchase Orders", "Send Purchase Orders", ownedLists | Perform,
     "User has permission to print or send purchase orders to vendors."},
    {800, 800, "Workflow", "Send Quotes", ownedLists | Perform,
     "User has permission to send quotes to a customer via print, email or other."},
    {801, 800, "Workflow", "Close Quotes", ownedLists | Perform,
     "User has permission to close or decline quotes."},
    {802, 800, "Workflow", "Invoice Customers", ownedLists | Perform,
     "User has permission to send invoices to a customer or otherwise mark a sale or order as invoiced."},
    {803, 800, "Workflow", "Process Payments", ownedLists | Perform,
     "User has permission to view and record deposits and payments for customers, sales and orders."},
    {805, 800, "Workflow", "Print Packing Lists", ownedLists | Perform,
     "User has permission to print packing lsits."},
    {806, 800, "Workflow", "Cancel Sales", ownedLists | Perform,
     "User has permission to cancel sales."},
    {807, 800, "Workflow", "Send to Accounting", ownedLists | Perform,
     "User has permission to export data to accounting."},
};
// clang-format on

constexpr struct {
    Access bit;
    std::string_view name;
} bitNames[] = {{ViewOwned, "View Owned"}, {ViewAll, "View All"}, {Create, "Create"},
                {Update, "Update"},        {Delete, "Delete"},    {Perform, "Perform"}};

}  // namespace

std::span<const SecuredActivity> activities() {
    return catalogue;
}

std::string accessNames(std::int32_t access) {
    std::string names;
    for (const auto& [bit, name] : bitNames) {
        if ((access & bit) != 0) names += (names.empty() ? "" : ", ") + std::string(name);
    }
    return names;
}

std::string accessText(std::int32_t access, std::int32_t validAccess) {
    if (access == 0) return "None";
    if ((access & validAccess) == validAccess) return "Full";
    const std::string names = accessNames(access);
    return names.empty() ? "Other" : names;
}

void ActivityAccess::grant(Access bit, bool granted) noexcept {
    if (!allows(bit)) return;
    access_ = granted ? access_ | bit : access_ & ~bit;
    if ((access_ & valid_) == Perform) access_ &= ~Perform;
}

}  // namespace tsln::security
