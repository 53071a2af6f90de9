#include "options/OptionCallouts.h"

#include <algorithm>

#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::options {
namespace {

using modSharedSQL::format;

enum When : std::int32_t { Always, IfEmpty, IfContains };
constexpr Choice conditions[] = {
    {Always, "Always"}, {IfEmpty, "If value is empty"}, {IfContains, "If value contains"}};

constexpr std::int32_t firstColor = 0x0000FF;  // red, of a new callout

constexpr std::string_view criteriaFields[] = {"ColorWhen", "FriendlyColorWhen", "ColorCriteria"};

/// The condition in words, with the text that the value must contain.
std::string criteriaText(std::span<const std::string_view> values) {
    std::string text(values[1]);
    if (modSharedXML::toLong(values[0]) == IfContains) text += " '" + std::string(values[2]) + "'";
    return text;
}

struct SampleOption {
    std::string_view name, value;
};
constexpr SampleOption samples[] = {
    {"Room Location", "Kitchen"}, {"Pattern", "Please Select"}, {"Mount", "Inside"}};
enum ExampleColumn : std::size_t { Name, Value, Color };
constexpr std::string_view notSelected = "Please Select";  // the text of an option without a value

/// Whether a value meets the condition. Letter case does not matter: users type values as they come.
bool meets(std::string_view value, std::int32_t when, std::string_view criteria) {
    switch (when) {
        case Always:
            return true;
        case IfEmpty:
            return value.empty() || value == notSelected;
        case IfContains:
            return modSharedStrings::foldCase(value).find(modSharedStrings::foldCase(criteria)) !=
                   std::string::npos;
        default:
            return false;
    }
}

/// Chooses the entry with this number, and adds it under `name` when the list does not have it: a stored choice must
/// not change because its record is no longer offered.
void chooseOrAdd(ComboBox& combo, std::int32_t number, const std::string& name) {
    if (!combo.choose(number)) combo.setListIndex(combo.addItem(name, number));
}

}  // namespace

const ListDescription optionCalloutsList{
    .open = Operation::ShowOptionCallouts,
    .edit = Operation::ShowEditOptionCallout,
    .screenName = "frmOptionCallouts",
    .caption = "Option Callouts",
    .table = "OptionCallouts",
    .view = "vwMaintenance_OptionCallouts",
    .orderBy = "OptionName",
    .columns =
        {{.caption = "Product Type", .width = 130, .field = "ProductType", .instead = "Any Product Type"},
         {.caption = "Product", .width = 180, .field = "Product", .instead = "Any Product"},
         {.caption = "Style", .width = 100, .field = "Style", .instead = "Any Style"},
         {"Option Name", 130, "OptionName"},
         {.caption = "Criteria", .width = 160, .uses = criteriaFields, .compute = criteriaText},
         {"Color (#)", 80, "Color", ListColumn::Show::Number},
         {"Message", 240, "Message"}},
    .nameColumn = 3,
    .securityArea = optionsArea,
    .listKind = 29,
    .deleteFailure = "There was a problem deleting one or more option callouts.",
    .busyState = true,
    .dialog =
        {
            .newCaption = "New Option Callout",
            .editCaption = "Edit Option Callout",
            .fields = {fields::text("txtOption", "&Option:", "OptionName", "<option>")
                           .required("You must enter the name of an option for this callout to apply to."),
                       fields::choice("cboWhen", "&When:", "ColorWhen", "<clrwhen>", conditions),
                       fields::text("txtCriteria", "Te&xt:", "ColorCriteria", "<criteria>"),
                       fields::lines("txtMessage", "&Message:", "Message", "<msg>")},
            .saveFailure = "There was a problem saving this option callout.",
            .insert =
                "INSERT INTO OptionCallouts (ProductTypeID,ProductID,Style,OptionName,Color,ColorWhen,ColorCriteria,Message) VALUES(<ptid>,<pid>,'<style>','<option>',<clr>,<clrwhen>,'<criteria>','<msg>')",
            .update =
                "UPDATE OptionCallouts SET ProductTypeID = <ptid>, ProductID = <pid>, Style = '<style>', OptionName = '<option>', Color = <clr>, ColorWhen = <clrwhen>, ColorCriteria = '<criteria>', Message = '<msg>' WHERE ID = <id>",
        },
    .contextMenu = true,
};

