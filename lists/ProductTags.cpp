#include <algorithm>

#include "lists/Lists.h"
#include "lists/Tags.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::lists {
namespace {

using modSharedSQL::doubleQuotes;
using modSharedSQL::fillTags;
using modSharedSQL::format;

constexpr std::string_view saveFailure = "There was a problem saving this product tag.";
constexpr std::string_view insertTyped = "INSERT INTO ProductTags (ProductID, Tag) VALUES(<id>,'<t>')";
constexpr std::string_view insertChosen = "INSERT INTO ProductTags (ProductID, Tag) VALUES(<id>,'<st>')";

}  // namespace

const ListDescription productTagsList{
    .open = Operation::ShowProductTags,
    .edit = Operation::ShowEditProductTags,
    .screenName = "frmProductTags",
    .caption = "Product Tags",
    .table = "ProductTags",
    .orderBy = "Tag",
    .columns = {{"Tag", 280, "Tag"}},
    .listKind = 6,  // the kind of the phone labels (deliberate)
    .deleteFailure = "There was a problem deleting one or more product tags.",
    .editsRows = false,  // a tag has no further fields to edit
};

// The list ------------------------------------------------------------------------------------------------

ProductTagsScreen::ProductTagsScreen(Library& library, const ListDescription& description,
                                     std::int32_t productID)
    : ListScreen(library, description), productID_(productID) {}

std::string ProductTagsScreen::loadStatement() const {
    return format("SELECT * FROM ProductTags WHERE ProductID = {0} ORDER BY Tag", productID_);
}

void ProductTagsScreen::listLoaded() {
    if (named_) return;
    named_ = true;
    setCaption(caption() + " - " + host().common().GetProductNameFromID(productID_));
}

void ProductTagsScreen::cmdNew_Click() {
    if (library().ShowEditProductTags(productID_) > 0) loadList();
}

// The dialog ----------------------------------------------------------------------------------------------

ProductTagsDialog::ProductTagsDialog(Library& library) : RecordDialog(library, "frmProductTags_Edit") {
    setCaption("Add Product Tags");
    lstUsed.columns = {{"Tags in Use", 200}};
    rptTags.columns = {{"Tags of This Product", 200}};
    rptTags.accessibleName = "Tags of this product";
    lstUsed.accessibleName = "Tags in use";
    Cancelled = false;  // the close box counts as OK, as in the other record dialogs
}

Layout ProductTagsDialog::content() {
    using namespace tsln::layout;
    return column({form({field("&New tag:", txtTag)}), stretch(row({fill(lstUsed), fill(rptTags)}))});
}

void ProductTagsDialog::opened() {
    setFocus(txtTag);
    const Records own =
        host().database().ExecuteRead(format("SELECT Tag FROM ProductTags WHERE ProductID = {0}", ID));
    const Records used = host().database().ExecuteRead("SELECT DISTINCT Tag FROM ProductTags ORDER BY Tag");
    for (const Record row : own) {
        const std::string tag = modSharedXML::readText("Tag", row);
        const std::string_view cell = tag;
        rptTags.addRecord(0, {&cell, 1});
    }
    rptTags.sortBy(ReportControl::SortOrder{0});
    for (const Record row : used)
        lstUsed.addEntry({.cells = {modSharedXML::readText("Tag", row)}});
}

bool ProductTagsDialog::add(std::string_view insert, std::string_view placeholder, const std::string& tag) {
    const std::string safe = doubleQuotes(tag);
    const std::string statement =
        format("SELECT COUNT(*) AS MyCount FROM ProductTags WHERE ProductID = {0} AND Tag = '{1}'", ID, safe);
    if (countOf(host().database().ExecuteScaler(statement, "", "0")) > 0) return true;
    if (host().database().ExecuteNonQuery(fillTags(insert, {{"<id>", ID}, {placeholder, safe}}))) return true;
    reportDatabaseFailure(saveFailure);
    return false;
}

bool ProductTagsDialog::save() {
    txtTag.setText(modSharedStrings::trim(txtTag.text()));
    const bool chosen = std::ranges::any_of(lstUsed.entries(), &CheckList::Entry::ticked);
    if (txtTag.text().empty() && !chosen) {
        refuse("You must enter a valid tag name.", &txtTag);
        return false;
    }
    if (!txtTag.text().empty() && !add(insertTyped, "<t>", txtTag.text())) return false;
    for (const CheckList::Entry& entry : lstUsed.entries()) {
        if (entry.ticked && !add(insertChosen, "<st>", entry.cells.front())) return false;
    }
    return true;
}

}  // namespace tsln::lists
