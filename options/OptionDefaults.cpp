#include "options/OptionDefaults.h"

#include <unordered_set>

#include "bridge/SqlEngine.h"
#include "options/ProductReader.h"
#include "shared/modSharedSQL.h"

namespace tsln::options {
namespace {

using modSharedSQL::format;

constexpr int verifyCommand = 28252;
enum Column : std::size_t { Name, Value };

std::string keyOrNull(std::int32_t productID) {
    return productID >= 1 ? std::to_string(productID) : "NULL";
}

const ListDescription plainList{
    .open = Operation::ShowOptionDefaults,
    .edit = Operation::ShowEditOptionDefault,
    .screenName = "frmOptionDefaults",
    .caption = "Option Defaults",
    .table = "OptionDefaults",
    .view = "vwMaintenance_OptionDefaults",
    .orderBy = "OptionName",
    .columns = {{"Option Name", 200, "OptionName"}, {"Option Value", 220, "OptionValue"}},
    .securityArea = optionsArea,
    .listKind = 5,
    .deleteFailure = "There was a problem deleting one or more option defaults.",
    .busyState = true,
    .dialog =
        {
            .newCaption = "Edit Option Default",
            .editCaption = "Edit Option Default",
            .fields = {fields::trimmed("txtName", "Option &name:", "OptionName", "<on>"),
                       fields::trimmed("txtValue", "Option &value:", "OptionValue", "<ov>")},
            .saveFailure = "There was a problem saving this option default.",
            .insert =
                "INSERT INTO OptionDefaults (ProductID, OptionName, OptionValue) VALUES(<pid>, '<on>', '<ov>')",
            .update = "UPDATE OptionDefaults SET OptionName = '<on>', OptionValue = '<ov>' WHERE ID = <id>",
        },
    .contextMenu = true,
};

/// Further vectors in the initializer above make GCC 12 warn of members that it wrongly takes for uninitialized.
ListDescription describeList() {
    ListDescription list = plainList;
    list.commands = {
        {.id = verifyCommand,
         .caption = "Verify Options",
         .popups = inMore | inNoItems | inOneItem,
         .run = [](ListScreen& screen) { dynamic_cast<OptionDefaults&>(screen).verifyOptions(); },
         .beginsGroup = true}};
    return list;
}

}  // namespace

const ListDescription optionDefaultsList = describeList();

std::string OptionDefaults::loadStatement() const {
    return isOfOneProduct()
               ? format("SELECT * FROM vwMaintenance_OptionDefaults WHERE ProductID = {0}", productID())
               : "SELECT * FROM vwMaintenance_OptionDefaults WHERE ProductID IS NULL";
}

void OptionDefaults::verifyOptions() {
    if (!isOfOneProduct()) {
        // Defaults for every product belong to no file that they could be compared with.
        tell("Option names can be verified only for the defaults of one product.", MessageIcon::Information);
        return;
    }
    host().ShowMessageStyle1WithMemory(
        "This function will check the option names against those in this product to make sure they are valid.",
        "Option values are not checked. It is recommended that you perform some testing after you are done to ensure that the defaults you have entered are applied correctly.");
    std::unordered_set<std::string> known;
    {
        const SqlEngine engine(host());
        ProductReader reader(*this);
        if (!openOrTell(reader, productID(), host(),
                        "Unable to identify product information in the product."))
            return;
        for (const ProductReader::Option& option : reader.options())
            known.emplace(option.name());
    }
    bool allKnown = true;
    for (std::size_t row = 0; row < rptItems.rowCount(); ++row) {
        const std::string name(rptItems.rowText(row, Name));
        if (known.contains(name)) continue;
        allKnown = false;
        if (desktop().messageBox(this, "The option \"" + name + "\" does not exist.",
                                 MessageButtons::OkCancel,
                                 MessageIcon::Exclamation) == MessageAnswer::Cancel) {
            return;
        }
    }
    if (allKnown) tell("All of the option names for this product are valid.", MessageIcon::Information);
}

// The dialog ----------------------------------------------------------------------------------------------

bool OptionDefaultDialog::validate() {
    normalizeFields();
    for (const char* name : {"txtName", "txtValue"}) {
        if (!textBox(name).text().empty()) continue;
        refuse("You must enter an option name and value.", &textBox(name));
        return false;
    }
    const std::string statement = modSharedSQL::fillTags(
        isNew()
            ? "SELECT ID FROM OptionDefaults WHERE ProductID <pid> AND OptionName = '<on>'"
            : "SELECT ID FROM OptionDefaults WHERE ProductID <pid> AND OptionName = '<on>' AND ID <> <id>",
        {{"<pid>", productID >= 1 ? "= " + std::to_string(productID) : "IS NULL"},
         {"<id>", ID},
         {"<on>", modSharedSQL::doubleQuotes(textBox("txtName").text())}});
    const Variant existing = host().database().ExecuteScaler(statement);
    if (existing.isEmpty() || existing.isNull() || existing.toLong() < 1) return true;
    refuse("This option already exists.", &textBox("txtName"));
    return false;
}

void OptionDefaultDialog::addTags(StatementTags& tags) {
    if (isNew()) tags.plain("<pid>", keyOrNull(productID));
}

}  // namespace tsln::options
