#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "maintenance/RecordDialog.h"
#include "maintenance/Row.h"

namespace tsln::entities {

/// Shown in place of a stored password. A box that still contains it leaves the password as it is.
inline constexpr std::string_view hiddenPassword = "(HIDDENPASSWORD)";

/// How an employee's messages reach the mail server.
struct EmailSettings {
    std::string server, sender;
    bool authenticates = false;
    std::string userName;
    std::string password;  ///< as it is stored: protected by the host
    std::int32_t port = 587;
    std::int32_t timeout = 30;  ///< seconds
    std::string authMethod;
    bool ssl = false, tls = false;

    bool operator==(const EmailSettings&) const = default;
    static EmailSettings of(const Row& row);
    /// Adds the values of the settings' tags. May raise HostError.
    void addTags(StatementTags& tags) const;
};

/// The usual settings of a provider of mail accounts.
struct EmailPreset {
    std::string_view name, server;
    std::int32_t port;
    bool ssl, tls;
};
std::span<const EmailPreset> emailPresets();

/// Edits the settings for a mail server. A stored password is not shown.
class EmailSettingsDialog : public RecordDialog {
  public:
    /// `stored`: the settings in the database, with which the host sends the messages of `employee`.
    EmailSettingsDialog(Library& library, EmailSettings settings, EmailSettings stored,
                        std::int32_t employee);

    ComboBox cboPreset{*this, "cboPreset"};
    TextBox txtServer{*this, "txtServer"};
    TextBox txtPort{*this, "txtPort"};
    TextBox txtTimeout{*this, "txtTimeout"};
    TextBox txtSender{*this, "txtSender"};
    CheckBox chkSSL{*this, "chkSSL", "Use &SSL"};
    CheckBox chkTLS{*this, "chkTLS", "Use T&LS"};
    CheckBox chkAuth{*this, "chkAuth", "The server requires &authentication"};
    ComboBox cboAuthMethod{*this, "cboAuthMethod"};
    TextBox txtUserName{*this, "txtUserName"};
    TextBox txtPassword{*this, "txtPassword"};
    Button cmdTest{*this, "cmdTest", "Send a T&est Message..."};

    const EmailSettings& settings() const noexcept { return settings_; }

  protected:
    Layout content() override;
    std::vector<Layout> besideButtons() override { return {layout::item(cmdTest)}; }
    void opened() override;
    bool validate() override;
    bool save() override;

  private:
    void applyPreset();
    void enableLogin();
    /// The settings as they are shown, with the stored password. May raise HostError.
    EmailSettings displayed() const;
    bool passwordTyped() const { return txtPassword.text() != shownPassword_; }
    void cmdTest_Click();

    EmailSettings settings_;
    const EmailSettings stored_;
    const std::int32_t employee_;
    const std::string shownPassword_;
};

}  // namespace tsln::entities
