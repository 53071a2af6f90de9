#include "maintenance/ListDescription.h"

namespace tsln {

std::string countReferences(std::string_view table, std::string_view column) {
    return "SELECT COUNT(*) AS MyCount FROM " + std::string(table) + " WHERE " + std::string(column) +
           " = {0}";
}

DeletionCheck referencedBy(std::string_view noun, std::string_view table, std::string_view column,
                           std::string_view users) {
    const std::string what(noun), whom(users);
    return {
        .count = countReferences(table, column),
        .message = "The " + what +
                   " <Bold>{0}</Bold> cannot be deleted because it's being referenced by {1} " + whom + ".",
        .advice = "In order to delete this " + what + " you must first remove it from the " + whom +
                  " that are referencing it.",
    };
}

DeletionCheck referencedByCustomers(std::string_view noun, std::string_view column) {
    return referencedBy(noun, "Customers", column, "customers");
}

DeletionCheck referencedByOrders(std::string_view noun, std::string_view column) {
    return referencedBy(noun, "Orders", column, "quotes/sales/orders");
}

}  // namespace tsln
