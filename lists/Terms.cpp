#include "lists/Lists.h"

namespace tsln::lists {

using Show = ListColumn::Show;
using Kind = EditField::Kind;

const ListDescription termsList{
    .open = Operation::ShowTerms,
    .edit = Operation::ShowEditTerms,
    .screenName = "frmTerms",
    .caption = "Terms",
    .table = "Terms",
    .orderBy = "Terms",
    .columns = {{"Terms", 200, "Terms"},
                {"DueDays", 65, "DueDays", Show::Number},
                {"Discount", 65, "Discount", Show::Number},
                {"DiscountDays", 65, "DiscountDays", Show::Number}},
    .securityArea = 106,
    .listKind = 3,
    .moveReferencesCode = 9,
    .defaults = DefaultSet{"Would you like to install the default terms?", "TSLN50_Terms"},
    .deleteFailure = "There was a problem deleting one or more term.",
    .busyState = true,
    .dialog = {
        .newCaption = "New Terms",
        .editCaption = "Edit Terms",
        .fields = {{Kind::Name, "txtTerms", "&Terms:", "Terms", "<t>"},
                   {Kind::Whole, "txtDueIn", "&Due in (days):", "DueDays", "<dd>", 999},
                   {Kind::Percent, "txtDiscount", "D&iscount (%):", "Discount", "<dis>", 999.999},
                   {Kind::Whole, "txtDiscountDays", "Discount da&ys:", "DiscountDays", "<d>", 999},
                   exportedField},
        .required = "You must enter a valid term.",
        .duplicate = "This term already exists.",
        .saveFailure = "There was a problem saving this term.",
    }};

}  // namespace tsln::lists
