#include "options/DetailSettings.h"

#include "maintenance/ListCommands.h"
#include "maintenance/modSharedReportControl.h"
#include "options/ProductList.h"
#include "options/Sequence.h"
#include "screens/Job.h"
#include "shared/modSharedStrings.h"

namespace tsln::options {
namespace {

constexpr std::string_view screenName = "frmOptionDetailSettings";
constexpr std::string_view layoutKey = "TSLN5OptionDetails:2";
constexpr int firstWidth = 640, firstHeight = 560;  // pixels at 96 per inch
constexpr std::size_t fewRows = 50;                 // are saved without a progress bar

}  // namespace

DetailSettings::DetailSettings(Library& library) : RecordDialog(library, std::string(screenName)) {
    setCaption("Option Detail Settings");
    placement.width = firstWidth;
    placement.height = firstHeight;
    lists[0].rptItems.accessibleName = "Options of the line description";
    lists[1].rptItems.accessibleName = "Options of the second description";
    for (DetailList& list : lists)
        prepare(list);
    txtFilter.cueText = "Filter results";
    txtFilter.accessibleName = "Filter results";
    txtFilter.onChange = [this] { filterRows(); };
    ProgressBar1.accessibleName = "Progress";
    ProgressBar1.setVisible(false);
    TabControl1.onSelect = [this] { tabSelected(); };
    cmdNew.onClick = [this] { cmdNew_Click(); };
    cmdDelete.onClick = [this] { removeSelected(); };
    cmdMore.onClick = [this] { cbContext.showPopup(cbContext.popups.front(), cmdMore); };
    makePopup();
    updateButtons();
    cmdOK.setEnabled(false);  // until the settings are read
}

void DetailSettings::prepare(DetailList& list) {
    ReportControl& items = list.rptItems;
    items.cellEditable = [this, &list](std::size_t record, std::size_t column) {
        // An option's name is that of the product files, so only a new row gets one.
        return list.isNew(record) || (column != DetailList::Name && can(Right::Edit));
    };
    items.correctEdit = [this, &list](std::size_t record, std::size_t column, std::string_view typed) {
        return corrected(list, record, column, typed);
    };
    items.onSelectionChanged = [this] { updateButtons(); };
    items.onInsertKey = [this] { cmdNew.userPress(); };
    items.onDeleteKey = [this] { cmdDelete.userPress(); };
    items.onContextMenu = [this, &list](std::size_t) {
        cbContext.showPopup(cbContext.popups.front(), list.rptItems);
    };
}

Layout DetailSettings::content() {
    using namespace tsln::layout;
    return column(
        {row({item(cmdNew), item(cmdDelete), item(cmdMore), spring(), item(txtFilter)}),
         stretch(tabs(TabControl1, {column({fill(lists[0].rptItems)}), column({fill(lists[1].rptItems)})})),
         item(lblRecords)});
}

std::vector<Layout> DetailSettings::besideButtons() {
    return {layout::fill(ProgressBar1)};
}

void DetailSettings::Form_Load() {
    RecordDialog::Form_Load();
    for (DetailList& list : lists)
        modSharedReportControl::restoreColumnLayout(list.rptItems, layoutKey);
}

void DetailSettings::Form_Unload() {
    modSharedReportControl::saveColumnLayout(current().rptItems, layoutKey);
    RecordDialog::Form_Unload();
}

void DetailSettings::opened() {
    setFocus(current().rptItems);
    for (const Right right : {Right::Add, Right::Edit, Right::Delete}) {
        if (host().security().CanDo(optionsArea, right)) rights_ |= rights({right});
    }
    for (DetailList& list : lists)
        list.load();
    cmdOK.setEnabled(true);
    updateButtons();
    showCount();
}

bool DetailSettings::can(Right right) const {
    return (rights_ & rights({right})) != 0;
}

// The rows --------------------------------------------------------------------------------------------

/// The lists share the arrangement of their columns and the text of the filter.
void DetailSettings::tabSelected() {
    const ReportControl& left = lists[static_cast<std::size_t>(shownTab_)].rptItems;
    shownTab_ = TabControl1.selected();
    current().rptItems.setColumnLayout(left.columnLayout());
    filterRows();
}

void DetailSettings::filterRows() {
    current().rptItems.setFilter(txtFilter.text());
    showCount();
    updateButtons();
}

void DetailSettings::rowsChanged() {
    current().rptItems.populate();
    showCount();
    updateButtons();
}

void DetailSettings::showCount() {
    lblRecords.setCaption(
        modSharedSQL::format("{0} items", static_cast<std::int64_t>(current().rptItems.rowCount())));
}

void DetailSettings::updateButtons() {
    cmdNew.setEnabled(can(Right::Add));
    cmdDelete.setEnabled(can(Right::Delete) && modSharedReportControl::anySelected(current().rptItems));
}

std::optional<std::string> DetailSettings::corrected(DetailList& list, std::size_t record, std::size_t column,
                                                     std::string_view typed) {
    if (column == DetailList::Sequence) {
        if (const auto number = readSequence(typed)) return std::to_string(*number);
        tell(modSharedSQL::format("The sequence must be a whole number from 0 to {0}.", notPlaced),
             MessageIcon::Exclamation);
        return std::nullopt;
    }
    if (column != DetailList::Name) return std::string(typed);
    std::string name = modSharedStrings::trim(typed);
    if (!name.empty() && list.find(name, record)) {
        tell("This option already exists.", MessageIcon::Exclamation);
        return std::nullopt;
    }
    return name;
}

// OK --------------------------------------------------------------------------------------------------

bool DetailSettings::validate() {
    for (std::size_t location = 0; location < lists.size(); ++location) {
        const auto nameless = lists[location].find("");
        if (!nameless || !lists[location].isNew(*nameless)) continue;
        ReportControl& items = lists[location].rptItems;
        tell("You must enter an option name.", MessageIcon::Exclamation);
        TabControl1.userSelect(static_cast<int>(location));
        showOnly(Rows::All);
        if (const auto row = items.findRow(*nameless)) items.selectRow(*row);
        items.beginEdit(*nameless, DetailList::Name);
        return false;
    }
    return true;
}

/// Writes every change that can be written, and tells each one that cannot; those stay in the lists.
bool DetailSettings::save() {
    for (DetailList& list : lists) {
        if (list.keysAreMissing()) list.loadAdded();
    }
    std::array<std::vector<DetailList::Change>, 2> changes;
    std::size_t count = 0;
    for (std::size_t i = 0; i < lists.size(); ++i) {
        changes[i] = lists[i].changes();
        count += changes[i].size();
    }
    if (count == 0) return true;
    const Connection connection = host().companyConnection();
    ProgressBar1.setVisible(count > fewRows);
    bool allWritten = true;
    {
        Job job(*this, count, &ProgressBar1, count > fewRows ? &cmdCancel : nullptr);
        for (std::size_t i = 0; i < lists.size(); ++i) {
            for (const DetailList::Change& change : changes[i]) {
                if (job.cancelled()) {
                    allWritten = false;
                    break;
                }
                allWritten &= write(lists[i], change, connection);
                job.step();
            }
        }
    }
    ProgressBar1.setVisible(false);
    if (allWritten) return true;
    for (DetailList& list : lists) {
        if (list.keysAreMissing()) list.loadAdded();
    }
    return false;
}

bool DetailSettings::write(DetailList& list, const DetailList::Change& change, const Connection& connection) {
    try {
        if (list.write(change, connection)) return true;
    } catch (const HostError&) {
        // The host shows the connection's errors with the message.
    }
    const std::string setting = "Option detail setting '" + std::string(list.nameOf(change)) + "'";
    using Kind = DetailList::Change::Kind;
    const std::string_view failure = change.kind == Kind::Insert   ? " could not be saved. (3739)"
                                     : change.kind == Kind::Update ? " could not be saved. (3738)"
                                                                   : " could not be deleted.";
    reportConnectionFailure(setting + std::string(failure), saveAgainExplanation);
    return false;
}

void editDetailSettings(Library& library) {
    library.screens().show(
        screenName, [&] { return std::make_shared<DetailSettings>(library); }, [](DetailSettings&) {});
}

}  // namespace tsln::options
