#include "options/DetailList.h"

#include <algorithm>
#include <unordered_set>

#include "maintenance/StatementTags.h"
#include "options/Sequence.h"
#include "shared/modSharedStrings.h"

namespace tsln::options {
namespace {

constexpr std::int32_t notStored = 0;
constexpr std::int32_t keyUnknown = -1;  // inserted, but its key has not been read yet
constexpr std::int32_t deleted = -2;

const ListColumn columns[] = {{"Show", 55, "Show", ListColumn::Show::Check},
                              {"Option Name", 220, "OptionName"},
                              {"Prefix", 150, "Prefix"},
                              {"Sequence", 80, "Sequence", ListColumn::Show::Number}};

constexpr std::string_view boldField[] = {"isBold"};

ReportControl::Style boldStyle(std::span<const std::string_view> values) {
    return {.bold = modSharedXML::toBoolean(values[0])};
}

}  // namespace

DetailList::DetailList(HostScreen& screen, std::string controlName, int location)
    : rptItems(screen, std::move(controlName)),
      screen_(screen),
      location_(location),
      stored_(std::size(columns)) {
    for (const ListColumn& column : columns) {
        rptItems.columns.push_back(
            {.caption = std::string(column.caption), .width = column.width, .editable = true});
    }
    rptItems.columns[Show].kind = ReportColumn::Kind::Check;
    rptItems.columns[Sequence].numeric = true;
    rptItems.columns[Sequence].rightAligned = true;
}

// Reading -----------------------------------------------------------------------------------------------

std::string DetailList::loadStatement() const {
    return "SELECT * FROM OptionDetailSettings WHERE Location = " + std::to_string(location_) +
           " ORDER BY Sequence, OptionName";
}

ListRows DetailList::read() const {
    return readListRows(screen_.host().database().ExecuteReadText(loadStatement()), columns,
                        {.uses = boldField, .style = boldStyle});
}

void DetailList::addStored(std::int32_t ID, bool bold) {
    ids_.push_back(ID);
    bold_.push_back(bold);
}

void DetailList::load() {
    ListRows rows = read();
    ReportRecords shown(std::size(columns));
    shown.reserve(rows.records.count(), rows.records.textBytes());
    stored_ = std::move(rows.records);
    ids_.clear();
    bold_.clear();
    removed_.clear();
    for (std::size_t i = 0; i < stored_.count(); ++i) {
        addStored(stored_.id(i), rows.styles[i].bold);
        const std::string_view texts[] = {stored_.cell(i, Show), stored_.cell(i, Name),
                                          stored_.cell(i, Prefix), stored_.cell(i, Sequence)};
        shown.add(static_cast<std::int32_t>(i), texts);
    }
    rptItems.setRecords(std::move(shown));
    for (std::size_t i = 0; i < bold_.size(); ++i) {
        if (bold_[i]) rptItems.setStyle(i, {.bold = true});
    }
    rptItems.populate();
}

void DetailList::loadAdded() {
    const ListRows rows = read();
    const std::unordered_set<std::int32_t> known(ids_.begin(), ids_.end());
    std::vector<std::size_t> waiting;  // records whose keys are not known
    for (std::size_t record = 0; record < rptItems.recordCount(); ++record) {
        if (ids_[settingOf(record)] <= notStored) waiting.push_back(record);
    }
    for (std::size_t row = 0; row < rows.records.count(); ++row) {
        const std::int32_t ID = rows.records.id(row);
        if (known.contains(ID)) continue;
        const std::string_view texts[] = {rows.records.cell(row, Show), rows.records.cell(row, Name),
                                          rows.records.cell(row, Prefix), rows.records.cell(row, Sequence)};
        const auto own = std::ranges::find_if(waiting, [&](std::size_t record) {
            return modSharedStrings::equalNoCase(rptItems.cell(record, Name), texts[Name]);
        });
        if (own != waiting.end()) {  // the row of a setting that was added here
            ids_[settingOf(*own)] = ID;
            stored_.replace(settingOf(*own), texts);
            waiting.erase(own);
            continue;
        }
        const std::size_t setting = stored_.add(ID, texts);
        addStored(ID, rows.styles[row].bold);
        const std::size_t record = rptItems.addRecord(static_cast<std::int32_t>(setting), texts);
        if (bold_.back()) rptItems.setStyle(record, {.bold = true});
    }
    keysMissing_ = false;
    rptItems.populate();
}

// Editing -----------------------------------------------------------------------------------------------

std::size_t DetailList::add(std::string_view name, std::int32_t sequence) {
    const std::size_t setting = stored_.add(notStored, {});
    addStored(notStored, false);
    const std::string number = std::to_string(sequence);
    const std::string_view texts[] = {"1", name, "", number};
    return rptItems.addRecord(static_cast<std::int32_t>(setting), texts);
}

void DetailList::remove(std::size_t record) {
    if (!isNew(record)) removed_.push_back(settingOf(record));
    rptItems.removeRecord(record);
}

bool DetailList::isNew(std::size_t record) const {
    return ids_[settingOf(record)] == notStored;
}

std::optional<std::size_t> DetailList::find(std::string_view name, std::optional<std::size_t> except) const {
    for (std::size_t record = 0; record < rptItems.recordCount(); ++record) {
        if (record != except && modSharedStrings::equalNoCase(rptItems.cell(record, Name), name))
            return record;
    }
    return std::nullopt;
}

std::int32_t DetailList::sequence(std::size_t record) const {
    return readSequence(rptItems.cell(record, Sequence)).value_or(notPlaced);
}

void DetailList::setSequence(std::size_t record, std::int32_t number) {
    rptItems.setCell(record, Sequence, std::to_string(number));
}

// Writing -----------------------------------------------------------------------------------------------

bool DetailList::isChanged(std::size_t record) const {
    const std::uint32_t setting = settingOf(record);
    for (const Column column : {Show, Name, Prefix, Sequence}) {
        if (rptItems.cell(record, column) != stored_.cell(setting, column)) return true;
    }
    return false;
}

std::vector<DetailList::Change> DetailList::changes() const {
    std::vector<Change> found;
    for (std::size_t record = 0; record < rptItems.recordCount(); ++record) {
        if (!isNew(record) && !isChanged(record)) continue;
        found.push_back({isNew(record) ? Change::Kind::Insert : Change::Kind::Update, settingOf(record),
                         static_cast<std::uint32_t>(record)});
    }
    for (const std::uint32_t setting : removed_) {
        if (ids_[setting] != deleted) found.push_back({Change::Kind::Delete, setting, 0});
    }
    return found;
}

std::string_view DetailList::nameOf(const Change& change) const {
    return change.kind == Change::Kind::Delete ? stored_.cell(change.setting, Name)
                                               : rptItems.cell(change.record, Name);
}

bool DetailList::write(const Change& change, const Connection& connection) {
    if (change.kind == Change::Kind::Delete) {
        connection.Execute(modSharedSQL::fillTags("DELETE FROM OptionDetailSettings WHERE ID = <id>",
                                                  {{"<id>", ids_[change.setting]}}));
        ids_[change.setting] = deleted;
        return true;
    }
    const std::string_view texts[] = {rptItems.cell(change.record, Show), rptItems.cell(change.record, Name),
                                      rptItems.cell(change.record, Prefix),
                                      rptItems.cell(change.record, Sequence)};
    StatementTags tags(screen_.host(), SafeText::ByHost);
    tags.plain("<loc>", location_);
    tags.plain("<seq>", sequence(change.record));
    tags.plain("<s>", rptItems.checked(change.record, Show));
    tags.plain("<b>", bold_[change.setting] ? 1 : 0);
    tags.plain("<id>", ids_[change.setting]);
    tags.text("<on>", texts[Name]);
    tags.text("<p>", texts[Prefix]);
    if (change.kind == Change::Kind::Insert) {
        connection.Execute(tags.fill(
            "INSERT INTO OptionDetailSettings (Location,Sequence,Show,OptionName,Prefix,isBold) VALUES(<loc>,<seq>,<s>,'<on>','<p>',<b>)"));
        ids_[change.setting] = keyUnknown;
        keysMissing_ = true;
    } else if (
        connection.ExecuteCounting(tags.fill(
            "UPDATE OptionDetailSettings SET Sequence = <seq>, Show = <s>, OptionName = '<on>', Prefix = '<p>', isBold = <b> WHERE ID = <id>")) ==
        0) {
        return false;
    }
    stored_.replace(change.setting, texts);
    return true;
}

}  // namespace tsln::options