std::string OptionCallouts::loadStatement() const {
    const std::string product = isOfOneProduct() ? " = " + std::to_string(productID()) : " >= 0";
    return format("SELECT * FROM vwMaintenance_OptionCallouts WHERE ProductID {0} ORDER BY OptionName",
                  product);
}

// The dialog ----------------------------------------------------------------------------------------------

OptionCalloutDialog::OptionCalloutDialog(Library& library, const ListDescription& list)
    : RecordDialog(library, list) {
    cboProductType.accessibleName = "Product type";
    cboProduct.accessibleName = "Product";
    cboStyle.accessibleName = "Style";
    for (OptionButton* all : {&optAllProductTypes, &optAllProducts, &optAllStyles})
        all->setSelected(true);
    ColorPicker1.setColor(firstColor);

    rptExample.columns = {{.caption = "Option Name", .width = 150},
                          {.caption = "Option Value", .width = 150},
                          {.caption = "Color", .width = 90, .rightAligned = true}};
    rptExample.accessibleName = "Example";
    rptExample.rowsAtFirst = static_cast<int>(std::size(samples)) + 1;
    for (const SampleOption& sample : samples) {
        const std::string_view cells[] = {sample.name, sample.value};
        rptExample.addRecord(0, cells);
    }
    rptExample.populate();

    for (OptionButton* option :
         {&optAllProductTypes, &optSpecificProductType, &optAllStyles, &optSpecificStyle})
        option->onClick = [this] { enableChoices(); };
    for (OptionButton* option : {&optAllProducts, &optSpecificProduct})
        option->onClick = [this] { productChosen(); };
    cboProduct.onClick = [this] { productChosen(); };
    textBox("txtOption").onChange = [this] { showExample(); };
    textBox("txtCriteria").onChange = [this] { showExample(); };
    comboBox("cboWhen").onClick = [this] {
        enableChoices();
        showExample();
    };
    ColorPicker1.onChange = [this] { showExample(); };
}

Layout OptionCalloutDialog::content() {
    using namespace tsln::layout;
    return column({row({item(optAllProductTypes), item(optSpecificProductType), fill(cboProductType)}),
                   row({item(optAllProducts), item(optSpecificProduct), fill(cboProduct)}),
                   row({item(optAllStyles), item(optSpecificStyle), fill(cboStyle)}),
                   stretch(form({fieldOf("txtOption").layout(), fieldOf("cboWhen").layout(),
                                 fieldOf("txtCriteria").layout(), field("&Color:", ColorPicker1),
                                 fieldOf("txtMessage").layout()})),
                   item(lblExample), item(rptExample)});
}

void OptionCalloutDialog::filling() {
    const Common common = host().common();
    common.LoadProductTypes(cboProductType);
    common.LoadComboFromQuery(cboProduct,
                              "SELECT ID, Product FROM Products WHERE Active <> 0 ORDER BY Product",
                              "Product", "ID", false);
}

void OptionCalloutDialog::rowShown(const Row& row) {
    ColorPicker1.setColor(row.number("Color"));
    if (const std::int32_t type = row.number("ProductTypeID"); type >= 1) {
        optSpecificProductType.setSelected(true);
        chooseOrAdd(cboProductType, type, "(Product type " + std::to_string(type) + ")");
    }
    const std::int32_t product = row.number("ProductID");
    if (product < 1) return;
    optSpecificProduct.setSelected(true);
    chooseOrAdd(cboProduct, product, host().common().GetProductNameFromID(product));
    const std::string style = row.text("Style");
    loadStyles(product);
    if (style.empty()) return;
    optSpecificStyle.setSelected(true);
    const auto known = std::ranges::find(cboStyle.entries(), style, &ComboBox::Entry::text);
    cboStyle.setListIndex(known == cboStyle.entries().end()
                              ? cboStyle.addItem(style)
                              : static_cast<int>(known - cboStyle.entries().begin()));
}

