#include "workbench/host/SecurityObject.h"

#include "automation/NumericText.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedXML.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {

bool SecurityObject::canDo(std::int32_t activity, std::int32_t access) const {
    if (access == 0) return false;
    const auto rows = modSharedXML::Records::parse(context().company.read(modSharedSQL::format(
        "SELECT SecurityRoleAccess.Access FROM EmployeeSecurityRoles "
        "INNER JOIN SecurityRoleAccess ON SecurityRoleAccess.SecurityRoleID = EmployeeSecurityRoles.SecurityRoleID "
        "WHERE EmployeeSecurityRoles.EmployeeID = {0} AND SecurityRoleAccess.Activity = {1}",
        context().user.ID, activity)));
    for (const auto& row : rows) {
        if ((modSharedXML::readLong("Access", row) & access) == access) return true;
    }
    return false;
}

bool SecurityObject::companyFlag(std::string_view name, std::string_view section, bool otherwise) const {
    bool value = otherwise;
    if (const auto stored = context().options.get({}, {name, section})) readBoolean(*stored, value);
    return value;
}

Variant SecurityObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = SecurityObject;
    static constexpr Member<Self> members[] = {
        {"CanDo",
         [](Self& self, Arguments a) {
             a.require(2, 2);
             return Variant(self.canDo(a[0].toLong(), a[1].toLong()));
         }},
        {"ReInitializeUser",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             if (a[0].toLong() == self.context().user.ID) self.context().readUserAgain();
             return Variant();
         }},
        {"UserId", [](Self& self, Arguments) { return Variant(self.context().user.ID); }},
        {"IsRoamingWorkstation",
         [](Self& self, Arguments) {
             return Variant(self.companyFlag("IsRoamingWorkstation", "Synchronization", false));
         }},
        // A company has every feature that is not switched off.
        {"CompanyFeatureEnabled",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             return Variant(self.companyFlag(std::to_string(a[0].toLong()), "Features", true));
         }},
        // The user among all users of the company, and the company among all organizations.
        {"SID",
         [](Self& self, Arguments) {
             return Variant(textOf(self.context().company.scalar(modSharedSQL::format(
                 "SELECT UniqueID FROM Employees WHERE ID = {0}", self.context().user.ID))));
         }},
        {"OID",
         [](Self& self, Arguments) {
             return Variant(
                 textOf(self.context().company.scalar("SELECT TOP 1 UniqueID FROM Company ORDER BY ID")));
         }},
        {"OrganizationName",
         [](Self& self, Arguments) {
             return Variant(
                 textOf(self.context().company.scalar("SELECT TOP 1 Name FROM Company ORDER BY ID")));
         }},
    };
    return answer(*this, "Security", members, member, access, arguments);
}

}  // namespace tsln::workbench
