#include "entities/EmployeeEditor.h"

#include <algorithm>

#include "automation/NumericText.h"
#include "shared/modSharedStrings.h"

namespace tsln::entities {
namespace {

constexpr std::string_view screenName = "frmEditEmployee";
/// The first name of the built-in employee.
constexpr std::string_view administrator = "(Administrator)";
/// A company without this feature of the host sends no e-mail, and the page for it is hidden.
constexpr std::int32_t emailFeature = 2;
constexpr std::ptrdiff_t shortestPassword = 4;  // characters
enum Page { General, Login, Email, Notes };

constexpr std::int32_t smtpMethod = 2;
constexpr Choice emailMethods[] = {{1, "The e-mail program of this computer"},
                                   {smtpMethod, "A mail server (SMTP)"}};

const RecordDescription employeeRecord{
    .table = "Employees",
    .newCaption = "New Employee",
    .editCaption = "Edit Employee",
    // The fields are in the order of their tags in the INSERT.
    .fields = fields::join(
        fields::trimmed("txtFirstName", "&First name:", "FirstName", "<fname>").wide(22),
        fields::trimmed("txtLastName", "&Last name:", "LastName", "<lname>").wide(22),
        fields::trimmed("txtMiddleInitial", "M&iddle:", "MiddleInitial", "<mi>").wide(6),
        fields::phones(3, Rule::Trimmed, true),
        fields::emails(2),
        fields::check("chkSalesRep", "&Sales rep", "SalesRep", "<rep>"),
        fields::check("chkInstaller", "I&nstaller", "Installer", "<int>"),
        fields::check("chkDesigner", "&Designer", "Designer", "<des>"),
        fields::check("chkActive", "Acti&ve", "Active", "<active>").ticked(),
        fields::check("chkCanLogin", "Can &log in", "Canlogin", "<logon>"),
        fields::trimmed("txtUserName", "&User name:", "Username", "<username>").wide(22),
        fields::lines("txtNotes", "&Notes:", "Notes", "<notes>"),
        fields::validateAddresses(),
        fields::choice("cboEmailMethod", "E-mail is sent &by:", "EmailMethod", "<emsetting>", emailMethods).required("You must choose an email sending method.").wide(34),
        fields::check("chkExported", "E&xported", "Exported", "<exported>")),
    .source = RecordDescription::Source::Recordset,
    .filledBeforeShown = true,
    .safeText = SafeText::ByHost,
    .closingCancels = true,
    .windowValues = WindowValues::PlaceAndState,
    .insert =
        "INSERT INTO Employees (FirstName, LastName, MiddleInitial, Phone1Label, Phone1, Phone2Label, Phone2, Phone3Label, Phone3, Email1Label, Email1, Email2Label, Email2, SalesRep, Installer, Designer, Active, Canlogin, Username, PasswordHash, Notes, ValidateAddresses, EmailMethod,EmailSMTPServer,EmailSenderAddress,EmailSMTPAuth,EmailSMTPUserName,EmailSMTPPassword,EmailSMTPPort,EmailSMTPTimeout,EmailSMTPAuthMethod,EmailSMTPSSL,EmailSMTPTLS,Exported) "
        " VALUES ('<fname>', '<lname>', '<mi>', '<p1l>', '<p1>', '<p2l>', '<p2>', '<p3l>','<p3>', '<e1l>', '<e1>', '<e2l>', '<e2>' ,<rep>, <int>, <des>, <active>, <logon>, '<username>', '<password>', '<notes>', <validateaddresses>, <emsetting>, '<smtpserver>','<smtpfrom>',<smtpauth>,'<smtpuser>','<smtppass>',<smtpport>,<smtptimeout>,'<smtpauthmethod>',<smtpssl>,<smtptls>,<exported>)",
    .update =
        "UPDATE Employees SET FirstName = '<fname>', LastName = '<lname>', MiddleInitial = '<mi>', Phone1Label = '<p1l>', Phone1 = '<p1>', Phone2Label = '<p2l>', Phone2 = '<p2>', Phone3Label = '<p3l>', Phone3 = '<p3>', Email1Label = '<e1l>', Email1 = '<e1>', Email2Label = '<e2l>', Email2 = '<e2>', SalesRep = <rep>, Installer = <int>, Designer = <des>, Active = <active>, Canlogin = <logon>, Username = '<username>', PasswordHash = '<password>', Notes = '<notes>', ValidateAddresses = <validateaddresses>, EmailMethod = <emsetting>,EmailSMTPServer='<smtpserver>',EmailSenderAddress='<smtpfrom>',EmailSMTPAuth=<smtpauth>,EmailSMTPUserName='<smtpuser>',EmailSMTPPassword='<smtppass>',EmailSMTPPort=<smtpport>,EmailSMTPTimeout=<smtptimeout>,EmailSMTPAuthMethod='<smtpauthmethod>',EmailSMTPSSL=<smtpssl>,EmailSMTPTLS=<smtptls>,Exported=<exported> WHERE ID = <id>",
    .history = RecordHistory{.noun = "employee",
                             .recordAdded = &Activity::RecordEmployeeActivity,
                             .recordUpdated = &Activity::RecordEmployeeActivity,
                             .addedNotice = 5001,
                             .updatedNotice = 5003},
};

constexpr AddressTable employeeAddresses{
    .read = "SELECT * FROM EmployeeAddresses WHERE EmployeeID = ",
    .insert = "INSERT INTO EmployeeAddresses (EmployeeID, AddressLabel, Address1, Address2, City, State, Zip, Country) VALUES(<eid>, '<al>', '<a1>', '<a2>', '<y>', '<s>', '<z>', '<c>')",
    .update = "UPDATE EmployeeAddresses SET AddressLabel = '<al>', Address1 = '<a1>', Address2 = '<a2>', City = '<y>', State = '<s>', Zip = '<z>', Country = '<c>' WHERE ID = <id>",
    .remove = "DELETE FROM EmployeeAddresses WHERE ID = <id>",
    .ownerTag = "<eid>",
};

constexpr AddressBlock addressBlock{
    .table = employeeAddresses,
    .defaultLabel = {.otherwise = "Home"},
};

}  // namespace

EmployeeEditor::EmployeeEditor(Library& library)
    : RecordDialog(library, std::string(screenName), employeeRecord),
      addresses(*this, addressBlock, validateAddressesFlag()) {
    keepsEnter(addresses.txtShipToAddress, [this] { addresses.left(); });
    for (TextBox* box : {&txtPassword, &txtConfirm}) {
        box->password = true;
        box->widthInCharacters = 22;
        box->onEnter = [box] { box->selectAll(); };
    }
    comboBox("cboEmailMethod").onClick = [this] { showEmailSettings(); };
    cmdEmailSettings.onClick = [this] { cmdEmailSettings_Click(); };
}

Layout EmployeeEditor::content() {
    using namespace tsln::layout;
    const auto one = [this](std::string_view control) { return fieldOf(control).layout(); };
    std::vector<Layout> general{row({one("txtFirstName"), one("txtMiddleInitial")}), one("txtLastName")};
    for (const auto& rows : {slots("Phone", 3), slots("Email", 2)})
        general.insert(general.end(), rows.begin(), rows.end());
    general.push_back(row({field("", checkBox("chkSalesRep")), one("chkInstaller"), one("chkDesigner")}));
    general.push_back(row({field("", checkBox("chkActive")), one("chkExported")}));
    return tabs(TabControl1,
                {row({stretch(column({form(std::move(general)), spring()})),
                      stretch(framed(grpAddresses, column({field("Add&ress:", addresses.cboAddressLabel),
                                                           fill(addresses.txtShipToAddress),
                                                           item(addresses.lblAddressLinks)})))}),
                 column({form({field("", checkBox("chkCanLogin")), one("txtUserName"),
                               field("&Password:", txtPassword), field("&Confirm password:", txtConfirm)}),
                         fill(roles.rptRoles)}),
                 column({form({one("cboEmailMethod"), field("", cmdEmailSettings)}), item(lblEmailSettings),
                         spring()}),
                 formOf({"txtNotes"})});
}

// Filling ---------------------------------------------------------------------------------------------

void EmployeeEditor::rowShown(const Row& row) {
    storedHash_ = row.text("PasswordHash");
    couldLogIn_ = row.boolean("Canlogin");
    if (!storedHash_.empty()) txtPassword.setText(std::string(hiddenPassword));
    storedEmail_ = EmailSettings::of(row);
    email_ = storedEmail_;
    textBox("txtFirstName").setEnabled(!isAdministrator());
    addresses.read(ID);
}

void EmployeeEditor::filled() {
    sendsEmail_ = host().security().CompanyFeatureEnabled(emailFeature);
    TabControl1.setPageVisible(Email, sendsEmail_);
    showEmailSettings();
    // Without the roles, the employee's other data can still be edited.
    handle([this] { roles.read(ID); });
}

bool EmployeeEditor::isAdministrator() const {
    return modSharedStrings::toLower(fieldOf("txtFirstName").text().text()) ==
           modSharedStrings::toLower(administrator);
}

void EmployeeEditor::showEmailSettings() {
    const bool smtp = comboBox("cboEmailMethod").chosen() == smtpMethod;
    cmdEmailSettings.setEnabled(smtp);
    std::string server;
    if (smtp && email_.server.empty()) server = "No mail server is set yet.";
    if (smtp && !email_.server.empty())
        server = "Mail server: " + email_.server + ", port " + std::to_string(email_.port);
    lblEmailSettings.setCaption(modSharedStrings::replaceAll(server, "&", "&&"));
}

void EmployeeEditor::cmdEmailSettings_Click() {
    const auto closed = openRecord(
        library(), "frmEmailSettings",
        [this] { return std::make_shared<EmailSettingsDialog>(library(), email_, storedEmail_, ID); }, ID);
    if (closed->Cancelled) return;
    email_ = closed->settings();
    showEmailSettings();
}

// OK --------------------------------------------------------------------------------------------------

bool EmployeeEditor::validate() {
    normalizeFields();
    for (TextBox* box : {&txtPassword, &txtConfirm})
        box->setText(modSharedStrings::trim(box->text()));
    return validateName() && validateUserName() && confirmDuties() && validatePassword() && confirmRoles() &&
           validateEmail();
}

bool EmployeeEditor::validateName() {
    TextBox& name = textBox("txtFirstName");
    if (name.text().empty()) {
        refuse("You must enter a name for this employee.", &name);
        return false;
    }
    // Only the built-in administrator, whose box is disabled, has this name.
    if (isAdministrator() && name.enabled()) {
        refuse("This name is already in use.", &name);
        return false;
    }
    return true;
}

bool EmployeeEditor::validateUserName() {
    if (!checkBox("chkCanLogin").checked()) return true;
    TextBox& name = textBox("txtUserName");
    if (name.text().empty()) {
        refuse("You must supply a unique user name for this employee.", &name);
        return false;
    }
    if (host().common().RecordExists(employeeRecord.table, "UserName", name.text(), ID)) {
        refuse("An employee with the user name '" + name.text() + "' already exists.", &name);
        return false;
    }
    return true;
}

bool EmployeeEditor::confirmDuties() {
    if (isAdministrator()) return true;
    for (const char* box : {"chkSalesRep", "chkInstaller", "chkDesigner"}) {
        if (checkBox(box).checked()) return true;
    }
    if (ask("You have not marked this employee as a sales rep, installer or designer. You won't be able to do much with this employee without at least one of these settings. Are you sure you want to continue?")) {
        return true;
    }
    goTo(checkBox("chkSalesRep"));
    return false;
}

/// The box still shows what it showed at first. Employees who have logged in without a password up to now may go on.
bool EmployeeEditor::keepsPassword() const {
    if (!storedHash_.empty()) return txtPassword.text() == hiddenPassword;
    return txtPassword.text().empty() && couldLogIn_;
}

bool EmployeeEditor::validatePassword() {
    if (!checkBox("chkCanLogin").checked() || keepsPassword()) return true;
    const auto beginsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    if (std::ranges::count_if(txtPassword.text(), beginsCharacter) < shortestPassword) {
        refuse("Passwords must be at least 4 characters long.", &txtPassword);
        return false;
    }
    if (txtPassword.text() != txtConfirm.text()) {
        refuse("The password has not been correctly confirmed. Please check the password and confirm fields.",
               &txtConfirm);
        return false;
    }
    return true;
}

bool EmployeeEditor::confirmRoles() {
    if (!roles.loaded()) return true;
    const std::size_t ticked = roles.tickedCount();
    if (ticked == 1) return true;
    const bool wanted =
        ticked == 0
            ? host().AskMessageStyle1(
                  "You have not selected any security roles for this employee.",
                  "If you don't select at least one security role then this employee won't be able to do much with the software. Are you sure you want to continue?")
            : host().AskMessageStyle1(
                  "You have selected more than one security role for this employee. It is recommended that you only select one security role.",
                  "Selecting multiple security roles makes it difficult to manage which settings are being applied. Are you sure you want to continue?");
    if (!wanted) goTo(roles.rptRoles);
    return wanted;
}

bool EmployeeEditor::validateEmail() {
    Field& method = fieldOf("cboEmailMethod");
    if (!sendsEmail_ || method.complaint().empty()) return true;
    refuse(method.complaint(), method.control());
    return false;
}

/// Nothing typed means no password: a digest of the empty text would look like a stored one.
std::string EmployeeEditor::passwordHash() const {
    if (txtPassword.text() == hiddenPassword && !storedHash_.empty()) return storedHash_;
    if (txtPassword.text().empty()) return {};
    std::string hash = host().GetSHA2(txtPassword.text());
    if (hash.empty()) throw HostError(code::fail, "GetSHA2", "The password cannot be stored.");
    return hash;
}

void EmployeeEditor::addTags(StatementTags& tags) {
    // Before the texts that the user typed: a tag in one of them does not stand for the password. Made safe here: the
    // host is not handed more of a secret than the statement.
    tags.plain("<password>", modSharedSQL::doubleQuotes(passwordHash()));
    email_.addTags(tags);
}

bool EmployeeEditor::save() {
    addresses.finish();
    if (!RecordDialog::save()) return false;
    // The employee is saved, whatever happens here.
    handle([this] { settleDefaultSalesRep(); });
    handle([this] { readUserAgain(); });
    return true;
}

void EmployeeEditor::saveFurther() {
    addresses.save(ID);
    roles.save(ID);
}

std::string EmployeeEditor::recordName() const {
    return modSharedStrings::trim(fieldOf("txtFirstName").text().text() + " " +
                                  fieldOf("txtLastName").text().text());
}

void EmployeeEditor::settleDefaultSalesRep() {
    constexpr std::string_view option = "DefaultSalesRep", section = "Customers";
    std::int32_t rep = 0;
    readNumber(host().options().GetCompanyOption(option, section, "").toText(), rep);
    if (rep > 0) return;
    if (checkBox("chkSalesRep").checked() && ask("Do you want to make this employee the default sales rep?"))
        return host().options().SetCompanyOption(option, section, ID);
    host().ShowMessageStyle1(
        "You don't have a default sales rep selected in Application Settings. If you don't select a default rep then the (Administrator) user will be used as the default sales rep for new customers. It's recommended that you change the default sales rep to something other than the Administrator user.",
        "");
}

void EmployeeEditor::readUserAgain() {
    const Security security = host().security();
    const std::int32_t user = security.UserId();
    security.ReInitializeUser(user);
    if (ID == user) {
        // This wording is deliberate.
        tell("You must log out and then back in for the security changes to take affect.",
             MessageIcon::Information);
    }
}

std::int32_t editEmployee(Library& library, std::int32_t ID) {
    return openRecord(
               library, screenName, [&] { return std::make_shared<EmployeeEditor>(library); }, ID)
        ->result();
}

}  // namespace tsln::entities
