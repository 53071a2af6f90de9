#include "lists/CustomerTypes.h"

#include "lists/Lists.h"
#include "shared/modSharedSQL.h"

namespace tsln::lists {
namespace {

using Show = ListColumn::Show;

constexpr Choice directions[] = {{0, "Down"}, {1, "Nearest"}};
/// How several discounts on one item are combined.
constexpr Choice discountMethods[] = {
    {0, "Highest discount only"}, {1, "Add up"}, {2, "One after the other"}};

}  // namespace

const ListDescription customerTypesList{
    .open = Operation::ShowCustomerTypes,
    .edit = Operation::ShowEditCustomerTypes,
    .screenName = "frmCustomerTypes",
    .caption = "Customer Types",
    .table = "CustomerTypes",
    .orderBy = "Name",
    .columns = {{"Name", 200, "Name"},
                {"Round Price", 85, "RoundUnitPrice", Show::YesNo},
                {"Round To", 75, "RoundUnitPriceTo", Show::Number},
                {"Direction", 85, "RoundUnitPriceDirection", Show::Choice, directions}},
    .securityArea = 301,
    .listKind = 8,
    .moveReferencesCode = 10,
    .deletionChecks =
        {{countReferences("Customers", "CustomerTypeID"),
          "The customer type <Bold>{0}</Bold> cannot be deleted because it's being used by {1} customers.",
          "In order to delete this customer type you must first change all the customers that are using it to reference a different customer type."}},
    .deleteFailure = "There was a problem deleting one or more customer type(s).",
    .dialog = {
        .newCaption = "New Customer Type",
        .editCaption = "Edit Customer Type",
        .fields = {fields::name("txtName", "&Name:", "Name", "<n>", "You must enter a valid name.", "A customer type with this name already exists."),
                   fields::check("chkRound", "&Round unit prices", "RoundUnitPrice", "<rup>"),
                   fields::decimal("txtRound", "Round &to:", "RoundUnitPriceTo", "<rupt>", 9999.99),
                   fields::choice("cboDirection", "D&irection:", "RoundUnitPriceDirection", "<rupd>", directions),
                   fields::choice("cboOptionDiscountMethod", "&Option discounts:", "OptionDiscountMethod", "<odm>", discountMethods),
                   fields::choice("cboDiscountMethod", "&Discounts:", "DiscountMethod", "<dm>", discountMethods)},
        .saveFailure = "There was a problem saving this customer type.",
        .insert = "INSERT INTO CustomerTypes (Name,RoundUnitPrice,RoundUnitPriceTo,RoundUnitPriceDirection,OptionDiscountMethod,DiscountMethod) "
                  "VALUES('<n>', '<rup>', '<rupt>', '<rupd>', '<odm>', '<dm>')",
        // The unquoted "<rupt>" and the two blanks before it are deliberate.
        .update =
            "UPDATE CustomerTypes SET Name = '<n>', RoundUnitPrice = '<rup>', RoundUnitPriceTo =  <rupt>, "
            "RoundUnitPriceDirection = '<rupd>', OptionDiscountMethod = '<odm>', DiscountMethod = '<dm>' WHERE ID = <id>",
    }};

bool CustomerTypesScreen::mayDelete(std::size_t record) {
    if (!ListScreen::mayDelete(record)) return false;
    if (count("SELECT COUNT(*) AS MyCount FROM CustomerTypes") > 1) return true;
    host().ShowMessageStyle1(
        modSharedSQL::format("The customer type {0} cannot be deleted because it's the last customer type.",
                             rptItems.cell(record, 0)),
        "You must have at least one Customer Type setup in your company.");
    return false;
}

}  // namespace tsln::lists