void OptionCalloutDialog::filled() {
    enableChoices();
    showExample();
}

void OptionCalloutDialog::Form_Unload() {
    reader_.reset();
    RecordDialog::Form_Unload();
}

std::optional<std::int32_t> OptionCalloutDialog::chosenProduct() const {
    return optSpecificProduct.selected() ? cboProduct.chosen() : std::nullopt;
}

/// Styles belong to a product: a callout for any product is for any style.
bool OptionCalloutDialog::limitsStyle() const {
    return optSpecificProduct.selected() && optSpecificStyle.selected();
}

void OptionCalloutDialog::enableChoices() {
    cboProductType.setEnabled(optSpecificProductType.selected());
    cboProduct.setEnabled(optSpecificProduct.selected());
    optAllStyles.setEnabled(optSpecificProduct.selected());
    optSpecificStyle.setEnabled(optSpecificProduct.selected());
    cboStyle.setEnabled(limitsStyle());
    textBox("txtCriteria").setEnabled(comboBox("cboWhen").chosen() == IfContains);
}

void OptionCalloutDialog::productChosen() {
    enableChoices();
    cboStyle.clear();
    if (const auto product = chosenProduct()) loadStyles(*product);
}

void OptionCalloutDialog::loadStyles(std::int32_t productID) {
    cboStyle.clear();
    if (!reader_) reader_.emplace(*this);
    if (!openOrTell(
            *reader_, productID, host(),
            "Unable to identify product information in the product. The product cannot be added. (232)")) {
        return;
    }
    for (std::string& style : reader_->styles())
        cboStyle.addItem(std::move(style));
}

/// A sample is marked when the callout watches it. While the option's name is not that of a sample, the callout is shown
/// on every sample, as if it watched each of them.
void OptionCalloutDialog::showExample() {
    const std::string option = modSharedStrings::trim(textBox("txtOption").text());
    const auto isWatched = [&](const SampleOption& sample) {
        return modSharedStrings::equalNoCase(sample.name, option);
    };
    const bool watchesSample = std::ranges::any_of(samples, isWatched);
    const std::string color = std::to_string(ColorPicker1.color());
    for (std::size_t i = 0; i < std::size(samples); ++i) {
        const bool marked =
            (!watchesSample || isWatched(samples[i])) &&
            meets(samples[i].value, comboBox("cboWhen").chosen().value_or(-1), textBox("txtCriteria").text());
        rptExample.setCell(i, Color, marked ? color : "");
        ReportControl::Style style;
        if (marked) style.background = ColorPicker1.color() & 0xFFFFFF;
        rptExample.setStyle(i, style);
    }
}

bool OptionCalloutDialog::validate() {
    // Without this, a callout for one product type that is not chosen would be saved for any.
    if (optSpecificProductType.selected() && !cboProductType.chosen()) {
        refuse("You must select product type for this callout to apply to.", &cboProductType);
        return false;
    }
    if (optSpecificProduct.selected() && !cboProduct.chosen()) {
        refuse("You must select product for this callout to apply to.", &cboProduct);
        return false;
    }
    if (limitsStyle() && !cboStyle.chosen()) {
        refuse("You must select style for this callout to apply to.", &cboStyle);
        return false;
    }
    return RecordDialog::validate();
}

void OptionCalloutDialog::addTags(StatementTags& tags) {
    const auto keyOrNull = [](bool limited, const ComboBox& combo) {
        return limited && combo.chosen() ? std::to_string(*combo.chosen()) : std::string("NULL");
    };
    tags.plain("<ptid>", keyOrNull(optSpecificProductType.selected(), cboProductType));
    tags.plain("<pid>", keyOrNull(optSpecificProduct.selected(), cboProduct));
    tags.text("<style>", limitsStyle() ? cboStyle.text() : "");
    tags.plain("<clr>", ColorPicker1.color());
}

}  // namespace tsln::options
