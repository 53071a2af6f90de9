#include "maintenance/ListScreen.h"

#include <algorithm>
#include <exception>

#include "maintenance/TextFile.h"
#include "maintenance/modSharedReportControl.h"
#include "screens/Job.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

using modSharedReportControl::anySelected;
using modSharedReportControl::focusedRecord;
using modSharedReportControl::oneFocused;
using modSharedSQL::format;

constexpr std::string_view busyMark = " (Busy...)";

std::string_view sourceOf(const ListDescription& list) {
    return list.view.empty() ? list.table : list.view;
}

ReportColumn reportColumn(const ListColumn& column) {
    using Show = ListColumn::Show;
    const bool numeric = column.show == Show::Number || column.show == Show::Currency;
    ReportColumn made{.caption = std::string(column.caption),
                      .width = column.width,
                      .rightAligned = numeric,
                      .numeric = numeric,
                      .editable = column.editable};
    if (column.show == Show::Check) made.kind = ReportColumn::Kind::Check;
    if (column.show == Show::Choice && column.editable) made.kind = ReportColumn::Kind::Choice;
    if (column.show == Show::Date) made.kind = ReportColumn::Kind::Date;
    if (column.show == Show::DateTime) made.kind = ReportColumn::Kind::DateTime;
    for (const Choice& choice : column.choices)
        made.choices.push_back({choice.number, std::string(choice.caption)});
    return made;
}

}  // namespace

/// Marks the screen as busy while it loads or deletes: the buttons are disabled, the pointer is an hourglass and the
/// caption says so. At the end New, Edit and Delete are set by the current rights and selection. A list without
/// `busyState` is not marked.
class ListScreen::BusyState {
  public:
    explicit BusyState(ListScreen& screen) : screen_(screen) {
        if (!screen_.description_.busyState) return;
        busy_.emplace(screen_,
                      std::initializer_list<Button*>{&screen_.cmdNew, &screen_.cmdEdit, &screen_.cmdDelete,
                                                     &screen_.cmdMore, &screen_.cmdClose});
        screen_.setPointerBusy(true);
        screen_.setCaption(screen_.caption() + std::string(busyMark));
        screen_.desktop().yield();
    }
    ~BusyState() {
        if (!busy_) return;
        std::string caption = screen_.caption();
        if (caption.ends_with(busyMark)) caption.resize(caption.size() - busyMark.size());
        screen_.setCaption(std::move(caption));
        screen_.setPointerBusy(false);
        busy_.reset();
        for (Button* button : {&screen_.cmdNew, &screen_.cmdEdit, &screen_.cmdDelete})
            button->setEnabled(true);
        if (updateButtons()) return;
        // The user's rights are unknown, so the buttons stay disabled.
        for (Button* button : {&screen_.cmdNew, &screen_.cmdEdit, &screen_.cmdDelete})
            button->setEnabled(false);
    }
    BusyState(const BusyState&) = delete;
    BusyState& operator=(const BusyState&) = delete;

  private:
    bool updateButtons() {
        // After a failure, an error here is not reported: the failure itself is.
        if (std::uncaught_exceptions() == exceptions_)
            return screen_.handle([this] { screen_.updateButtons(); });
        try {
            screen_.updateButtons();
            return true;
        } catch (const std::exception&) {
            return false;
        }
    }

    ListScreen& screen_;
    std::optional<Busy> busy_;
    const int exceptions_ = std::uncaught_exceptions();  // the number when the work began
};

