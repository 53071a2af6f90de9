#include "roaming/IdentityDialog.h"

#include <algorithm>
#include <cctype>

#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::roaming {
namespace {

using modSharedSQL::format;

constexpr std::string_view screenName = "frmRoamingWorkstationIdentity";

/// True for a GUID without braces: hexadecimal digits in the shape of this pattern.
bool isGuid(std::string_view text) {
    constexpr std::string_view shape = "00000000-0000-0000-0000-000000000000";
    return std::ranges::equal(text, shape, [](char c, char place) {
        return place == '-' ? c == '-' : std::isxdigit(static_cast<unsigned char>(c)) != 0;
    });
}

}  // namespace

IdentityDialog::IdentityDialog(Library& library) : RecordDialog(library, std::string(screenName)) {
    setCaption("Roaming Workstation Identity");
    txtUniqueID.widthInCharacters = 38;
}

Layout IdentityDialog::content() {
    return layout::form({layout::field("&Identity code:", txtUniqueID)});
}

bool IdentityDialog::validate() {
    // Copied codes often come with blanks at their ends.
    txtUniqueID.setText(modSharedStrings::trim(txtUniqueID.text()));
    const std::string& code = txtUniqueID.text();
    if (!code.empty() && isGuid(code)) return true;
    refuse(code.empty() ? "You must enter the unique identity code that was generated from the main company."
                        : "The unique ID you have entered is not valid.",
           &txtUniqueID);
    return false;
}

bool IdentityDialog::hasCompany() const {
    return countOf(
               host().database().ExecuteScaler("SELECT COUNT(*) AS theCount FROM Company", "", "0")) > 0;
}

bool IdentityDialog::save() {
    const Database database = host().database();
    const std::string& code = txtUniqueID.text();
    const std::string statement =
        !hasCompany() ? format("INSERT INTO Company (Name,UniqueID,CompanyType) VALUES('{0}', '{1}', {2})",
                               "Roaming", code, host().OperatingMode())
                      : format("UPDATE Company SET UniqueID = '{0}'", code);
    if (database.ExecuteNonQuery(statement)) {
        ID = 1;
        return true;
    }
    reportDatabaseFailure("The identity code could not be saved.");
    return false;
}

std::int32_t enterIdentity(Library& library) {
    return library.screens()
        .show(
            screenName, [&] { return std::make_shared<IdentityDialog>(library); }, [](IdentityDialog&) {})
        ->result();
}

}  // namespace tsln::roaming
