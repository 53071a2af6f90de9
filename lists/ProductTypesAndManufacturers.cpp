#include "lists/Lists.h"

namespace tsln::lists {
namespace {

using Show = ListColumn::Show;

/// Refuses the deletion of a row that products refer to.
DeletionCheck usedByProducts(const std::string& noun, std::string_view column) {
    return {countReferences("Products", column),
            "The " + noun + " <Bold>{0}</Bold> cannot be deleted because it's being used by {1} products.",
            "In order to delete this " + noun +
                " you must first change all the products that are using it to reference a different " + noun +
                ", or delete the product(s) that are referencing it."};
}

}  // namespace

const ListDescription productTypesList{
    .open = Operation::ShowProductTypes,
    .edit = Operation::ShowEditProductTypes,
    .screenName = "frmProductTypes",
    .caption = "Product Types",
    .table = "ProductTypes",
    .orderBy = "ProductType",
    .columns = {{"Product Type", 220, "ProductType"},
                {"Est. Delivery Days", 120, "EstDeliveryDays", Show::Number}},
    .securityArea = 100,
    .listKind = 2,
    .moveReferencesCode = 3,
    .deletionChecks = {usedByProducts("product type", "ProductTypeID")},
    .deleteFailure = "There was a problem deleting one or more product type(s).",
    .busyState = true,
    .dialog = {
        .newCaption = "New Product Type",
        .editCaption = "Edit Product Type",
        .fields = {fields::name("txtProductType", "&Product type:", "ProductType", "<c>", "You must enter valid product type.", "This product type already exists."),
                   fields::whole("txtDeliveryDays", "&Estimated delivery (days):", "EstDeliveryDays", "<d>", 999)},
        .saveFailure = "There was a problem saving this product type.",
    }};

const ListDescription manufacturersList{
    .open = Operation::ShowManufacturers,
    .edit = Operation::ShowEditManufacturers,
    .screenName = "frmManufacturers",
    .caption = "Manufacturers",
    .table = "Manufacturers",
    .orderBy = "Manufacturer",
    .columns = {{"Manufacturer", 280, "Manufacturer"}},
    .securityArea = 101,
    .listKind = 1,
    .moveReferencesCode = 4,
    .deletionChecks = {usedByProducts("manufacturer", "ManufacturerID")},
    .deleteFailure = "There was a problem deleting one or more manufacturer(s).",
    .busyState = true,
    .dialog = {
        .newCaption = "New Manufacturer",
        .editCaption = "Edit Manufacturer",
        .fields = {fields::name("txtManufacturer", "&Manufacturer:", "Manufacturer", "<m>", "You must enter a valid Manufacturer.", "Manufacturer already exists.")},
        .saveFailure = "There was a problem saving this manufacturer.",
    }};

}  // namespace tsln::lists