/// Shows the progress bar and its button while it exists, if they are wanted.
class ListScreen::Progress {
  public:
    Progress(ListScreen& screen, bool wanted) : screen_(screen) { show(wanted); }
    ~Progress() { show(false); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

  private:
    void show(bool visible) {
        screen_.prgWork.setVisible(visible);
        screen_.cmdStop.setVisible(visible);
    }

    ListScreen& screen_;
};

ListScreen::ListScreen(Library& library, const ListDescription& description)
    : HostScreen(library, std::string(description.screenName)),
      rptItems(*this, std::string(description.listName)),
      description_(description),
      rights_(description.securityArea) {
    setCaption(std::string(description.caption));
    rptItems.accessibleName = description.caption;
    textFile_ = fileName(description.caption, ".txt");
    exportFile_ = fileName(description.caption, ".xml");
    prgWork.accessibleName = "Progress";
    for (Control* control : {static_cast<Control*>(&prgWork), static_cast<Control*>(&cmdStop)})
        control->setVisible(false);

    cmdNew.onClick = [this] { cmdNew_Click(); };
    cmdEdit.onClick = [this] { cmdEdit_Click(); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdMore.onClick = [this] { cbContext.showPopup(command::more, cmdMore); };
    cmdHelp.onClick = [this] { Form_Help(); };
    cmdClose.onClick = [this] { cmdClose_Click(); };
    txtFilter.cueText = "Filter results";
    txtFilter.accessibleName = "Filter results";
    txtFilter.onChange = [this] { filterRows(); };
    rptItems.onSelectionChanged = [this] { updateButtons(); };
    rptItems.onRowDoubleClick = [this](std::size_t) { cmdEdit.userPress(); };
    rptItems.onInsertKey = [this] { cmdNew.userPress(); };
    rptItems.onDeleteKey = [this] { deleteKey(); };
    if (description.contextMenu) rptItems.onContextMenu = [this](std::size_t) { openContextMenu(); };
    cbContext.onUpdate = [this](Command& command) {
        if (const ListCommand* found = findCommand(command.id)) command.enabled = applies(*found);
    };
    cbContext.onExecute = [this](int id) { runCommand(id); };

    makeCommands();
    for (const ListCommand& command : commands_) {
        if (command.button.empty()) continue;
        commandButtons_.emplace_back(*this, command).button.onClick = [this, id = command.id] {
            runCommand(id);
        };
    }
}

Layout ListScreen::layout() {
    using namespace tsln::layout;
    std::vector<Layout> buttons;
    for (Button* button : {&cmdNew, &cmdEdit, &cmdDelete})
        buttons.push_back(item(*button));
    for (CommandButton& command : commandButtons_)
        buttons.push_back(item(command.button));
    buttons.push_back(item(cmdMore));
    if (description_.filter) buttons.insert(buttons.end(), {spring(), item(txtFilter)});
    std::ranges::move(furtherButtons(), std::back_inserter(buttons));
    std::vector<Layout> parts{row(std::move(buttons))};
    std::ranges::move(aboveList(), std::back_inserter(parts));
    parts.push_back(fill(rptItems));
    if (!description_.countLine.empty()) parts.push_back(item(lblRecords));
    std::ranges::move(belowList(), std::back_inserter(parts));
    parts.push_back(row({fill(prgWork), item(cmdStop)}));
    parts.push_back(framed(grpOK, row({spring(), item(cmdHelp), item(cmdClose)})));
    return column(std::move(parts));
}

void ListScreen::Form_Load() {
    restoreWindowPosition(*this);
    for (const ListColumn& column : description_.columns)
        rptItems.columns.push_back(reportColumn(column));
    if (const auto& groups = description_.groups) {
        using Order = ReportControl::Grouping::Order;
        rptItems.groupBy({.column = groups->column,
                          .order = groups->inRowOrder ? Order::ByAppearance : Order::ByText,
                          .emptyText = std::string(groups->emptyText)});
    }
    modSharedReportControl::restoreColumnLayout(rptItems, description_.columnLayoutKey);
    makePopups();
    setFocus(rptItems);
}

void ListScreen::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    desktop().yield();
    loadList();
    desktop().yield();  // the rows appear before questions and messages about them
    welcome();
}

void ListScreen::welcome() {
    if (rptItems.recordCount() == 0 && description_.defaults && can(Right::Add) && can(Right::Edit) &&
        ask(description_.defaults->question)) {
        installDefaults();
    }
}

void ListScreen::Form_Unload() {
    saveWindowPosition(*this);
    modSharedReportControl::saveColumnLayout(rptItems, description_.columnLayoutKey);
}

void ListScreen::cmdClose_Click() {
    closedByClose = true;
    unload();
}

// The rows --------------------------------------------------------------------------------------------

std::string ListScreen::loadStatement() const {
    return format("SELECT * FROM {0} ORDER BY {1}", sourceOf(description_), description_.orderBy);
}

std::string ListScreen::rowStatement(std::int32_t ID) const {
    return format("SELECT * FROM {0} WHERE ID = {1}", sourceOf(description_), ID);
}

ListRows ListScreen::readRows(const std::string& statement) const {
    ListRows rows = description_.source == RecordDescription::Source::Query
                        ? readListRows(host().database().ExecuteReadText(statement), description_.columns,
                                       description_.rowStyle, modSharedXML::RowReader::Way::OnePass,
                                       description_.keptFields)
                        : readListRows(host().companyConnection().read(statement), description_.columns,
                                       description_.rowStyle, description_.keptFields);
    completeRows(rows);
    return rows;
}

void ListScreen::loadList() {
    {
        const BusyState busy(*this);
        // All rows are read before the old ones are removed: a failed load leaves the list unchanged.
        ListRows rows = readRows(loadStatement());
        rowsRead(rows);
        rptItems.setRecords(std::move(rows.records));
        for (std::size_t i = 0; i < rows.styles.size(); ++i)
            rptItems.setStyle(i, rows.styles[i]);
        rptItems.populate();
        showCount();
    }
    updateButtons();
    listLoaded();
}

void ListScreen::showAdded(std::int32_t ID) {
    showSaved(ID, std::nullopt);
}

void ListScreen::showChanged(std::int32_t ID) {
    showSaved(ID, rptItems.findRecord(ID));
}

void ListScreen::showSaved(std::int32_t ID, std::optional<std::size_t> shown) {
    const ListRows saved = readRows(rowStatement(ID));
    if (saved.records.count() == 0) return;
    std::vector<std::string_view> cells;
    for (std::size_t c = 0; c < saved.records.columns(); ++c)
        cells.push_back(saved.records.cell(0, c));
    const std::size_t record = shown ? *shown : rptItems.addRecord(ID, cells);
    if (shown) rptItems.replaceRecord(record, cells);
    for (std::size_t c = 0; c < saved.records.columns(); ++c) {
        if (saved.records.hasSortValues(c)) rptItems.setSortValue(record, c, saved.records.sortValue(0, c));
    }
    if (!saved.styles.empty()) rptItems.setStyle(record, saved.styles.front());
    rptItems.populate();
    showCount();
    if (shown) return;
    if (const auto row = rptItems.findRow(record)) rptItems.selectRow(*row);
    updateButtons();
}

void ListScreen::filterRows() {
    rptItems.setFilter(txtFilter.text());
    showCount();
    updateButtons();
}

void ListScreen::showCount() {
    if (description_.countLine.empty()) return;
    std::size_t shown = 0;
    for (std::size_t row = 0; row < rptItems.rowCount(); ++row)
        shown += rptItems.row(row).isGroup() ? 0 : 1;
    lblRecords.setCaption(format(description_.countLine, static_cast<std::int64_t>(shown)));
}

std::int32_t ListScreen::selectedID() const {
    return modSharedReportControl::selectedID(rptItems);
}

std::string_view ListScreen::nameOf(std::size_t record) const {
    return rptItems.cell(record, description_.nameColumn);
}

std::vector<std::size_t> ListScreen::selectedRecords() const {
    std::vector<std::size_t> records;
    for (const std::size_t row : rptItems.selectedRows()) {
        if (!rptItems.row(row).isGroup()) records.push_back(rptItems.row(row).record);
    }
    return records;
}

void ListScreen::cmdNew_Click() {
    const std::int32_t ID = edit(0);
    if (ID <= 0) return;
    showAdded(ID);
    added(ID);
}

void ListScreen::cmdEdit_Click() {
    if (!focusedRecord(rptItems)) return;
    const std::int32_t ID = edit(selectedID());
    if (ID > 0) showChanged(ID);
}

std::int32_t ListScreen::edit(std::int32_t ID) {
    std::vector<Argument> arguments{Argument(ID)};
    for (Variant& further : furtherArguments())
        arguments.emplace_back(std::move(further));
    const std::int32_t saved = library().perform(description_.edit, Arguments(arguments)).toLong();
    rights_.forget();  // the rights may have changed while the dialog was open
    return saved;
}

void ListScreen::cmdDelete_Click() {
    if (!anySelected(rptItems)) return;
    {
        const BusyState busy(*this);
        // Also after a failure: rows that are deleted stay deleted, and the list shows it.
        const auto showRemaining = [this] {
            rptItems.populate();
            showCount();
        };
        try {
            deleteSelected();
        } catch (...) {
            showRemaining();
            updateButtons();
            throw;
        }
        showRemaining();
    }
    updateButtons();
}

/// Asks before it deletes, because a key is easily pressed by mistake. The button does not ask, unless the list always
/// does.
void ListScreen::deleteKey() {
    if (!cmdDelete.enabled() || !anySelected(rptItems)) return;
    if (description_.asksToDelete) return cmdDelete.userPress();
    const std::size_t rows = selectedRecords().size();
    if (ask(rows == 1 ? "Do you want to delete the selected row?"
                      : "Do you want to delete the selected rows?"))
        cmdDelete.userPress();
}

/// Shows its progress, and can be ended between two rows, when many rows are selected.
void ListScreen::deleteSelected() {
    constexpr std::size_t fewRows = 50;
    const std::vector<std::size_t> records = selectedRecords();
    const Progress progress(*this, records.size() > fewRows);
    Job job(*this, records.size(), &prgWork, records.size() > fewRows ? &cmdStop : nullptr);
    for (const std::size_t record : records) {
        if (!job.step()) return;
        if (!mayDelete(record)) continue;
        if (!host().database().ExecuteNonQuery(
                format("DELETE FROM {0} WHERE ID = {1}", description_.table, rptItems.id(record)))) {
            reportDatabaseFailure(format(description_.deleteFailure, nameOf(record)),
                                  description_.deleteExplanation);
            return;
        }
        rptItems.removeRecord(record);
    }
}

bool ListScreen::mayDelete(std::size_t record) {
    for (const DeletionCheck& check : description_.deletionChecks) {
        const std::int32_t references = count(format(check.count, rptItems.id(record)));
        if (references > 0) {
            host().ShowMessageStyle1(format(check.message, nameOf(record), references), check.advice);
            return false;
        }
    }
    return true;
}

std::int32_t ListScreen::count(const std::string& statement) const {
    return countOf(host().database().ExecuteScaler(statement, "", "0"));
}

void ListScreen::updateButtons() {
    const bool focused = oneFocused(rptItems) && description_.editsRows;
    const bool selected = anySelected(rptItems) && description_.deletesRows;
    if (!description_.addsRows) cmdNew.setEnabled(false);
    if (!focused) cmdEdit.setEnabled(false);
    if (!selected) cmdDelete.setEnabled(false);
    for (CommandButton& command : commandButtons_)
        command.button.setEnabled(applies(*findCommand(command.id)));
    cmdNew.setEnabled(cmdNew.enabled() && can(Right::Add));
    cmdEdit.setEnabled(focused && can(Right::Edit));
    cmdDelete.setEnabled(selected && can(Right::Delete));
}

bool ListScreen::can(Right right) {
    return rights_.holds(right, host());
}

}  // namespace tsln
