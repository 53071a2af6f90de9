// The commands of the option detail settings.

#include "maintenance/ListCommands.h"
#include "maintenance/modSharedReportControl.h"
#include "options/DetailSettings.h"
#include "options/Sequence.h"
#include "shared/modSharedStrings.h"

namespace tsln::options {
namespace {

constexpr int popupID = 28400;

/// The first options of a sequence that begins anew.
constexpr std::string_view firstOptions[] = {
    "Room Location", "Collection",  "Collection Type", "Operating System", "Design Option",
    "Overall Width", "Left Blind",  "Left Shade",      "Center Blind",     "Center Shade",
    "Right Blind",   "Right Shade", "Height",          "Overall Height",   "Blinds on Headrail",
    "Pattern",       "Finish"};

}  // namespace

/// A command of the popup. Commands for "all" rows apply to every row of the tab, those that a filter hides included.
struct DetailCommand {
    std::string_view caption;
    Rights rights;
    bool ofSelection;  ///< needs a selected row
    bool beginsGroup;
    void (*run)(DetailSettings& screen);

    static const std::vector<DetailCommand>& all() {
        using Screen = DetailSettings;
        using Rows = DetailSettings::Rows;
        constexpr Rights add = tsln::rights({Right::Add}), edit = tsln::rights({Right::Edit});
        constexpr Rights remove = tsln::rights({Right::Delete});
        // clang-format off
        static const std::vector<DetailCommand> commands{
            {"Check All",                     edit,       false, false, [](Screen& s) { s.check(s.allRecords(), true); }},
            {"Check Selected",                edit,       true,  false, [](Screen& s) { s.check(s.selectedRecords(), true); }},
            {"Uncheck All",                   edit,       false, false, [](Screen& s) { s.check(s.allRecords(), false); }},
            {"Uncheck Selected",              edit,       true,  false, [](Screen& s) { s.check(s.selectedRecords(), false); }},
            {"Convert Prefixes to Lowercase", edit,       false, true,  [](Screen& s) { s.convertPrefixes(modSharedStrings::toLower); }},
            {"Convert Prefixes to Uppercase", edit,       false, false, [](Screen& s) { s.convertPrefixes(modSharedStrings::toUpper); }},
            {"Add to Sequence",               edit,       true,  true,  [](Screen& s) { s.addToSequence(); }},
            {"Show All",                      0,          false, true,  [](Screen& s) { s.showOnly(Rows::All); }},
            {"Show only with Prefix",         0,          false, false, [](Screen& s) { s.showOnly(Rows::WithPrefix); }},
            {"Show only without Prefix",      0,          false, false, [](Screen& s) { s.showOnly(Rows::WithoutPrefix); }},
            {"Show only Checked",             0,          false, false, [](Screen& s) { s.showOnly(Rows::Checked); }},
            {"Show only Unchecked",           0,          false, false, [](Screen& s) { s.showOnly(Rows::Unchecked); }},
            {"Delete All",                    remove,     false, true,  [](Screen& s) { s.removeAll(); }},
            {"Reset Sequencing",              add | edit, false, false, [](Screen& s) { s.resetSequencing(); }},
            {"Scan Products for Settings",    add,        false, true,  [](Screen& s) { s.scan(); }},
        };
        // clang-format on
        return commands;
    }
};

void DetailSettings::makePopup() {
    Command popup{.id = popupID, .caption = "Option Details"};
    for (const DetailCommand& command : DetailCommand::all()) {
        popup.commands.push_back({.id = popupID + 1 + static_cast<int>(popup.commands.size()),
                                  .caption = std::string(command.caption),
                                  .beginsGroup = command.beginsGroup});
    }
    giveAccessLetters(popup.commands);
    cbContext.popups.push_back(std::move(popup));
    const auto commandOf = [](int id) -> const DetailCommand& {
        return DetailCommand::all().at(static_cast<std::size_t>(id - popupID - 1));
    };
    cbContext.onUpdate = [this, commandOf](Command& shown) {
        const DetailCommand& command = commandOf(shown.id);
        shown.enabled = (rights_ & command.rights) == command.rights && cmdOK.enabled() &&
                        (!command.ofSelection || modSharedReportControl::anySelected(current().rptItems));
    };
    cbContext.onExecute = [this, commandOf](int id) { commandOf(id).run(*this); };
}

std::vector<std::size_t> DetailSettings::allRecords() {
    std::vector<std::size_t> records(current().rptItems.recordCount());
    for (std::size_t record = 0; record < records.size(); ++record)
        records[record] = record;
    return records;
}

std::vector<std::size_t> DetailSettings::selectedRecords() {
    const ReportControl& items = current().rptItems;
    std::vector<std::size_t> records;
    for (const std::size_t row : items.selectedRows())
        records.push_back(items.row(row).record);
    return records;
}

void DetailSettings::cmdNew_Click() {
    // A row without name and prefix would be hidden by any filter.
    txtFilter.setText("");
    current().rptItems.setFilter("");
    showOnly(Rows::All);
    const std::size_t record = current().add("", notPlaced);
    ReportControl& items = current().rptItems;
    rowsChanged();
    if (const auto row = items.findRow(record)) items.selectRow(*row);
    updateButtons();
    items.setFocus();
    items.beginEdit(record, DetailList::Name);
}

void DetailSettings::removeSelected() {
    for (const std::size_t record : selectedRecords())
        current().remove(record);
    rowsChanged();
}

void DetailSettings::removeAll() {
    for (const std::size_t record : allRecords())
        current().remove(record);
    rowsChanged();
}

void DetailSettings::check(const std::vector<std::size_t>& records, bool shown) {
    for (const std::size_t record : records)
        current().rptItems.setCell(record, DetailList::Show, shown ? "1" : "0");
    rowsChanged();
}

void DetailSettings::convertPrefixes(std::string (*convert)(std::string_view)) {
    ReportControl& items = current().rptItems;
    for (std::size_t record = 0; record < items.recordCount(); ++record)
        items.setCell(record, DetailList::Prefix, convert(items.cell(record, DetailList::Prefix)));
    rowsChanged();
}

/// The selected options that have no place yet follow the last one of the sequence, in the order in which they are shown.
/// Options that have a place keep it. When the numbers behind the last one are used up, free ones before it are given.
void DetailSettings::addToSequence() {
    DetailList& list = current();
    SequenceNumbers numbers;
    for (std::size_t record = 0; record < list.rptItems.recordCount(); ++record)
        numbers.use(list.sequence(record));
    std::size_t left = 0;
    for (const std::size_t record : selectedRecords()) {
        if (list.sequence(record) != notPlaced) continue;
        if (const auto number = numbers.next()) {
            list.setSequence(record, *number);
        } else {
            ++left;
        }
    }
    rowsChanged();
    if (left > 0)
        tell("The sequence is full. Some of the selected options were not added to it.",
             MessageIcon::Exclamation);
}

void DetailSettings::showOnly(Rows rows) {
    ReportControl& items = current().rptItems;
    const auto hasPrefix = [&items](std::size_t record) {
        return !items.cell(record, DetailList::Prefix).empty();
    };
    const auto isChecked = [&items](std::size_t record) { return items.checked(record, DetailList::Show); };
    switch (rows) {
        case Rows::All:
            items.setFilterPredicate(nullptr);
            break;
        case Rows::WithPrefix:
            items.setFilterPredicate(hasPrefix);
            break;
        case Rows::WithoutPrefix:
            items.setFilterPredicate([hasPrefix](std::size_t record) { return !hasPrefix(record); });
            break;
        case Rows::Checked:
            items.setFilterPredicate(isChecked);
            break;
        case Rows::Unchecked:
            items.setFilterPredicate([isChecked](std::size_t record) { return !isChecked(record); });
            break;
    }
    showCount();
    updateButtons();
}

/// The sequence that begins anew is that of the line description. An option that it does not have yet is added.
void DetailSettings::resetSequencing() {
    if (!ask(
            "You are about to reset all sequencing for all option details - and reset the options on the Sequence tab. Are you sure you want to continue?"))
        return;
    for (DetailList& list : lists) {
        for (std::size_t record = 0; record < list.rptItems.recordCount(); ++record)
            list.setSequence(record, notPlaced);
    }
    DetailList& sequence = lists.front();
    for (std::size_t i = 0; i < std::size(firstOptions); ++i) {
        const auto number = static_cast<std::int32_t>(i + 1);
        if (const auto record = sequence.find(firstOptions[i])) {
            sequence.setSequence(*record, number);
        } else {
            sequence.add(firstOptions[i], number);
        }
    }
    for (DetailList& list : lists)
        list.rptItems.populate();
    showCount();
    updateButtons();
}

/// The scan writes to the database at once. What it adds is shown beside the changes that OK has still to write.
void DetailSettings::scan() {
    library().ScanForOptionDetailSettings();
    for (DetailList& list : lists)
        list.loadAdded();
    showCount();
    updateButtons();
}

}  // namespace tsln::options
