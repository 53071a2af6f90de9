#include "pricing/AdditionalCharge.h"

#include "automation/NumericText.h"
#include "maintenance/ExpressionEditor.h"
#include "pricing/ChargeCode.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::pricing {
namespace {

using modSharedSQL::fillTags;
using modSharedSQL::format;

constexpr std::string_view screenName = "frmAdditionalCharges_Edit";
constexpr std::string_view caption = "Edit Additional Charge";  // also while the type is not known
constexpr std::string_view helpFile = "Function Reference.chm";
constexpr std::int32_t helpContext = 40;

constexpr int accountingPage = 2;
/// The company's feature of exporting to an accounting application.
constexpr std::int32_t accountingFeature = 2;

/// Any whole number of 32 bits: the database holds no other.
constexpr NumericBounds anyWhole{.minimum = -2147483648.0, .maximum = 2147483647.0};

constexpr std::string_view usedGroups =
    "SELECT DISTINCT GroupName FROM AdditionalCharges WHERE LEN(GroupName) > 0";

// clang-format off: one field per line
const RecordDescription chargeRecord{
    .table = "AdditionalCharges",
    .newCaption = caption,
    .editCaption = caption,
    .fields =
        {
            fields::check("chkEnabled", "&Enabled", "Enabled", "<enabled>").ticked(),
            fields::label("cboGroup", "&Group:", "GroupName", "<group>").from(usedGroups),
            fields::trimmed("txtName", "&Name:", "ChargeName", "<name>")
                .required("You must enter a name for this additional charge.")
                .unique("Duplicate charge names are not allowed.")
                .wide(44),
            fields::text("txtDescription", "&Description:", "Description", "<desc>"),
            fields::text("txtCost", "C&ost:", "Cost", "<cost>").wide(12),
            fields::choice("cboChargeMethod", "&Method:", "ChargeMethod", "<cm>", {})
                .required("You must select the method of charge to add.")
                .wide(36),
            fields::text("txtValue", "&Value:", "Value", "<v>").wide(24),
            fields::check("chkTaxable", "&Taxable", "Taxable", "<tax>"),
            fields::check("chkAutoAddQuotes", "Add automatically to new &quotes", "AutoAddToQuotes",
                          "<autoq>"),
            fields::check("chkAutoAddPOs", "Add automatically to &purchase orders", "AutoAddToPOs",
                          "<autopo>"),
            fields::date("txtStart", "&Begins:", "StartsOn", "<starts>"),
            fields::date("txtEnd", "&Ends:", "EndsOn", "<ends>"),
            fields::lines("txtCriteria", "Criteria", "Criteria", "<criteria>"),
            fields::keyOrNull("cboCustomerType", "Customer type", "CustomerTypeID", "<customertypeid>",
                              &Common::LoadCustomerTypes)
                .named("Customer type"),
            fields::keyOrNull("cboVendor", "Vendor", "VendorID", "<vendorid>", &Common::LoadVendors)
                .named("Vendor"),
            fields::lines("txtNotes", "Notes", "Notes", "<notes>"),
            fields::check("chkIncludeWithProductItems", "&Include with product items",
                          "IncludeWithProductItems", "<iwpi>"),
            fields::keyOrNull("cboSales", "&Sales account:", "SalesAccountID", "<salesaccount>",
                              &Common::LoadSalesAccounts),
            fields::keyOrNull("cboPurchase", "&Purchase account:", "PurchaseAccountID", "<purchaseaccount>",
                              &Common::LoadPurchaseAccounts),
            fields::text("txtExportChargeName", "Export &name:", "ExportChargeName", "<exportname>"),
            fields::check("chkExported", "&Exported to accounting", "Exported", "<exported>"),
            fields::choice("cboCategory", "Categor&y:", "Category", "<cat>", chargeCategories()),
            fields::whole("txtSequence", "Se&quence:", "Sequence", "<seq>", anyWhole),
        },
    .filledBeforeShown = true,
    .safeText = SafeText::ByHost,
    .closingCancels = true,
    .insert =
        "INSERT INTO AdditionalCharges (ChargeType, ChargeCode, Enabled, GroupName, ChargeName, Description, Cost, ChargeMethod, Value, Taxable, AutoAddToQuotes, AutoAddToPOs, StartsOn, EndsOn, Criteria, CustomerTypeID, VendorID, Notes, IncludeWithProductItems, SalesAccountID, PurchaseAccountID, ExportChargeName, Exported, Category, Sequence) VALUES (<ct>, '<chargecode>', <enabled>, '<group>', '<name>', '<desc>', '<cost>', <cm>, '<v>', <tax>, <autoq>, <autopo>, <starts>, <ends>, '<criteria>', <customertypeid>, <vendorid>, '<notes>', <iwpi>, <salesaccount>, <purchaseaccount>, '<exportname>', <exported>, <cat>, <seq>)",
    // "CustomerTypeiD" is deliberate.
    .update =
        "UPDATE AdditionalCharges SET Enabled = <enabled>, GroupName = '<group>', ChargeName = '<name>', Description = '<desc>', Cost = '<cost>', ChargeMethod = <cm>, Value = '<v>', Taxable = <tax>, AutoAddToQuotes = <autoq>, AutoAddToPOs = <autopo>, StartsOn = <starts>, EndsOn = <ends>, Criteria = '<criteria>', CustomerTypeiD = <customertypeid>, VendorID = <vendorid>, Notes = '<notes>', IncludeWithProductItems = <iwpi>, SalesAccountID = <salesaccount>, PurchaseAccountID = <purchaseaccount>, ExportChargeName = '<exportname>', Exported = <exported>, Category = <cat>, Sequence = <seq> WHERE ID = <id>",
};
// clang-format on

namespace question {
constexpr std::string_view zeroCost =
    "Charges without a valid cost could skew your margin and profit reports.\r\n"
    "The cost of this charge is zero. Are you sure you want to continue with this value?";
constexpr std::string_view negativeCost =
    "Charges without a valid cost could skew your margin and profit reports.\r\n"
    "The cost of this charge is less than zero. Are you sure you want to continue with this value?";
constexpr std::string_view notTaxable =
    "Negative charges such as discounts or promotions should be marked as taxable so that a negative tax will be calculated for the line item. Are you sure you want to continue with a non-taxable value?";
constexpr std::string_view bothZero =
    "Both the cost and value of this charge are zero. Are you sure you want to continue with these values?";
}  // namespace question

}  // namespace

