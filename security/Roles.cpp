#include "security/Roles.h"

#include "maintenance/modSharedReportControl.h"

namespace tsln::security {
namespace {

using modSharedSQL::doubleQuotes;
using modSharedSQL::format;

constexpr std::int32_t securityArea = 501;

namespace roleCommand {
constexpr int copy = 28320;
constexpr int addRoles = 28321;
}  // namespace roleCommand

RecordDescription roleDialog() {
    return {.newCaption = "New Security Role",
            .editCaption = "Edit Security Role",
            .fields = {fields::name("txtName", "&Name:", "Name", "<n>",
                                    "You must enter valid security role name.",
                                    "A security role with this name already exists."),
                       fields::text("txtDescription", "&Description:", "Description", "<d>")},
            .saveFailure = "There was a problem saving this security role."};
}

}  // namespace

// A file of this list alone would hold roles without their access, so the list is neither imported nor exported. The
// editor exports a role with its access.
const ListDescription rolesList{
    .open = Operation::ShowSecurityRoles,
    .edit = Operation::ShowEditSecurityRole,
    .screenName = "frmSecurityRoles",
    .caption = "Security Roles",
    .table = "SecurityRoles",
    .orderBy = "Name",
    .columns = {{"Name", 180, "Name"}, {"Description", 360, "Description"}},
    .securityArea = securityArea,
    .deletionChecks =
        {{.count = countReferences("EmployeeSecurityRoles", "SecurityRoleID"),
          .message =
              "The security role <Bold>{0}</Bold> cannot be deleted because it's being used by {1} employees.",
          .advice =
              "In order to delete this security role you must remove it from the employees that are using it."}},
    .deleteFailure = "There was a problem deleting one or more security roles.",
    .dialog = roleDialog(),
    .commands = {{.id = roleCommand::copy,
                  .caption = "Copy",
                  .needs = Needs::OneRow,
                  .rights = rights({Right::Add}),
                  .popups = inOneItem,
                  .run = [](ListScreen& list) { dynamic_cast<RolesScreen&>(list).copySelected(); },
                  .button = "cmdCopy",
                  .buttonCaption = "Cop&y"},
                 {.id = roleCommand::addRoles,
                  .caption = "Add/Update Additional Security Roles",
                  .rights = rights({Right::Add, Right::Edit}),
                  .popups = inMore,
                  .run =
                      [](ListScreen& list) {
                          list.library().RunPackageProcessor("TSLN50_SecurityRoles", true);
                          list.loadList();
                      },
                  .beginsGroup = true}},
    .contextMenu = true,
    .hidesForbidden = true,
};

void RolesScreen::Form_Unload() {
    ListScreen::Form_Unload();
    const Security security = host().security();
    security.ReInitializeUser(security.UserId());
}

void RolesScreen::copySelected() {
    const std::int32_t ID = selectedID();
    if (ID <= 0) return;
    const Database database = host().database();
    const Variant found = database.ExecuteScaler(format("SELECT Name FROM SecurityRoles WHERE ID = {0}", ID));
    constexpr std::string_view failure = "There was a problem copying this security role.";
    const std::string copied = found.isText() ? found.toText() : "";
    if (copied.empty()) return reportDatabaseFailure(failure);  // every role has a name
    const std::string name = copied + " Copy";
    if (count(format("SELECT COUNT(*) AS MyCount FROM SecurityRoles WHERE Name = '{0}'",
                     doubleQuotes(name))) > 0) {
        return host().ShowMessageStyle1(
            "The security role <Bold>" + copied +
                "</Bold> cannot be copied because there is already a security role <Bold>" + name +
                "</Bold>.",
            "In order to copy this security role you must first give the other one another name.");
    }
    // The name is filled in last, so that nothing in it is replaced.
    const std::string insert = format(
        "INSERT INTO SecurityRoles (Name, Description) SELECT '{0}', Description from SecurityRoles where ID = {1}",
        "{0}", ID);
    const std::int32_t added = database.ExecuteNonQueryWithID(format(insert, doubleQuotes(name)));
    if (added < 1) return reportDatabaseFailure(failure);
    // Also a copy that did not get its access is shown: it exists, and can be edited or deleted.
    if (!database.ExecuteNonQuery(format(
            "INSERT INTO SecurityRoleAccess (SecurityRoleID,Activity,Access) SELECT {0},Activity,Access FROM SecurityRoleAccess WHERE SecurityRoleID = {1} ",
            added, ID)))
        reportDatabaseFailure(failure);
    showAdded(added);
}

void plugIn(Library& library) {
    library.plugIn(rolesList.open, [](Library& self, Arguments) {
        showList<RolesScreen>(self, rolesList);
        return Variant();
    });
    library.plugIn(rolesList.edit, [](Library& self, Arguments a) {
        return Variant(runDialog<RoleDialog>(self, rolesList, a[0].toLong())->result());
    });
}

}  // namespace tsln::security
