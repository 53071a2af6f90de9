#include "pricing/AdditionalCharges.h"

#include <map>

#include "automation/UnicodeText.h"
#include "pricing/ChargeCode.h"
#include "shared/modSharedSQL.h"

namespace tsln::pricing {
namespace {

using modSharedSQL::doubleQuotes;
using modSharedSQL::fillTags;
using modSharedSQL::format;
using Show = ListColumn::Show;

constexpr std::int32_t securityArea = 202;
constexpr std::size_t longestName = 64;            // characters
constexpr std::uint32_t disabledColor = 0x808080;  // grey

namespace chargeCommand {
constexpr int enable = 28310;
constexpr int disable = 28311;
constexpr int duplicate = 28312;
}  // namespace chargeCommand

constexpr std::string_view summaryFields[] = {"ChargeMethod", "Value", "Criteria"};
std::string summaryOf(std::span<const std::string_view> values) {
    return chargeSummary(modSharedXML::toLong(values[0]), values[1], values[2]);
}

ReportControl::Style style(bool enabled) {
    return enabled ? ReportControl::Style{} : ReportControl::Style{.color = disabledColor};
}
constexpr std::string_view styleFields[] = {"Enabled"};
ReportControl::Style styleOf(std::span<const std::string_view> values) {
    return style(modSharedXML::toBoolean(values[0]));
}

AdditionalChargesScreen& charges(ListScreen& list) {
    return dynamic_cast<AdditionalChargesScreen&>(list);
}

ListDescription describe(const ChargeTypeInfo& type) {
    ListDescription list{
        .open = Operation::ShowAdditionalCharges,
        .edit = Operation::ShowEditAdditionalCharge,
        .screenName = "frmAdditionalCharges",
        .caption = type.listCaption,
        .table = "AdditionalCharges",
        .orderBy = "GroupName,Sequence,ChargeName",
        .columns = {{"Group", 110, "GroupName"},
                    {"Name", 180, "ChargeName"},
                    {.caption = "Details", .width = 320, .uses = summaryFields, .compute = summaryOf},
                    {"Begins", 80, "StartsOn", Show::Date},
                    {"Ends", 80, "EndsOn", Show::Date},
                    {"Code", 80, "ChargeCode"}},
        .nameColumn = 1,
        .securityArea = securityArea,
        .listKind = type.listKind,
        .deleteFailure = "The item '{0}' could not be deleted.",
        .deleteExplanation = saveAgainExplanation,
        .source = RecordDescription::Source::Recordset,
        .rowStyle = {styleFields, styleOf},
        .groups = ListGroups{.column = 0},
        .commands = {{.id = chargeCommand::enable,
                      .caption = "Enable",
                      .needs = Needs::SelectedRows,
                      .rights = rights({Right::Edit}),
                      .popups = inOneItem,
                      .run = [](ListScreen& screen) { charges(screen).enableSelected(true); },
                      .beginsGroup = true},
                     {.id = chargeCommand::disable,
                      .caption = "Disable",
                      .needs = Needs::SelectedRows,
                      .rights = rights({Right::Edit}),
                      .popups = inOneItem,
                      .run = [](ListScreen& screen) { charges(screen).enableSelected(false); }},
                     {.id = chargeCommand::duplicate,
                      .caption = "Duplicate",
                      .needs = Needs::FocusedRow,
                      .rights = rights({Right::Add}),
                      .popups = inOneItem,
                      .run = [](ListScreen& screen) { charges(screen).duplicateSelected(); },
                      .beginsGroup = true,
                      .button = "cmdDuplicate",
                      .buttonCaption = "D&uplicate"}},
        .contextMenu = true,
        .filter = true};
    if (!type.defaultsPackage.empty())
        list.defaults = DefaultSet{"Would you like to install the default items?", type.defaultsPackage};
    return list;
}

std::size_t characters(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count)
        nextCodePoint(text, at);
    return count;
}

}  // namespace

const ListDescription& chargesList(ChargeType type) {
    static const std::map<ChargeType, ListDescription> lists = [] {
        std::map<ChargeType, ListDescription> all;
        for (const ChargeTypeInfo& info : chargeTypes())
            all.emplace(info.type, describe(info));
        return all;
    }();
    return lists.at(type);
}

AdditionalChargesScreen::AdditionalChargesScreen(Library& library, const ListDescription& description,
                                                 ChargeType type)
    : ListScreen(library, description), type_(type) {
    showSearch(false);
}

std::string AdditionalChargesScreen::loadStatement() const {
    return "SELECT * FROM AdditionalCharges WHERE ChargeType = " + std::to_string(static_cast<int>(type_)) +
           " ORDER BY GroupName,Sequence,ChargeName";
}

std::vector<Variant> AdditionalChargesScreen::furtherArguments() const {
    return {static_cast<std::int16_t>(type_)};
}

