#include "lists/Lists.h"

namespace tsln::lists {


const ListDescription phoneLabelsList{
    .open = Operation::ShowPhoneLabels,
    .edit = Operation::ShowEditPhoneLabels,
    .screenName = "frmPhoneLabels",
    .caption = "Phone Labels",
    .table = "PhoneLabels",
    .orderBy = "Label",
    .columns = {{"Phone Label", 280, "Label"}},
    .securityArea = 104,
    .listKind = 6,
    .defaults = DefaultSet{"Would you like to install the default phone labels?", "TSLN50_PhoneLabels"},
    .deleteFailure = "There was a problem deleting one or more phone labels(s).",
    .busyState = true,
    .dialog = {
        .newCaption = "New Phone Label",
        .editCaption = "Edit Phone Label",
        .fields = {fields::name("txtLabel", "&Phone label:", "Label", "<m>", "You must enter a valid Phone Label.", "Phone Label already exists.")},
        .saveFailure = "There was a problem saving this phone label.",
    }};

const ListDescription emailLabelsList{
    .open = Operation::ShowEmailLabels,
    .edit = Operation::ShowEditEmailLabels,
    .screenName = "frmEmailLabels",
    .caption = "Email Labels",
    .table = "EmailLabels",
    .orderBy = "Label",
    .columns = {{"Email Label", 280, "Label"}},
    .securityArea = 104,
    .listKind = 7,
    .defaults = DefaultSet{"Would you like to install the default email labels?", "TSLN50_EmailLabels"},
    .deleteFailure = "There was a problem deleting one or more email label(s).",
    .busyState = true,
    .dialog = {
        .newCaption = "New Email Label",
        .editCaption = "Edit Email Label",
        .fields = {fields::name("txtLabel", "&Email label:", "Label", "<m>", "You must enter a valid Email Label.", "Email Label already exists.")},
        .saveFailure = "There was a problem saving this email label.",
    }};

}  // namespace tsln::lists
