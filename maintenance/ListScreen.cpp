#include "maintenance/ListScreen.h"

#include <algorithm>
#include <iterator>

#include "maintenance/ListCommands.h"
#include "maintenance/ListKinds.h"
#include "maintenance/ListRows.h"
#include "maintenance/modSharedReportControl.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

using modSharedReportControl::anySelected;
using modSharedReportControl::focusedRecord;
using modSharedReportControl::oneFocused;
using modSharedReportControl::selectedID;
using modSharedSQL::format;

constexpr std::string_view busyMark = " (Busy...)";

std::string_view sourceOf(const ListDescription& list) {
    return list.view.empty() ? list.table : list.view;
}

}  // namespace

/// Marks the screen as busy while a load or a delete runs: its buttons wait, the pointer is the hourglass and
/// the caption says so. Lists that do not show the state are not marked.
class ListScreen::Busy {
  public:
    explicit Busy(ListScreen& screen) : screen_(screen) {
        if (!screen_.description_.busyState) return;
        screen_.busy_ = true;
        for (Button* button :
             {&screen_.cmdNew, &screen_.cmdEdit, &screen_.cmdDelete, &screen_.cmdMore, &screen_.cmdClose}) {
            if (button->enabled()) waiting_.push_back(button);
            button->setEnabled(false);
        }
        screen_.setPointerBusy(true);
        screen_.setCaption(screen_.caption() + std::string(busyMark));
        screen_.desktop().yield();
    }
    ~Busy() {
        if (!screen_.description_.busyState) return;
        std::string caption = screen_.caption();
        if (caption.ends_with(busyMark)) caption.resize(caption.size() - busyMark.size());
        screen_.setCaption(std::move(caption));
        screen_.setPointerBusy(false);
        // Just those that waited: work that failed must not open a command the user has no right to.
        for (Button* button : waiting_)
            button->setEnabled(true);
        screen_.busy_ = false;
    }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

  private:
    ListScreen& screen_;
    std::vector<Button*> waiting_;
};

ListScreen::ListScreen(Library& library, const ListDescription& description)
    : HostScreen(library, std::string(description.screenName)), description_(description) {
    setCaption(std::string(description.caption));
    rptItems.accessibleName = description.caption;

    cmdNew.onClick = [this] { cmdNew_Click(); };
    cmdEdit.onClick = [this] { cmdEdit_Click(); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdMore.onClick = [this] { cbContext.showPopup(command::more, cmdMore); };
    cmdHelp.onClick = [this] { Form_Help(); };
    cmdClose.onClick = [this] { cmdClose_Click(); };
    rptItems.onSelectionChanged = [this] { updateButtons(); };
    rptItems.onRowDoubleClick = [this](std::size_t) { cmdEdit.userPress(); };
    rptItems.onInsertKey = [this] { cmdNew.userPress(); };
    rptItems.onDeleteKey = [this] { cmdDelete.userPress(); };
    cbContext.onUpdate = [this](Command& command) { cbContext_Update(command); };
    cbContext.onExecute = [this](int id) { cbContext_Execute(id); };
}

Layout ListScreen::layout() {
    using namespace tsln::layout;
    std::vector<Layout> buttons;
    for (Button* button : {&cmdNew, &cmdEdit, &cmdDelete, &cmdMore}) {
        if (button->visible()) buttons.push_back(item(*button));
    }
    std::ranges::move(furtherButtons(), std::back_inserter(buttons));
    std::vector<Layout> parts{row(std::move(buttons)), fill(rptItems)};
    std::ranges::move(belowList(), std::back_inserter(parts));
    parts.push_back(framed(grpOK, row({spring(), item(cmdHelp), item(cmdClose)})));
    return column(std::move(parts));
}

void ListScreen::Form_Load() {
    restoreWindowPosition(*this);
    for (const ListColumn& column : description_.columns) {
        rptItems.columns.push_back({.caption = std::string(column.caption),
                                    .width = column.width,
                                    .rightAligned = column.show == ListColumn::Show::Number,
                                    .numeric = column.show == ListColumn::Show::Number});
    }
    buildListCommands(cbContext, description_.listKind.has_value(), false);
    auto& more = cbContext.popup(command::more)->commands;
    if (description_.moveReferencesCode) {
        more.push_back({.id = command::moveReferences, .caption = "Move References", .beginsGroup = true});
    }
    if (description_.defaults) {
        more.push_back({.id = command::installDefaults,
                        .caption = "Install Defaults",
                        .beginsGroup = !description_.moveReferencesCode});
    }
    setFocus(rptItems);
}

void ListScreen::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    desktop().yield();
    loadList();
    desktop().yield();  // what is asked or told now is about the rows that are to be seen
    welcome();
}

void ListScreen::welcome() {
    if (rptItems.recordCount() == 0 && description_.defaults && can(Right::Add) && can(Right::Edit) &&
        ask(description_.defaults->question)) {
        installDefaults();
    }
}

bool ListScreen::Form_QueryUnload(bool byCloseBox) {
    return !(byCloseBox && busy_);
}

void ListScreen::Form_Unload() {
    saveWindowPosition(*this);
}

void ListScreen::cmdClose_Click() {
    closedByClose = true;
    unload();
}

// The rows --------------------------------------------------------------------------------------------

