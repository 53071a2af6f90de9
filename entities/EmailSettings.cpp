#include "entities/EmailSettings.h"

#include "automation/NumericText.h"
#include "shared/modSharedStrings.h"

namespace tsln::entities {
namespace {

constexpr std::int32_t employeeTemplates =
    3;  // the host's type of templates that are filled from an employee
constexpr NumericBounds portBounds{.minimum = 1, .maximum = 65'535, .otherwise = 587};
constexpr NumericBounds timeoutBounds{.minimum = 1, .maximum = 600, .otherwise = 30};  // seconds
constexpr int wide = 32;                                                               // characters
constexpr int narrow = 8;                                                              // characters

constexpr EmailPreset presets[] = {
    {"AOL Mail", "smtp.aol.com", 465, true, false},
    {"Gmail", "smtp.gmail.com", 587, false, true},
    {"iCloud Mail", "smtp.mail.me.com", 587, false, true},
    {"Microsoft 365", "smtp.office365.com", 587, false, true},
    {"Outlook.com", "smtp-mail.outlook.com", 587, false, true},
    {"Yahoo Mail", "smtp.mail.yahoo.com", 465, true, false},
};

constexpr std::string_view authMethods[] = {"LOGIN", "PLAIN", "CRAM-MD5"};

}  // namespace

std::span<const EmailPreset> emailPresets() {
    return presets;
}

EmailSettings EmailSettings::of(const Row& row) {
    return {.server = row.text("EmailSMTPServer"),
            .sender = row.text("EmailSenderAddress"),
            .authenticates = row.boolean("EmailSMTPAuth"),
            .userName = row.text("EmailSMTPUserName"),
            .password = row.text("EmailSMTPPassword"),
            .port = row.number("EmailSMTPPort"),
            .timeout = row.number("EmailSMTPTimeout"),
            .authMethod = row.text("EmailSMTPAuthMethod"),
            .ssl = row.boolean("EmailSMTPSSL"),
            .tls = row.boolean("EmailSMTPTLS")};
}

void EmailSettings::addTags(StatementTags& tags) const {
    tags.text("<smtpserver>", server);
    tags.text("<smtpfrom>", sender);
    tags.plain("<smtpauth>", authenticates);
    tags.text("<smtpuser>", userName);
    // Made safe here: the host is not handed more of a secret than the statement.
    tags.plain("<smtppass>", modSharedSQL::doubleQuotes(password));
    tags.plain("<smtpport>", port);
    tags.plain("<smtptimeout>", timeout);
    tags.text("<smtpauthmethod>", authMethod);
    tags.plain("<smtpssl>", ssl);
    tags.plain("<smtptls>", tls);
}

EmailSettingsDialog::EmailSettingsDialog(Library& library, EmailSettings settings, EmailSettings stored,
                                         std::int32_t employee)
    : RecordDialog(library, "frmEmailSettings"),
      settings_(std::move(settings)),
      stored_(std::move(stored)),
      employee_(employee),
      shownPassword_(settings_.password.empty() ? "" : hiddenPassword) {
    setCaption("E-mail Settings");
    for (std::size_t i = 0; i < std::size(presets); ++i)
        cboPreset.addItem(std::string(presets[i].name), static_cast<std::int32_t>(i));
    for (const std::string_view method : authMethods)
        cboAuthMethod.addItem(std::string(method));
    cboAuthMethod.editable = true;
    for (TextBox* box : {&txtServer, &txtSender, &txtUserName, &txtPassword})
        box->widthInCharacters = wide;
    for (TextBox* box : {&txtPort, &txtTimeout}) {
        box->widthInCharacters = narrow;
        box->rightAligned = true;
    }
    txtPassword.password = true;
    txtPassword.onEnter = [this] { txtPassword.selectAll(); };
    txtPort.onLeave = [this] { checkWholeNumberField(txtPort, portBounds); };
    txtTimeout.onLeave = [this] { checkWholeNumberField(txtTimeout, timeoutBounds); };
    cboPreset.onClick = [this] { applyPreset(); };
    chkAuth.onClick = [this] { enableLogin(); };
    cmdTest.onClick = [this] { cmdTest_Click(); };
    cmdTest.toolTip = "You can test the settings with which you are signed in.";
    cmdTest.setEnabled(false);

    txtServer.setText(settings_.server);
    txtPort.setText(std::to_string(settings_.port));
    txtTimeout.setText(std::to_string(settings_.timeout));
    txtSender.setText(settings_.sender);
    chkSSL.setChecked(settings_.ssl);
    chkTLS.setChecked(settings_.tls);
    chkAuth.setChecked(settings_.authenticates);
    cboAuthMethod.setText(settings_.authMethod);
    txtUserName.setText(settings_.userName);
    txtPassword.setText(shownPassword_);
    enableLogin();
    setFocus(txtServer);
}

Layout EmailSettingsDialog::content() {
    using namespace tsln::layout;
    return form({field("&Provider:", cboPreset), field("Se&rver:", txtServer), field("P&ort:", txtPort),
                 field("&Time-out (seconds):", txtTimeout), field("Sender's a&ddress:", txtSender),
                 field("", chkSSL), field("", chkTLS), field("", chkAuth), field("&Method:", cboAuthMethod),
                 field("&User name:", txtUserName), field("Pass&word:", txtPassword)});
}

void EmailSettingsDialog::opened() {
    // The host sends with the settings of the user who is signed in.
    cmdTest.setEnabled(employee_ >= 1 && employee_ == host().security().UserId());
}

void EmailSettingsDialog::applyPreset() {
    const auto chosen = cboPreset.chosen();
    if (!chosen) return;
    const EmailPreset& preset = presets[static_cast<std::size_t>(*chosen)];
    txtServer.setText(std::string(preset.server));
    txtPort.setText(std::to_string(preset.port));
    chkSSL.setChecked(preset.ssl);
    chkTLS.setChecked(preset.tls);
    chkAuth.setChecked(true);
    enableLogin();
}

void EmailSettingsDialog::enableLogin() {
    for (Control* control : std::initializer_list<Control*>{&cboAuthMethod, &txtUserName, &txtPassword})
        control->setEnabled(chkAuth.checked());
}

EmailSettings EmailSettingsDialog::displayed() const {
    EmailSettings settings{.server = txtServer.text(),
                           .sender = txtSender.text(),
                           .authenticates = chkAuth.checked(),
                           .userName = txtUserName.text(),
                           .password = settings_.password,
                           .authMethod = cboAuthMethod.text(),
                           .ssl = chkSSL.checked(),
                           .tls = chkTLS.checked()};
    readNumber(txtPort.text(), settings.port);
    readNumber(txtTimeout.text(), settings.timeout);
    return settings;
}

bool EmailSettingsDialog::validate() {
    for (TextBox* box : {&txtServer, &txtSender, &txtUserName})
        box->setText(modSharedStrings::trim(box->text()));
    checkWholeNumberField(txtPort, portBounds);
    checkWholeNumberField(txtTimeout, timeoutBounds);
    if (!txtServer.text().empty()) return true;
    refuse("You must enter the name of the mail server.", &txtServer);
    return false;
}

bool EmailSettingsDialog::save() {
    EmailSettings typed = displayed();
    if (passwordTyped()) typed.password = host().common().ComplexEncrypt(txtPassword.text());
    settings_ = std::move(typed);
    return true;
}

void EmailSettingsDialog::cmdTest_Click() {
    if (passwordTyped() || displayed() != stored_) {
        return tell(
            "Save the changed settings first. A test message is sent with the settings that are stored.",
            MessageIcon::Information);
    }
    host().SendEmailMessageWithTemplateAndUI(employeeTemplates, employee_, "Test message",
                                             "This message was sent to test the e-mail settings.");
}

}  // namespace tsln::entities
