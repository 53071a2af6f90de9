#include "lists/Lists.h"
#include "lists/Tags.h"
#include "maintenance/modSharedReportControl.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::lists {

const ListDescription portfolioTagsList{
    .open = Operation::ShowPortfolioTags,
    .edit = Operation::ShowEditPortfiolioTag,
    .screenName = "frmPortfolioTags",
    .caption = "Portfolio Tags",
    .table = "PortfolioTags",
    .orderBy = "Tag",
    .columns = {{"Tag", 160, "Tag"}, {"Portfolio File", 280, "FileName"}},
    .deleteFailure = "There was a problem deleting one or more portfolio tags(s).",
    .addsRows = false,  // tags are assigned to files elsewhere
};

std::string PortfolioTagsScreen::loadStatement() const {
    return "SELECT PortfolioTags.ID, PortfolioTags.Tag, Portfolio.FileName FROM PortfolioTags "
           "INNER JOIN Portfolio ON PortfolioTags.PortfolioID = Portfolio.ID ORDER BY PortfolioTags.Tag, Portfolio.FileName";
}

void PortfolioTagsScreen::cmdEdit_Click() {
    const auto record = modSharedReportControl::focusedRecord(rptItems);
    if (!record) return;
    // Renaming a tag can change many rows.
    if (!library().ShowEditPortfiolioTag(std::string(rptItems.cell(*record, 0)))) loadList();
}

PortfolioTagDialog::PortfolioTagDialog(Library& library) : RecordDialog(library, "frmPortfolioTags_Edit") {
    setCaption("Rename Portfolio Tag");
}

void PortfolioTagDialog::initialize(std::string tag) {
    tag_ = std::move(tag);
    txtTag.setText(tag_);
    setFocus(txtTag);
}

Layout PortfolioTagDialog::content() {
    return layout::form({layout::field("&Tag:", txtTag)});
}

bool PortfolioTagDialog::save() {
    using modSharedSQL::doubleQuotes;
    txtTag.setText(modSharedStrings::trim(txtTag.text()));
    if (txtTag.text().empty()) {
        refuse("You must enter a valid tag name.", &txtTag);
        return false;
    }
    const std::string statement =
        modSharedSQL::fillTags("UPDATE PortfolioTags SET Tag = '<new>' WHERE Tag = '<old>'",
                               {{"<new>", doubleQuotes(txtTag.text())}, {"<old>", doubleQuotes(tag_)}});
    if (!host().database().ExecuteNonQuery(statement)) {
        reportDatabaseFailure("There was a problem renaming the tags.");
        return false;
    }
    return true;
}

}  // namespace tsln::lists