/// An account of a charge, and the statements that assign it to others.
struct AdditionalChargeDialog::AccountKind {
    std::string_view combo, title, tag;
    std::string_view all;      ///< assigns it to all others
    std::string_view without;  ///< assigns it to those that have no account
};

AdditionalChargeDialog::AdditionalChargeDialog(Library& library, std::int16_t newType)
    : RecordDialog(library, std::string(screenName), chargeRecord), type_(newType) {
    static constexpr AccountKind sales{
        "cboSales", "Assign Sales Accounts", "<salesid>",
        "UPDATE AdditionalCharges SET SalesAccountID = <salesid> WHERE ID <> <id>",
        "UPDATE AdditionalCharges SET SalesAccountID = <salesid> WHERE ID <> <id> AND SalesAccountID IS NULL"};
    // The table of products and the test of the sales account are deliberate.
    static constexpr AccountKind purchase{
        "cboPurchase", "Assign Purchase Accounts", "<purchaseid>",
        "UPDATE Products SET PurchaseAccountID = <purchaseid> WHERE ID <> <id>",
        "UPDATE Products SET PurchaseAccountID = <purchaseid> WHERE ID <> <id> AND SalesAccountID IS NULL"};

    txtChargeCode.setLocked(true);
    txtChargeCode.widthInCharacters = 10;
    textBox("txtCriteria").setLocked(true);
    comboBox("cboChargeMethod").onClick = [this] { showMethodHelp(); };
    textBox("txtValue").onLeave = [this] { setSign(); };
    textBox("txtCost").onLeave = [this] { correctCost(); };
    for (CheckBox* limit : {&chkCustomerType, &chkVendor})
        limit->onClick = [this] { enableLimits(); };
    cmdChange.onClick = [this] { changeCriteria(); };
    cmdAssignSales.onClick = [this] { assignAccount(sales); };
    cmdAssignSales.accessibleName = "Assign the sales account";
    cmdAssignPurchase.onClick = [this] { assignAccount(purchase); };
    cmdAssignPurchase.accessibleName = "Assign the purchase account";
    cmdHelp.onClick = [this] { Form_Help(); };
}

// Layout ----------------------------------------------------------------------------------------------

