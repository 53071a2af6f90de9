#include "lists/MoveListReferences.h"

#include "maintenance/ListDescription.h"
#include "shared/modSharedSQL.h"

namespace tsln::lists {
namespace {

using modSharedSQL::format;

/// The column's name in the rows of a result.
std::string_view withoutBrackets(std::string_view column) {
    if (column.starts_with('[')) column = column.substr(1, column.size() - 2);
    return column;
}

}  // namespace

MoveListReferences::MoveListReferences(Library& library) : RecordDialog(library, "frmMoveListReferences") {
    setCaption("Move References");
    txtName.setLocked(true);
    txtName.accessibleName = "Entry whose references move";
    cmdOK.setEnabled(false);
}

Layout MoveListReferences::content() {
    using namespace tsln::layout;
    return column({item(lblHeading), item(txtName), form({field("&To reference instead:", cboReplacement)})});
}

bool MoveListReferences::initialize(std::int16_t listCode, std::int32_t entry) {
    list_ = findReferencedList(listCode);
    ID = entry;
    if (!list_) {
        tell(format("There is no list with the code {0}.", listCode), MessageIcon::Exclamation);
        return false;
    }
    lblHeading.setCaption(std::string(list_->heading));
    return true;
}

void MoveListReferences::opened() {
    txtName.setText(
        host()
            .database()
            .ExecuteScaler(format("SELECT {0} FROM {1} WHERE ID = {2}", list_->nameColumn, list_->table, ID))
            .toText());
    host().common().LoadComboFromQuery(
        cboReplacement,
        format("SELECT ID, {0} FROM {1} WHERE ID <> {2}", list_->nameColumn, list_->table, ID),
        withoutBrackets(list_->nameColumn), "ID", list_->blankAllowed);
    cmdOK.setEnabled(true);
    setFocus(cboReplacement);  // only now: an empty combo box may refuse the focus
}

bool MoveListReferences::mayMoveTo(std::int32_t replacement) {
    if (replacement > 0) return true;
    if (list_->blankAllowed) return ask("Are you sure you want to change to a blank reference?");
    refuse("You cannot have a blank reference", &cboReplacement);
    return false;
}

std::optional<std::int64_t> MoveListReferences::move(std::int32_t replacement) {
    const std::string target = replacement > 0 ? std::to_string(replacement) : "NULL";
    const Database database = host().database();
    std::int64_t moved = 0;
    // There is no transaction: a failed update leaves the earlier ones in effect, and a second try moves the rest.
    for (const Reference& reference : list_->references) {
        // The host does not return how many rows an UPDATE changes.
        const std::int64_t rows =
            database.ExecuteScaler(format(countReferences(reference.table, reference.column), ID), "", "0")
                .toLong();
        const std::string update = format("UPDATE {2} SET {3} = {0} WHERE {3} = {1}", target, ID,
                                          reference.table, reference.column);
        if (!database.ExecuteNonQuery(update)) {
            reportDatabaseFailure(reference.failure());
            return std::nullopt;
        }
        moved += rows;
    }
    return moved;
}

bool MoveListReferences::save() {
    const std::int32_t replacement = cboReplacement.chosen().value_or(0);
    if (!mayMoveTo(replacement)) return false;
    const auto moved = move(replacement);
    if (!moved) return false;
    tell(format("Update complete. A total of {0} references where updated.", *moved),
         MessageIcon::Information);
    return true;
}

bool moveListReferences(Library& library, std::int16_t listCode, std::int32_t ID) {
    const auto closed = library.screens().show(
        "frmMoveListReferences", [&] { return std::make_shared<MoveListReferences>(library); },
        [&](MoveListReferences& screen) { return screen.initialize(listCode, ID); });
    return closed->Cancelled;
}

}  // namespace tsln::lists
