#include "messages/TemplatesList.h"

#include <algorithm>

#include "messages/TemplateTypes.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedXML.h"

namespace tsln::messages {
namespace {

using modSharedSQL::format;

enum Column : std::size_t { Template, Type, Favorite, Group };

constexpr std::string_view typeFields[] = {"TemplateType"};

std::string typeCaption(std::span<const std::string_view> values) {
    const auto type = std::ranges::find(templateTypes, modSharedXML::toLong(values[0]), &Choice::number);
    return std::string(type == std::end(templateTypes) ? "Unknown" : type->caption);
}

}  // namespace

const ListDescription templatesList{
    .open = Operation::ShowEmailTemplates,
    .edit = Operation::ShowEditEmailTemplate,
    .screenName = "frmEmailTemplates",
    .listName = "rptTemplates",
    .caption = "E-mail Templates",
    .table = "EmailTemplates",
    .orderBy = "GroupName, TemplateName",
    .columns = {{"Template", 200, "TemplateName"},
                {.caption = "Type", .width = 140, .uses = typeFields, .compute = typeCaption},
                {"Favorite", 70, "Favorite", ListColumn::Show::Check},
                {"Group", 120, "GroupName"},
                {"Description", 200, "Description"}},
    .securityArea = 503,
    .listKind = 27,
    .defaults = DefaultSet{"Would you like to install the default email templates?", "TSLN50_EmailTemplates"},
    .asksToDelete = true,
    .groups = ListGroups{.column = Group},
    .contextMenu = true,
};

TemplatesList::TemplatesList(Library& library, const ListDescription& description, bool oneType)
    : ListScreen(library, description), oneType_(oneType) {
    for (const Choice& type : templateTypes)
        cboType.addItem(std::string(type.caption), type.number);
    cboType.setListIndex(0);
    cboType.onClick = [this] { loadList(); };
}

std::vector<Layout> TemplatesList::furtherButtons() {
    if (!oneType_) return {};
    return {layout::spring(), layout::field("&Type:", cboType)};
}

std::string TemplatesList::loadStatement() const {
    if (!oneType_) return ListScreen::loadStatement();
    return format("SELECT * FROM {0} WHERE TemplateType = {1} ORDER BY {2}", description().table,
                  cboType.chosen().value_or(0), description().orderBy);
}

void TemplatesList::cmdEdit_Click() {
    const std::int32_t ID = selectedID();
    ListScreen::cmdEdit_Click();
    leaveOutOtherType(ID);
}

/// A template of another type than the shown one, which the editor may have saved, is not listed.
void TemplatesList::leaveOutOtherType(std::int32_t ID) {
    if (!oneType_) return;
    const auto record = rptItems.findRecord(ID);
    if (!record || rptItems.cell(*record, Type) == cboType.text()) return;
    rptItems.removeRecord(*record);
    rptItems.populate();
    updateButtons();
}

void TemplatesList::deleteSelected() {
    const std::vector<std::size_t> records = selectedRecords();
    const auto name = [this](std::size_t record) { return std::string(rptItems.cell(record, Template)); };
    const bool wanted =
        records.size() == 1
            ? host().AskMessageStyle2(
                  "Are you sure you want to delete the email template '" + name(records.front()) + "'?",
                  "Once deleted, the template cannot be recovered.")
            : host().AskMessageStyle2("Are you sure you want to delete the selected templates?",
                                      "Once deleted, the templates cannot be recovered.");
    if (!wanted) return;
    for (const std::size_t record : records) {
        if (!host().database().ExecuteNonQuery("DELETE FROM EmailTemplates WHERE ID = " +
                                               std::to_string(rptItems.id(record)))) {
            return reportDatabaseFailure("The email template '" + name(record) + "' could not be deleted.",
                                         saveAgainExplanation);
        }
        rptItems.removeRecord(record);
    }
}

}  // namespace tsln::messages