Layout AdditionalChargeDialog::content() {
    using namespace tsln::layout;
    const auto one = [this](std::string_view control) { return fieldOf(control).layout(); };
    const auto boxOf = [this](std::string_view control) { return item(*fieldOf(control).control()); };
    std::vector<Layout> general{one("txtName"),
                                one("txtDescription"),
                                row({one("cboGroup"), item(lblChargeCode), item(txtChargeCode)}),
                                field("", checkBox("chkEnabled")),
                                one("cboChargeMethod"),
                                field("", lblMethodHelp)};
    const ChargeTypeInfo* info = type();
    if (!info || info->ofOrders) {
        general.push_back(row({one("txtValue"), item(lblCost), boxOf("txtCost")}));
    } else {
        // An adjustment changes an item, so its own cost stands apart from its value.
        general.push_back(one("txtValue"));
        general.push_back(one("txtCost"));
    }
    general.push_back(field("", checkBox("chkTaxable")));
    general.push_back(row({one("cboCategory"), one("txtSequence")}));

    const Layout rules = column({row({one("chkAutoAddQuotes"), one("chkAutoAddPOs")}),
                                 one("chkIncludeWithProductItems"), form({one("txtStart"), one("txtEnd")}),
                                 row({item(chkCustomerType), spring(), boxOf("cboCustomerType")}),
                                 row({item(chkVendor), spring(), boxOf("cboVendor")}), one("txtCriteria"),
                                 row({item(cmdChange), spring()})});
    const Layout accounting = column({form({row({one("cboSales"), item(cmdAssignSales)}),
                                            row({one("cboPurchase"), item(cmdAssignPurchase)}),
                                            one("txtExportChargeName"), field("", checkBox("chkExported"))}),
                                      spring()});
    return tabs(TabControl1, {column({form(std::move(general)), spring()}), rules, accounting,
                              column({fill(textBox("txtNotes"))})});
}

std::vector<Layout> AdditionalChargeDialog::besideButtons() {
    return {layout::item(cmdHelp)};
}

void AdditionalChargeDialog::Form_Help() {
    desktop().showHelp(*this, helpFile, helpContext);
}

// Filling ---------------------------------------------------------------------------------------------

void AdditionalChargeDialog::filling() {
    if (!isNew()) {
        type_ = host()
                    .database()
                    .ExecuteScaler(format("SELECT ChargeType FROM AdditionalCharges WHERE ID = {0}", ID))
                    .toLong();
    }
    const ChargeTypeInfo* info = type();
    if (!info) return;
    setCaption(std::string(info->dialogCaption));
    for (const ChargeMethod offered : info->methods()) {
        const auto number = static_cast<std::int32_t>(offered);
        comboBox("cboChargeMethod").addItem(std::string(findChargeMethod(number)->caption), number);
    }
    // The accounts of an adjustment are always offered: only charges are lines of their own.
    if (!info->ofOrders) return;
    TabControl1.setPageVisible(accountingPage, host().security().CompanyFeatureEnabled(accountingFeature));
}

void AdditionalChargeDialog::rowShown(const Row& row) {
    txtChargeCode.setText(row.text("ChargeCode"));
    storedValue_ = textBox("txtValue").text();
    correctCost();
    for (const char* combo : {"cboCustomerType", "cboVendor", "cboSales", "cboPurchase"})
        keepStored(combo, row);
    chkCustomerType.setChecked(comboBox("cboCustomerType").chosen().has_value());
    chkVendor.setChecked(comboBox("cboVendor").chosen().has_value());
}

/// The host does not offer every record, for example no inactive vendors. Saving must not drop a stored one.
void AdditionalChargeDialog::keepStored(std::string_view combo, const Row& row) {
    ComboBox& box = comboBox(combo);
    const std::int32_t stored = row.number(fieldOf(combo).description().column);
    if (stored != 0 && !box.chosen()) box.setListIndex(box.addItem(std::to_string(stored), stored));
}

void AdditionalChargeDialog::filled() {
    enableLimits();
    showMethodHelp();
}

void AdditionalChargeDialog::opened() {
    setFocus(textBox("txtName"));
}

// Changing --------------------------------------------------------------------------------------------

const ChargeMethodInfo* AdditionalChargeDialog::method() {
    return findChargeMethod(comboBox("cboChargeMethod").chosen().value_or(0));
}

bool AdditionalChargeDialog::takesPriceLine() {
    return method() && method()->value == ChargeMethodInfo::Value::PriceLine;
}

void AdditionalChargeDialog::showMethodHelp() {
    const std::string help(method() ? method()->help : "Select how the charge is computed.");
    lblMethodHelp.setCaption("<TextBlock TextWrapping='Wrap'>" + help + "</TextBlock>");
}

void AdditionalChargeDialog::enableLimits() {
    comboBox("cboCustomerType").setEnabled(chkCustomerType.checked());
    comboBox("cboVendor").setEnabled(chkVendor.checked());
}

/// Gives a number in the value the sign of the charge type. The name of a price line stays as it is, even "12".
void AdditionalChargeDialog::setSign() {
    TextBox& box = textBox("txtValue");
    float number = 0;
    if (takesPriceLine() || readNumber(box.text(), number) != Reading::Done) return;
    const int sign = type() ? type()->sign : 0;
    if ((sign < 0 && number > 0) || (sign > 0 && number < 0)) number = -number;
    box.setText(numberText(number + 0.0F));  // no "-0"
}

/// Writes a cost such as "$5" or "(3)" in the form that the database takes. Without a cost it is 0.
void AdditionalChargeDialog::correctCost() {
    TextBox& box = textBox("txtCost");
    if (modSharedStrings::trim(box.text()).empty()) {
        box.setText("0");
    } else if (const auto number = parseNumber(box.text())) {
        box.setText(numberText(*number));
    }
}

