#include "lists/Lists.h"

namespace tsln::lists {

using Show = ListColumn::Show;

/// Rates are stored as percentages: 6 is six percent.
const ListDescription salesTaxCodesList{
    .open = Operation::ShowSalesTaxCodes,
    .edit = Operation::ShowEditSalesTaxCodes,
    .screenName = "frmSalesTaxCodes",
    .caption = "Sales Tax Codes",
    .table = "SalesTaxCodes",
    .orderBy = "Code",
    .columns = {{"Code", 140, "Code"}, {"Rate (%)", 70, "Rate", Show::Number}, {"Vendor", 220, "Vendor"}},
    .securityArea = 203,
    .listKind = 20,
    .deletionChecks =
        {{countReferences("SalesTaxGroupCodes", "SalesTaxCodeID"),
          "The sales tax code <Bold>{0}</Bold> cannot be deleted because it's referenced {1} times by one or more sales tax groups.",
          "In order to delete this sales tax code you must first remove it from all Sales Tax Groups."}},
    .deleteFailure = "There was a problem deleting one or more sales tax code(s).",
    .dialog = {
        .newCaption = "New Sales Tax Code",
        .editCaption = "Edit Sales Tax Code",
        .fields = {fields::name("txtCode", "&Code:", "Code", "<c>", "You must enter valid sales tax code.", "A sales tax code with this name already exists."),
                   fields::decimal("txtRate", "&Rate (%):", "Rate", "<r>", 100),
                   fields::text("txtVendor", "&Vendor/Agency:", "Vendor", "<v>"),
                   exportedField},
        .saveFailure = "There was a problem saving this sales tax code.",
        .insert = "INSERT INTO SalesTaxCodes (Code,Rate,Vendor,Exported) VALUES('<c>', <r>, '<v>',<ex>)",
        .expression = true,
    }};

}  // namespace tsln::lists
