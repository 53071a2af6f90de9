#include "lists/SalesTaxGroups.h"

#include <array>

#include "automation/NumericText.h"
#include "lists/Lists.h"
#include "maintenance/modSharedReportControl.h"

namespace tsln::lists {
namespace {


std::string combinedRate(const std::string& rate) {
    return rate.empty() ? "Combined rate:" : "Combined rate: " + rate;
}

}  // namespace

const ListDescription salesTaxGroupsList{
    .open = Operation::ShowSalesTaxGroups,
    .edit = Operation::ShowEditSalesTaxGroup,
    .screenName = "frmSalesTaxGroups",
    .caption = "Sales Tax Groups",
    .table = "SalesTaxGroups",
    .orderBy = "SalesTaxGroup",
    .columns = {{"Group", 160, "SalesTaxGroup"}, {"Description", 360, "Description"}},
    .securityArea = 203,
    .listKind = 21,
    .moveReferencesCode = 12,
    .deleteFailure = "There was a problem deleting one or more sales tax groups.",
    .dialog = {
        .newCaption = "New Sales Tax Group",
        .editCaption = "Edit Sales Tax Group",
        .fields = {fields::name("txtSalesTaxGroup", "&Group:", "SalesTaxGroup", "<n>", "You must enter valid sales tax group name.", "A sales tax group with this name already exists."),
                   fields::text("txtDescription", "&Description:", "Description", "<d>"),
                   exportedField},
        .saveFailure = "There was a problem saving this sales tax group.",
        .insert = "INSERT INTO SalesTaxGroups (SalesTaxGroup,Description,Exported) VALUES('<n>', '<d>',<ex>)",
    }};

SalesTaxGroupsScreen::SalesTaxGroupsScreen(Library& library, const ListDescription& description)
    : ListScreen(library, description) {
    rptCodes.accessibleName = "Codes of the selected group";
    rptCodes.columns = {{.caption = "Code", .width = 140},
                        {.caption = "Rate (%)", .width = 70, .rightAligned = true, .numeric = true},
                        {.caption = "Vendor", .width = 220}};
    lblCombinedRate.setCaption(combinedRate({}));
    cmdManageTaxCodes.onClick = [this] { cmdManageTaxCodes_Click(); };
    cmdAssignTaxCodes.onClick = [this] { assignTaxCodes(selectedID()); };
}

std::vector<Layout> SalesTaxGroupsScreen::furtherButtons() {
    using namespace tsln::layout;
    return {spring(), item(cmdAssignTaxCodes), item(cmdManageTaxCodes)};
}

std::vector<Layout> SalesTaxGroupsScreen::belowList() {
    using namespace tsln::layout;
    return {item(lblCodes), fill(rptCodes), item(lblCombinedRate)};
}

void SalesTaxGroupsScreen::updateButtons() {
    ListScreen::updateButtons();
    cmdAssignTaxCodes.setEnabled(selectedID() > 0 && can(Right::Edit));
    if (shownGroup_ != selectedID()) refreshCodes();
}

void SalesTaxGroupsScreen::refreshCodes() {
    shownGroup_ = selectedID();
    showCodes(*shownGroup_);
}

void SalesTaxGroupsScreen::showCodes(std::int32_t groupID) {
    rptCodes.clearRecords();
    rptCodes.populate();
    lblCombinedRate.setCaption(combinedRate({}));
    const auto connection = groupID > 0 ? host().currentCompanyConnection() : std::nullopt;
    if (!connection) return;
    const Recordset codes = connection->read(
        "SELECT SalesTaxCodes.Code, SalesTaxCodes.Rate, SalesTaxCodes.Vendor FROM SalesTaxGroupCodes "
        "INNER JOIN SalesTaxCodes ON SalesTaxGroupCodes.SalesTaxCodeID = SalesTaxCodes.ID "
        "WHERE (SalesTaxGroupCodes.SalesTaxGroupID = " +
        std::to_string(groupID) + ")");
    double sum = 0;
    for (; !codes.atEnd(); codes.next()) {
        const std::array<std::string, 3> cells{codes.text("Code"), codes.text("Rate"), codes.text("Vendor")};
        sum += parseNumber(cells[1]).value_or(0);
        const std::array<std::string_view, 3> shown{cells[0], cells[1], cells[2]};
        rptCodes.addRecord(0, shown);
    }
    rptCodes.populate();
    lblCombinedRate.setCaption(combinedRate(numberText(sum)));
}

bool SalesTaxGroupsScreen::anyCode() const {
    return count("SELECT COUNT(*) AS MyCount FROM SalesTaxCodes") > 0;
}

void SalesTaxGroupsScreen::welcome() {
    host().ShowMessageStyle1WithMemory(
        "Sales sales groups are made up of one or more sales tax codes.",  // this wording is deliberate
        "In the Kestrane Tessaline a customer is assigned a sales tax group. A sales tax group is made up of one or  more sales tax codes.\r\n\r\nUse the Manage Tax Codes button to create individual tax codes. Then use the Assign Tax Codes button to assign those codes to the selected tax group.");
    if (anyCode()) return;
    tell(
        "Since you don't have any sales tax codes defined yet the Sales Tax Codes screen will open to allow you enter the individual tax codes first.",
        MessageIcon::Information);
    cmdManageTaxCodes_Click();
    if (!anyCode()) return;
    host().ShowMessageStyle1(
        "Now that you have created at least one sales tax code you should create at least one sales tax group to use that code.",
        "If you only have one sales tax code or don't want to calculate different rates for one customer then you can just give the sales tax group name the same name as the tax code.");
    cmdNew.userPress();
}

void SalesTaxGroupsScreen::added(std::int32_t ID) {
    tell("You need to assign at least one sales tax code to a sales tax group.", MessageIcon::Information);
    assignTaxCodes(ID);
}

void SalesTaxGroupsScreen::cmdManageTaxCodes_Click() {
    library().ShowSalesTaxCodes();
    refreshCodes();  // their names and rates may have changed
}

void SalesTaxGroupsScreen::assignTaxCodes(std::int32_t groupID) {
    if (groupID <= 0) return;
    library().ShowSalesTaxGroupCodes(groupID);
    refreshCodes();
}

}  // namespace tsln::lists