std::vector<Layout> AdditionalChargesScreen::belowList() {
    using namespace tsln::layout;
    return {row({item(lblSearching), item(cmdCancelSearch), spring()})};
}

void AdditionalChargesScreen::enableSelected(bool enabled) {
    const std::vector<std::size_t> records = selectedRecords();
    Job job(*this, records.size(), nullptr, nullptr);
    for (const std::size_t record : records) {
        const std::string update = format("UPDATE AdditionalCharges SET Enabled = {0} WHERE ID = {1}",
                                          enabled ? 1 : 0, rptItems.id(record));
        if (!host().database().ExecuteNonQuery(update)) {
            reportDatabaseFailure(format("The additional charge '{0}' could not be updated.", nameOf(record)),
                                  saveAgainExplanation);
            return;
        }
        rptItems.setStyle(record, style(enabled));
        job.step();
    }
}

// Duplicating -----------------------------------------------------------------------------------------

void AdditionalChargesScreen::showSearch(bool shown) {
    lblSearching.setVisible(shown);
    cmdCancelSearch.setVisible(shown);
}

std::optional<std::string> AdditionalChargesScreen::findFreeName(const std::string& name) {
    // The suffix is never advanced (deliberate): while a charge has the name with the suffix, the search repeats.
    const std::string candidate = name + " 1";
    const std::string statement =
        fillTags("SELECT COUNT(*) AS theCount FROM AdditionalCharges WHERE ChargeName = '{{0}}'",
                 {{"{{0}}", doubleQuotes(candidate)}});
    const auto taken = [&] { return countOf(host().database().ExecuteScaler(statement)) >= 1; };
    if (taken()) {
        struct Shown {
            explicit Shown(AdditionalChargesScreen& list) : screen(list) { screen.showSearch(true); }
            ~Shown() { screen.showSearch(false); }
            AdditionalChargesScreen& screen;
        } const shown(*this);
        Job job(*this, 0, nullptr, &cmdCancelSearch);
        do {
            if (!job.goOn()) return std::nullopt;
        } while (taken());
    }
    return characters(candidate) <= longestName ? candidate : std::string();
}

void AdditionalChargesScreen::duplicateSelected() {
    const std::int32_t source = selectedID();
    const Records rows =
        host().database().ExecuteRead(format("SELECT * FROM AdditionalCharges WHERE ID = {0}", source));
    if (rows.empty()) {
        tell("A duplicate could not be created.", MessageIcon::Critical);
        return;
    }
    const auto name = findFreeName(modSharedXML::readText("ChargeName", rows.first()));
    if (!name) return;
    if (name->empty()) {
        tell("A duplicate could not be created because the new name would be too long.",
             MessageIcon::Critical);
        return;
    }
    const std::string statement = fillTags(
        "INSERT INTO AdditionalCharges (ChargeType, ChargeCode,     ApplyToPOs, Enabled, GroupName, ChargeName,     Description, Notes, Criteria, ChargeMethod, Cost, Value, Taxable, StartsOn, EndsOn, AutoAddToQuotes, AutoAddToPOs, IncludeWithProductItems, CustomerTypeID, VendorID, GroupAction) "
        "                      SELECT ChargeType, '<chargecode>', ApplyToPOs, Enabled, GroupName, '<chargename>', Description, Notes, Criteria, ChargeMethod, Cost, Value, Taxable, StartsOn, EndsOn, AutoAddToQuotes, AutoAddToPOs, IncludeWithProductItems, CustomerTypeID, VendorID, GroupAction FROM AdditionalCharges WHERE ID = <id>",
        {{"<chargecode>", makeChargeCode(host(), *name)},
         {"<chargename>", doubleQuotes(*name)},
         {"<id>", source}});
    const std::int32_t ID = host().database().ExecuteNonQueryWithID(statement);
    if (ID <= 0) return reportDatabaseFailure("A duplicate could not be created.", saveAgainExplanation);
    loadList();
    const auto record = rptItems.findRecord(ID);
    const auto shownRow = record ? rptItems.findRow(*record) : std::nullopt;
    if (shownRow) rptItems.selectRow(*shownRow);
    updateButtons();
}

void showAdditionalCharges(Library& library, std::int16_t flag) {
    constexpr std::int16_t plainTrue = -1;
    const std::int32_t number = flag == plainTrue ? static_cast<std::int32_t>(ChargeType::CustomerPromotion)
                                : flag == 0       ? static_cast<std::int32_t>(ChargeType::AdditionalCharge)
                                                  : flag;
    const ChargeTypeInfo* type = findChargeType(number);
    if (!type) {
        library.desktop().messageBox(nullptr, format("There is no charge type {0}.", flag),
                                     MessageButtons::Ok, MessageIcon::Exclamation);
        return;
    }
    showList<AdditionalChargesScreen>(library, chargesList(type->type), type->type);
}

}  // namespace tsln::pricing
