#include "lists/Criteria.h"

#include "lists/Lists.h"

namespace tsln::lists {
namespace {

using Show = ListColumn::Show;

constexpr std::string_view enforceOption = "EnforceDepositRequirements";
constexpr std::string_view noSection;

}  // namespace

const ListDescription fieldMeasureCriteriaList{
    .open = Operation::ShowFieldMeasureCriteria,
    .edit = Operation::ShowEditFieldMeasureCriteria,
    .screenName = "frmFieldMeasureCriteria",
    .caption = "Field Measure Criteria",
    .table = "FieldMeasureCriteria",
    .orderBy = "Criteria",
    .columns = {{"Criteria", 380, "Criteria"}},
    .listKind = 16,
    .deleteFailure = "There was a problem deleting one or more field measure criteria(s).",
    .dialog = {
        .newCaption = "New Field Measure Criteria",
        .editCaption = "Edit Field Measure Criteria",
        .fields = {fields::name("txtCriteria", "&Criteria:", "Criteria", "<m>", "You must enter a valid Field Measure Criteria.")},
        .saveFailure = "There was a problem saving this Field Measure Criteria.",
    }};

const ListDescription quoteApprovalList{
    .open = Operation::ShowQuoteApprovalCriteria,
    .edit = Operation::ShowEditQuoteApproval,
    .screenName = "frmQuoteApprovalCriteria",
    .caption = "Quote Approval Criteria",
    .table = "QuoteApproval",
    .orderBy = "Criteria",
    .columns = {{"Criteria", 380, "Criteria"}},
    .listKind = 19,  // no such kind exists, so import and export do nothing here (deliberate)
    .deleteFailure = "There was a problem deleting one or more quote approval criteria(s).",
    .dialog = {
        .newCaption = "New Quote Approval Criteria",
        .editCaption = "Edit Quote Approval Criteria",
        .fields = {fields::name("txtCriteria", "&Criteria:", "Criteria", "<c>", "You must enter valid criteria.")},
        .saveFailure = "There was a problem saving this quote approval.",
    }};

const ListDescription depositCriteriaList{
    .open = Operation::ShowRequireDepositCriteria,
    .edit = Operation::ShowEditDepositCriteria,
    .screenName = "frmRequireDepositCriteria",
    .caption = "Deposit Criteria",
    .table = "RequireDepositCriteria",
    .orderBy = "DepositPercent",
    .columns = {{"Criteria", 300, "Criteria"}, {"Deposit (%)", 85, "DepositPercent", Show::Number}},
    .listKind = 9,
    .deleteFailure = "There was a problem deleting one or more deposit criteria.",
    .dialog = {
        .newCaption = "New Deposit Criteria",
        .editCaption = "Edit Deposit Criteria",
        .fields = {fields::name("txtCriteria", "&Criteria:", "Criteria", "<c>", "You must enter valid criteria."),
                   fields::decimal("txtPercent", "&Deposit (%):", "DepositPercent", "<d>", 100)},
        .saveFailure = "There was a problem saving this deposit criteria.",
    }};

DepositCriteriaScreen::DepositCriteriaScreen(Library& library, const ListDescription& description)
    : ListScreen(library, description) {
    chkEnforce.setEnabled(false);
}

void DepositCriteriaScreen::listLoaded() {
    optionRead_ = false;
    chkEnforce.setChecked(host().options().GetUserOption(enforceOption, false).toBoolean());
    chkEnforce.setEnabled(true);
    optionRead_ = true;
}

void DepositCriteriaScreen::Form_Unload() {
    ListScreen::Form_Unload();
    // An option that could not be read must not be overwritten.
    if (optionRead_) host().options().SetUserOption(enforceOption, noSection, chkEnforce.checked());
}

}  // namespace tsln::lists
