#include "lists/Lists.h"

namespace tsln::lists {

const ListDescription groupsList{
    .open = Operation::ShowGroups,
    .edit = Operation::ShowEditGroups,
    .screenName = "frmGroups",
    .caption = "Customer Groups",
    .table = "Groups",
    .orderBy = "GroupName",
    .columns = {{"Name", 180, "GroupName"}, {"Description", 280, "Description"}},
    .securityArea = 302,
    .listKind = 13,
    .moveReferencesCode = 13,
    .deleteFailure = "There was a problem deleting one or more customer group(s).",
    .dialog = {
        .newCaption = "New Customer Groups",
        .editCaption = "Edit Customer Groups",
        .fields = {fields::name("txtGroupName", "&Name:", "GroupName", "<m>", "You must enter a valid customer group name.", "A customer group with this name already exists."),
                   fields::lines("txtDescription", "&Description:", "Description", "<d>")},
        .saveFailure = "There was a problem saving this customer group.",
    }};

}  // namespace tsln::lists
