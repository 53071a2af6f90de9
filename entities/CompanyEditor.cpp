#include "entities/CompanyEditor.h"

#include <filesystem>

#include "automation/FilePath.h"
#include "shared/modSharedStrings.h"

namespace tsln::entities {
namespace {

constexpr std::string_view screenName = "frmEditCompany";
/// The companies' types: a main company, or its copy on a roaming workstation.
constexpr std::string_view mainCompany = "1";
constexpr std::string_view roamingCompany = "2";

struct Logo {
    std::string_view name, control, caption, column, tag, spokenName;
};
constexpr Logo logoFields[] = {
    {"LabelLogoFile", "cboLabelLogoFile", "&Labels:", "SmallLogoFile", "<llf>", "label logo"},
    {"ProcessReportLogoFile", "cboProcessReportLogoFile", "&Process reports:", "LargeLogoFileProcessReports", "<prl>", "process report logo"},
    {"GeneralReportLogoFile", "cboGeneralReportLogoFile", "&General reports:", "LargeLogoFileGeneralReports", "<grl>", "general report logo"},
    {"WatermarkLogoFile", "cboWatermarkLogoFile", "&Watermark:", "WatermarkLogoFile", "<wlf>", "watermark"},
};

std::vector<FieldDescription> logoNames() {
    std::vector<FieldDescription> names;
    // A company without a logo has an empty name, and a file may be missing at the moment: the box takes any text.
    for (const Logo& logo : logoFields)
        names.push_back(fields::label(logo.control, logo.caption, logo.column, logo.tag, nullptr).wide(24).named(logo.spokenName));
    return names;
}

const RecordDescription companyRecord{
    .table = "Company",
    .newCaption = "New Company",
    .editCaption = "Edit Company",
    .fields = fields::join(
        fields::trimmed("txtName", "&Name:", "Name", "<name>").required("You must enter a name for this company."),
        fields::trimmed("txtEmail", "&E-mail:", "Email", "<email>"),
        fields::trimmed("txtWebSite", "&Web site:", "WebSite", "<web>"),
        fields::phones(4, Rule::Trimmed, false),
        fields::address("txtBillToAddress", "Bill-to address", "BillTo",
                       {"<ba1>", "<ba2>", "<by>", "<bs>", "<bz>", "<bc>"}),
        fields::address("txtShipToAddress", "Ship-to address", "ShipTo",
                       {"<sa1>", "<sa2>", "<sy>", "<ss>", "<sz>", "<sc>"}),
        fields::validateAddresses(),
        logoNames(),
        fields::computed("CompanyType", "<companytype>"),
        fields::text("txtTagLine1", "&Tag line:", "TagLine1", "<tagline1>"),
        fields::text("txtTagLine2", "Tag line, &second:", "TagLine2", "<tagline2>")),
    .source = RecordDescription::Source::Recordset,
    .filledBeforeShown = true,
    .safeText = SafeText::ByHost,
    .closingCancels = true,
    .windowValues = WindowValues::PlaceAndState,
    .insert = "INSERT INTO Company (Name,Email,WebSite,Phone1Label,Phone1,Phone2Label,Phone2,Phone3Label,Phone3,Phone4Label,Phone4,BillToAddress1,BillToAddress2,BillToCity,BillToState,BillToZip,BillToCountry,ShipToAddress1,ShipToAddress2,ShipToCity,ShipToState,ShipToZip,ShipToCountry,ValidateAddresses,SmallLogoFile,LargeLogoFileProcessReports,LargeLogoFileGeneralReports,WatermarkLogoFile,CompanyType,TagLine1,TagLine2) VALUES('<name>','<email>','<web>','<p1l>','<p1>','<p2l>','<p2>','<p3l>','<p3>','<p4l>','<p4>','<ba1>','<ba2>','<by>','<bs>','<bz>','<bc>','<sa1>','<sa2>','<sy>','<ss>','<sz>','<sc>',<validateaddresses>,'<llf>','<prl>','<grl>','<wlf>',<companytype>,'<tagline1>','<tagline2>')",
    .update = "UPDATE Company SET Name = '<name>', Email = '<email>', WebSite = '<web>', Phone1Label = '<p1l>', Phone1 = '<p1>', Phone2Label = '<p2l>', Phone2 = '<p2>', Phone3Label = '<p3l>', Phone3 = '<p3>', Phone4Label = '<p4l>', Phone4 = '<p4>', BillToAddress1 = '<ba1>', BillToAddress2 = '<ba2>', BillToCity = '<by>', BillToState = '<bs>', BillToZip = '<bz>', BillToCountry = '<bc>', ShipToAddress1 = '<sa1>', ShipToAddress2 = '<sa2>', ShipToCity = '<sy>', ShipToState = '<ss>', ShipToZip = '<sz>', ShipToCountry = '<sc>', ValidateAddresses = <validateaddresses>, SmallLogoFile = '<llf>', LargeLogoFileProcessReports = '<prl>' , LargeLogoFileGeneralReports = '<grl>' , WatermarkLogoFile = '<wlf>', TagLine1 = '<tagline1>', TagLine2 = '<tagline2>'  WHERE ID = <id>",
};

}  // namespace

CompanyEditor::CompanyEditor(Library& library)
    : RecordDialog(library, std::string(screenName), companyRecord) {
    for (const Logo& logo : logoFields) {
        LogoBox& box = logos.emplace_back(*this, comboBox(logo.control), std::string(logo.name),
                                          std::string(logo.caption));
        box.onCopied = [this] { listLogos(); };
    }
}

Layout CompanyEditor::content() {
    using namespace tsln::layout;
    const auto one = [this](std::string_view control) { return fieldOf(control).layout(); };
    std::vector<Layout> general{one("txtName"), one("txtEmail"), one("txtWebSite")};
    for (const Layout& phone : slots("Phone", 4))
        general.push_back(phone);
    general.insert(general.end(), {one("txtTagLine1"), one("txtTagLine2")});
    std::vector<Layout> pictures;
    for (LogoBox& logo : logos)
        pictures.push_back(logo.layout());
    return tabs(
        TabControl1,
        {column({form(std::move(general)), spring()}),
         row({stretch(framed(grpBillTo, column({fill(textBox("txtBillToAddress"))}))),
              stretch(framed(grpShipTo, column({fill(textBox("txtShipToAddress")), item(lblCopyBilling)})))}),
         column({form(std::move(pictures)), spring(), item(lblReportsFolder)})});
}

bool CompanyEditor::openCompany() {
    std::int32_t company = 0;
    const auto find = [&] {
        // A result document, not a single value: a failure that reads as 0 would add a second company. So would an
        // empty text, which elsewhere means no rows.
        const std::string document = host().database().ExecuteReadText("SELECT ID FROM Company ORDER BY ID");
        if (document.empty()) throw HostError(code::fail, "CompanyEditor", "The company could not be read.");
        const Records companies = Records::parse(document);
        company = modSharedXML::readLong("ID", companies.first());
    };
    return handle(find) && open(company);
}

void CompanyEditor::filled() {
    listLogos();
}

void CompanyEditor::listLogos() {
    const std::string folder = host().options().UserFileLocation("Reports");
    std::error_code ignored;
    const bool found = std::filesystem::is_directory(pathOf(folder), ignored);
    lblReportsFolder.setCaption((found ? "The pictures are in " : "There is no Reports folder: ") +
                                modSharedStrings::replaceAll(folder, "&", "&&"));
    for (LogoBox& logo : logos)
        logo.refresh(folder);
}

void CompanyEditor::Hyperlink_BillingToShipping() {
    textBox("txtShipToAddress").setText(textBox("txtBillToAddress").text());
}

std::string CompanyEditor::computed([[maybe_unused]] std::string_view column) const {
    return std::string(host().security().IsRoamingWorkstation() ? roamingCompany : mainCompany);
}

bool CompanyEditor::save() {
    const bool isNewCompany = isNew();
    if (host().database().ExecuteNonQuery(statement())) return true;
    reportDatabaseFailure(
        isNewCompany ? "The company could not be setup." : "The company could not be updated.",
        saveAgainExplanation);
    return false;
}

bool editCompany(Library& library) {
    const auto closed = library.screens().show(
        screenName, [&] { return std::make_shared<CompanyEditor>(library); },
        [](CompanyEditor& editor) { return editor.openCompany(); });
    return closed->Cancelled;
}

}  // namespace tsln::entities
