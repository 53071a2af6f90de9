#include "lists/Lists.h"

namespace tsln::lists {
namespace {

constexpr ListColumn columns[] = {
    {"Terms", 200, "Terms"},
    {"DueDays", 65, "DueDays", true},
    {"Discount", 65, "Discount", true},
    {"DiscountDays", 65, "DiscountDays", true},
};

constexpr EditField fields[] = {
    {EditField::Kind::Name, "txtTerms", "&Terms:", "Terms", "<t>"},
    {EditField::Kind::Whole, "txtDueIn", "&Due in (days):", "DueDays", "<dd>", 999},
    {EditField::Kind::Percent, "txtDiscount", "D&iscount (%):", "Discount", "<dis>", 999.999},
    {EditField::Kind::Whole, "txtDiscountDays", "Discount da&ys:", "DiscountDays", "<d>", 999},
    {EditField::Kind::Check, "chkExported", "&Exported to accounting", "Exported", "<ex>"},
};

}  // namespace

const ListDescription termsList{
    .screenName = "frmTerms",
    .caption = "Terms",
    .table = "Terms",
    .orderBy = "Terms",
    .columns = columns,
    .securityArea = 106,
    .listKind = 3,
    .moveReferencesCode = 9,
    .defaults = DefaultSet{"Would you like to install the default terms?", "TSLN50_Terms"},
    .deleteFailure = "There was a problem deleting one or more term.",
    .edit = Operation::ShowEditTerms,
    .busyState = true,
};

const EditDescription termsDialog{
    .screenName = "frmTerms_Edit",
    .table = "Terms",
    .newCaption = "New Terms",
    .editCaption = "Edit Terms",
    .fields = fields,
    .required = "You must enter a valid term.",
    .duplicate = "This term already exists.",
    .saveFailure = "There was a problem saving this term.",
    .insert =
        "INSERT INTO Terms (Terms,DueDays,Discount,DiscountDays,Exported) "
        "VALUES('<t>', <dd>, <dis>, <d>, <ex>)",
    .update =
        "UPDATE Terms SET Terms = '<t>', DueDays = <dd>, Discount = <dis>, DiscountDays = <d>, "
        "Exported = <ex> WHERE ID = <id>",
};

}  // namespace tsln::lists