std::string ListScreen::loadStatement() const {
    return format("SELECT * FROM {0} ORDER BY {1}", sourceOf(description_), description_.orderBy);
}

ReportRecords ListScreen::readRows(const std::string& statement) const {
    return readListRows(host().database().ExecuteReadText(statement), description_.columns);
}

void ListScreen::loadList() {
    {
        const Busy busy(*this);
        // The rows are in hand before the old ones go: a failed load leaves the list as it was.
        rptItems.setRecords(readRows(loadStatement()));
        rptItems.populate();
    }
    updateButtons();
    listLoaded();
}

void ListScreen::showSaved(std::int32_t ID, std::optional<std::size_t> edited) {
    const ReportRecords saved =
        readRows(format("SELECT * FROM {0} WHERE ID = {1}", sourceOf(description_), ID));
    if (saved.count() == 0) return;  // gone again by another user's hand: it stays until the next load
    std::vector<std::string_view> cells;
    for (std::size_t c = 0; c < saved.columns(); ++c)
        cells.push_back(saved.cell(0, c));
    if (edited) {
        rptItems.replaceRecord(*edited, cells);
        rptItems.populate();
        return;
    }
    const std::size_t added = rptItems.addRecord(ID, cells);
    rptItems.populate();
    if (const auto shown = rptItems.findRow(added)) rptItems.selectRow(*shown);
    updateButtons();
}

void ListScreen::cmdNew_Click() {
    const std::int32_t ID = edit(0);
    if (ID <= 0) return;
    showSaved(ID, std::nullopt);
    added(ID);
}

void ListScreen::cmdEdit_Click() {
    const auto record = focusedRecord(rptItems);
    if (!record) return;
    const std::int32_t ID = edit(rptItems.id(*record));
    if (ID > 0) showSaved(ID, record);
}

std::int32_t ListScreen::edit(std::int32_t ID) {
    Argument argument(ID);
    return library().perform(description_.edit, Arguments({&argument, 1})).toLong();
}

void ListScreen::cmdDelete_Click() {
    if (!anySelected(rptItems)) return;
    const auto showWhatIsLeft = [this] {
        rptItems.populate();
        updateButtons();
    };
    try {
        const Busy busy(*this);
        deleteSelected();
    } catch (...) {
        showWhatIsLeft();  // rows that are deleted stay deleted, and the list says so
        throw;
    }
    showWhatIsLeft();
}

void ListScreen::deleteSelected() {
    constexpr int rowsBetweenRepaints = 50;
    int done = 0;
    for (const std::size_t row : rptItems.selectedRows()) {
        if (rptItems.row(row).isGroup()) continue;
        const std::size_t record = rptItems.row(row).record;
        if (++done % rowsBetweenRepaints == 0) desktop().yield();
        if (!mayDelete(record)) continue;
        if (!host().database().ExecuteNonQuery(
                format("DELETE FROM {0} WHERE ID = {1}", description_.table, rptItems.id(record)))) {
            reportDatabaseFailure(description_.deleteFailure);
            return;
        }
        rptItems.removeRecord(record);
    }
}

bool ListScreen::mayDelete(std::size_t record) {
    for (const DeletionCheck& check : description_.deletionChecks) {
        const std::int32_t references = count(format(check.count, rptItems.id(record)));
        if (references > 0) {
            host().ShowMessageStyle1(format(check.message, rptItems.cell(record, 0), references),
                                     check.advice);
            return false;
        }
    }
    return true;
}

std::int32_t ListScreen::count(const std::string& statement) const {
    return host().database().ExecuteScaler(statement, "", "0").toLong();
}

void ListScreen::updateButtons() {
    const bool focused = oneFocused(rptItems);
    const bool selected = anySelected(rptItems);
    if (!focused) cmdEdit.setEnabled(false);
    if (!selected) cmdDelete.setEnabled(false);
    cmdNew.setEnabled(cmdNew.enabled() && can(Right::Add));
    cmdEdit.setEnabled(focused && can(Right::Edit));
    cmdDelete.setEnabled(selected && can(Right::Delete));
}

bool ListScreen::can(Right right) const {
    return !description_.securityArea || host().security().CanDo(*description_.securityArea, right);
}

// The commands ----------------------------------------------------------------------------------------

void ListScreen::cbContext_Update(Command& command) {
    switch (command.id) {
        case command::moveReferences:
            command.enabled = can(Right::Add) && can(Right::Edit) && oneFocused(rptItems);
            break;
        case command::import:
        case command::installDefaults:
            command.enabled = can(Right::Add) && can(Right::Edit);
            break;
        default:
            updateListCommand(command, &rptItems);
            break;
    }
}

void ListScreen::cbContext_Execute(int id) {
    switch (id) {
        case command::import:
            importList(*this, *description_.listKind);
            loadList();
            break;
        case command::exportList:
            exportRows();
            break;
        case command::moveReferences:
            library().ShowMoveReferences(*description_.moveReferencesCode, selectedID(rptItems));
            break;
        case command::installDefaults:
            installDefaults();
            break;
        default:
            executeListCommand(id, rptItems);
            break;
    }
}

void ListScreen::installDefaults() {
    library().RunPackageProcessor(description_.defaults->packageKey, true);
    loadList();
}

void ListScreen::exportRows() {
    exportList(*this, *description_.listKind);
}

}  // namespace tsln
