#pragma once

#include <cstdint>
#include <string_view>

#include "maintenance/FieldDescription.h"

namespace tsln::messages {

/// What a template is written to, as `TemplateType` stores it.
inline constexpr Choice templateTypes[] = {
    {1, "Customer"}, {2, "Vendor"}, {3, "Employee"}, {4, "Quote/Sale/Order"}};

/// How a template of a type is filled and tested.
struct TemplateType {
    std::int32_t number;
    std::string_view view;         ///< its columns are the merge fields
    std::string_view testCaption;  ///< of the test button; empty: see documentKinds
    std::string_view find;  ///< finds the `ID` of the record with the name {0}; empty: see findDocument
    std::string_view notFound;
};
/// Null for a number that is no type.
const TemplateType* findTemplateType(std::int32_t number);

/// The kinds of document that a template of the last type can be tested with, by the state of their orders.
struct DocumentKind {
    std::int32_t state;
    std::string_view caption;
    std::string_view testCaption;
};
inline constexpr DocumentKind documentKinds[] = {{1, "Quote", "Test this template with quote"},
                                                 {2, "Sale", "Test this template with sale"},
                                                 {3, "Order", "Test this template with order"}};
/// Finds the `ID` of the document with the state {0} and the number {1}.
inline constexpr std::string_view findDocument =
    "SELECT ID FROM Orders WHERE State = {0} AND OrderNumber = {1}";

}  // namespace tsln::messages
