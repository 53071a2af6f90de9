#pragma once

#include "entities/EmailSettings.h"
#include "entities/EmployeeRoles.h"
#include "entities/LabelledAddresses.h"
#include "maintenance/RecordDialog.h"
#include "screens/TabControl.h"

namespace tsln::entities {

/// The employee editor: the employee's row and addresses, how the employee logs in and sends e-mail, and the security
/// roles that the employee has. A stored password is neither shown nor changed unless the user types a new one.
class EmployeeEditor : public RecordDialog {
  public:
    explicit EmployeeEditor(Library& library);

    TabControl TabControl1{*this, "TabControl1", {"General", "Login and security", "E-mail", "Notes"}};
    Frame grpAddresses{*this, "grpAddresses", "Addresses"};
    LabelledAddresses addresses;
    TextBox txtPassword{*this, "txtPassword"};
    TextBox txtConfirm{*this, "txtConfirm"};
    EmployeeRoles roles{*this};
    Button cmdEmailSettings{*this, "cmdEmailSettings", "E-mail &Settings..."};
    Label lblEmailSettings{*this, "lblEmailSettings", ""};

  protected:
    Layout content() override;
    void rowShown(const Row& row) override;
    void filled() override;
    bool validate() override;
    void addTags(StatementTags& tags) override;
    bool save() override;
    void saveFurther() override;
    std::string recordName() const override;

  private:
    bool isAdministrator() const;
    bool validateName();
    bool validateUserName();
    bool confirmDuties();
    bool validatePassword();
    bool confirmRoles();
    bool validateEmail();
    bool keepsPassword() const;
    std::string passwordHash() const;
    void showEmailSettings();
    void cmdEmailSettings_Click();
    void settleDefaultSalesRep();
    void readUserAgain();

    std::string storedHash_;   // of the employee's password; empty without one
    bool couldLogIn_ = false;  // as it is stored
    EmailSettings email_, storedEmail_;
    bool sendsEmail_ = true;  // the company has the feature
};

/// Edits an employee; an `ID` below 1 adds one. Returns the employee's key, 0 when nothing was saved.
std::int32_t editEmployee(Library& library, std::int32_t ID);

}  // namespace tsln::entities