void AdditionalChargeDialog::changeCriteria() {
    TextBox& box = textBox("txtCriteria");
    if (const auto changed = editExpression(*this, box.text())) box.setText(*changed);
}

// Saving ----------------------------------------------------------------------------------------------

bool AdditionalChargeDialog::confirm(std::string_view question, Control& concerned) {
    if (ask(question)) return true;
    goTo(concerned);
    return false;
}

bool AdditionalChargeDialog::validate() {
    correctCost();
    if (!RecordDialog::validate()) return false;
    TextBox& box = textBox("txtValue");
    if (method() && method()->value == ChargeMethodInfo::Value::Percent)
        box.setText(modSharedStrings::replaceAll(box.text(), "%", ""));
    // The box is not left when Enter presses OK, and a "%" may have hidden the number.
    if (box.text() != storedValue_) setSign();
    if (!validateDate("txtStart") || !validateDate("txtEnd") || !validateAmounts()) return false;
    if (!chkCustomerType.checked()) comboBox("cboCustomerType").setListIndex(-1);
    if (!chkVendor.checked()) comboBox("cboVendor").setListIndex(-1);
    return true;
}

/// An empty box means no date. An end before the start is allowed.
bool AdditionalChargeDialog::validateDate(std::string_view name) {
    DateBox& box = fieldOf(name).date();
    if (modSharedStrings::trim(box.text()).empty()) box.setDate(std::nullopt);
    if (box.isValid()) return true;
    refuse(format("'{0}' is not a date. Enter a date, or None for no date.", box.text()), &box);
    return false;
}

bool AdditionalChargeDialog::validateAmounts() {
    TextBox& costBox = textBox("txtCost");
    TextBox& valueBox = textBox("txtValue");
    const double cost = parseNumber(costBox.text()).value_or(0);
    if (!type() || type()->type != ChargeType::ItemPriceAdjustment) {
        if (cost == 0) {
            if (!confirm(question::zeroCost, costBox)) return false;
            costBox.setText("0");  // a text that is no number counts as zero, and the user has agreed to that
        } else if (cost < 0 && !confirm(question::negativeCost, costBox)) {
            return false;
        }
    }
    const double value = takesPriceLine() ? 0 : parseNumber(valueBox.text()).value_or(0);
    if (value < 0 && !checkBox("chkTaxable").checked() && !confirm(question::notTaxable, valueBox))
        return false;
    const bool hasName = takesPriceLine() && !modSharedStrings::trim(valueBox.text()).empty();
    return cost != 0 || value != 0 || hasName || confirm(question::bothZero, valueBox);
}

void AdditionalChargeDialog::addTags(StatementTags& tags) {
    if (!isNew()) return;
    tags.plain("<ct>", type_);
    tags.plain("<chargecode>", makeChargeCode(host(), textBox("txtName").text()));
}

bool AdditionalChargeDialog::save() {
    const std::string what = isNew() ? "added." : "updated.";
    const std::string name = "'" + textBox("txtName").text() + "' ";
    if (!writeRow()) {
        reportDatabaseFailure("The additional charge " + name + "could not be " + what, saveAgainExplanation);
        return false;
    }
    // The charge is saved, whether or not the event can be recorded.
    handle([&] { host().RecordEvent("Additional charge " + name + "was " + what); });
    return true;
}

// Accounts --------------------------------------------------------------------------------------------

void AdditionalChargeDialog::assignAccount(const AccountKind& kind) {
    if (isNew()) {
        tell("You must save this charge before you can assign it's settings to other charges.",
             MessageIcon::Exclamation);
        return;
    }
    ComboBox& account = comboBox(kind.combo);
    if (!account.chosen()) return refuse("You must select the account to assign.", &account);
    const std::string answers[] = {
        "Assign this account to all other like charges.",
        "Assign this account to all other like charges that don't have an account already set."};
    const auto answer = desktop().choose(
        this, kind.title,
        "Select how you want to assign the account " + account.text() + " to other charges.", answers);
    if (!answer) return;
    const std::string statement =
        fillTags(*answer == 0 ? kind.all : kind.without, {{kind.tag, *account.chosen()}, {"<id>", ID}});
    if (host().database().ExecuteNonQuery(statement)) {
        tell("The charges have been adjusted.", MessageIcon::Information);
    } else {
        reportDatabaseFailure("The accounts on the charges could not be updated.");
    }
}

std::int32_t editAdditionalCharge(Library& library, std::int32_t ID, std::int16_t newType) {
    return openRecord(
               library, screenName,
               [&] { return std::make_shared<AdditionalChargeDialog>(library, newType); }, ID)
        ->result();
}

}  // namespace tsln::pricing
