#include "lists/Lists.h"

namespace tsln::lists {

using Show = ListColumn::Show;

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
        .fields = {fields::name("txtTerms", "&Terms:", "Terms", "<t>", "You must enter a valid term.", "This term already exists."),
                   fields::whole("txtDueIn", "&Due in (days):", "DueDays", "<dd>", 999),
                   fields::percent("txtDiscount", "D&iscount (%):", "Discount", "<dis>", 999.999),
                   fields::whole("txtDiscountDays", "Discount da&ys:", "DiscountDays", "<d>", 999),
                   exportedField},
        .saveFailure = "There was a problem saving this term.",
    }};

}  // namespace tsln::lists
