#include "lists/SalesTaxGroupCodes.h"

#include <set>

#include "shared/modSharedSQL.h"

namespace tsln::lists {

SalesTaxGroupCodes::SalesTaxGroupCodes(Library& library) : RecordDialog(library, "frmSalesTaxGroupCodes") {
    setCaption("Sales Tax Group Codes");
    lstCodes.columns = {{"Code", 140}, {"Rate (%)", 70, true}, {"Vendor/Agency", 220}};
    cmdOK.setEnabled(false);
    Cancelled = false;
}

Layout SalesTaxGroupCodes::content() {
    using namespace tsln::layout;
    return column({item(lblCodes), fill(lstCodes)});
}

void SalesTaxGroupCodes::opened() {
    setFocus(lstCodes);
    const std::string group = std::to_string(groupID);
    const Records groups = host().database().ExecuteRead("SELECT * FROM SalesTaxGroups WHERE ID = " + group);
    if (groups.empty()) {
        tell("This sales tax group does not exist any more.", MessageIcon::Exclamation);
        return hide();
    }
    setCaption("Sales Tax Codes of " + modSharedXML::readText("SalesTaxGroup", groups.first()));
    const Records codes = host().database().ExecuteRead("SELECT ID, Code, Rate, Vendor FROM SalesTaxCodes");
    const Records own = host().database().ExecuteRead(
        "SELECT SalesTaxCodeID FROM SalesTaxGroupCodes WHERE SalesTaxGroupID = " + group);
    std::set<std::int32_t> ticked;
    for (const Record row : own)
        ticked.insert(modSharedXML::readLong("SalesTaxCodeID", row));
    for (const Record row : codes) {
        const std::int32_t code = modSharedXML::readLong("ID", row);
        lstCodes.addEntry({.cells = {modSharedXML::readText("Code", row), modSharedXML::readText("Rate", row),
                                     modSharedXML::readText("Vendor", row)},
                           .itemData = code,
                           .ticked = ticked.contains(code)});
    }
    // Only now, and not without codes: saving replaces the group's codes by the shown ones.
    cmdOK.setEnabled(!codes.empty());
}

bool SalesTaxGroupCodes::save() {
    const Database database = host().database();
    if (!database.ExecuteNonQuery("DELETE FROM SalesTaxGroupCodes WHERE SalesTaxGroupID = " +
                                  std::to_string(groupID))) {
        reportDatabaseFailure("Sales tax code selection could not be saved. (3738)", saveAgainExplanation);
        return false;
    }
    for (const CheckList::Entry& code : lstCodes.entries()) {
        if (!code.ticked) continue;
        const std::string insert = modSharedSQL::fillTags(
            "INSERT INTO SalesTaxGroupCodes (SalesTaxGroupID, SalesTaxCodeID) VALUES(<g>,<c>)",
            {{"<g>", groupID}, {"<c>", code.itemData}});
        if (!database.ExecuteNonQuery(insert)) {
            reportDatabaseFailure("Sales tax code selection could not be saved. (3739)",
                                  saveAgainExplanation);
            return false;
        }
    }
    return true;
}

bool assignSalesTaxCodes(Library& library, std::int32_t groupID) {
    const auto closed = library.screens().show(
        "frmSalesTaxGroupCodes", [&] { return std::make_shared<SalesTaxGroupCodes>(library); },
        [&](SalesTaxGroupCodes& screen) { screen.groupID = groupID; });
    return closed->Cancelled;
}

}  // namespace tsln::lists
