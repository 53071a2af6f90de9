#include "lists/Lists.h"

namespace tsln::lists {


const ListDescription jobTypesList{
    .open = Operation::ShowJobTypes,
    .edit = Operation::ShowEditJobTypes,
    .screenName = "frmJobTypes",
    .caption = "Job Types",
    .table = "JobTypes",
    .orderBy = "JobType",
    .columns = {{"Job Type", 280, "JobType"}},
    .securityArea = 108,
    .listKind = 12,
    .moveReferencesCode = 5,
    .defaults = DefaultSet{"Would you like to install the default job types?", "TSLN50_JobTypes"},
    .deletionChecks =
        {{countReferences("Jobs", "JobTypeID"),
          "The job type <Bold>{0}</Bold> cannot be deleted because it's being used by {1} jobs.",
          "In order to delete this job type you must first remove it from the jobs that are referencing it."}},
    .deleteFailure = "There was a problem deleting one or more job type(s).",
    .dialog = {
        .newCaption = "New Job Type",
        .editCaption = "Edit Job Type",
        .fields = {fields::name("txtJobType", "&Job type:", "JobType", "<m>", "You must enter a valid job type.", "This job type already exists.")},
        .saveFailure = "There was a problem saving this job type.",
    }};

const ListDescription orderTypesList{
    .open = Operation::ShowOrderTypes,
    .edit = Operation::ShowEditOrderTypes,
    .screenName = "frmOrderTypes",
    .caption = "Order Types",
    .table = "OrderTypes",
    .orderBy = "OrderType",
    .columns = {{"Order Type", 280, "OrderType"}},
    .securityArea = 108,  // the area of the job types: one right guards both lists
    .listKind = 17,
    .moveReferencesCode = 6,
    .deleteFailure = "There was a problem deleting one or more order type(s).",
    .dialog = {
        .newCaption = "New Order Type",
        .editCaption = "Edit Order Type",
        .fields = {fields::name("txtOrderType", "&Order type:", "OrderType", "<m>", "You must enter a valid order type.", "An order type with this name already exists.")},
        .saveFailure = "There was a problem saving this order type.",
    }};

}  // namespace tsln::lists
