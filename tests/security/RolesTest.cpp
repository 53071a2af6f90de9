#include <set>

#include "doubles/Stage.h"
#include "security/Roles.h"

namespace tsln::test {
namespace {

using namespace security;

constexpr auto listName = "frmSecurityRoles";
constexpr auto dialogName = "frmSecurityRoles_Edit";

std::string access(int activity, int bits) {
    return "<Record><Activity>" + std::to_string(activity) + "</Activity><Access>" + std::to_string(bits) +
           "</Access></Record>";
}

/// A host with the roles 3 and 4. Role 3 may see terms, has more than can be granted for discounts, may send quotes,
/// and has access to an activity that is not listed.
struct RoleStage : Stage {
    RoleStage() { furnish(*this); }
    static void furnish(Stage& stage) {
        const std::string three =
            "<Record><ID>3</ID><Name>Sales's</Name><Description>d</Description></Record>";
        stage.host->rows("SELECT * FROM SecurityRoles ORDER BY Name",
                         "<Records>" + three + "<Record><ID>4</ID><Name>Viewer</Name></Record></Records>");
        stage.host->rows("SELECT * FROM SecurityRoles WHERE ID = 3", "<Records>" + three + "</Records>");
        stage.host->rows("SELECT * FROM SecurityRoles WHERE ID = 9",
                         "<Records><Record><ID>9</ID><Name>Sales's Copy</Name></Record></Records>");
        stage.host->rows("SELECT * FROM SecurityRoleAccess WHERE SecurityRoleID = 3",
                         "<Records>" + access(106, 4) + access(201, 60) + access(800, 190) + access(999, 7) +
                             "</Records>");
        stage.host->on("Database.ExecuteScaler", [](Arguments a) {
            const std::string sql = a[0].toText();
            if (sql.starts_with("SELECT Name")) return Variant("Sales's");
            if (sql.starts_with("SELECT UniqueID")) return Variant("3-3");
            return Variant(sql.ends_with("SecurityRoleID = 3") ? 2 : 0);
        });
        stage.host->on("Database.ExecuteNonQueryWithID", Variant(9));
        stage.host->on("Security.UserId", Variant(5));
    }
    template <class Act>
    void list(Act act) {
        desktop.user<RolesScreen>(listName, act);
        library->ShowSecurityRoles();
    }
    template <class Act>
    std::int32_t edit(std::int32_t ID, Act act) {
        desktop.user<RoleDialog>(dialogName, act);
        return library->ShowEditSecurityRole(ID);
    }
};

void select(ReportControl& rows, std::int32_t ID) {
    const std::size_t row = *rows.findRow(*rows.findRecord(ID));
    rows.userSelect(std::array{row}, row);
}
void press(RolesScreen& list, const char* button) {
    dynamic_cast<Button&>(*list.control(button)).userPress();
}
std::string shown(const RoleDialog& dialog, std::int32_t activity, std::size_t column = 1) {
    return std::string(dialog.rptActivity.cell(*dialog.rptActivity.findRecord(activity), column));
}

TEST(SecurityRoles, EveryActivityHasItsOwnNumberAndGroupsStayTogether) {
    std::set<std::int32_t> numbers, groups;
    std::int32_t group = 0;
    for (const SecuredActivity& activity : activities()) {
        EXPECT_TRUE(numbers.insert(activity.number).second) << activity.number;
        EXPECT_TRUE(activity.group == group || groups.insert(activity.group).second) << activity.name;
        group = activity.group;
        EXPECT_EQ(activity.validAccess & ~(ViewOwned | ViewAll | Create | Update | Delete | Perform), 0);
        EXPECT_FALSE(activity.description.empty());
    }
    EXPECT_EQ(numbers.size(), 45U);
    EXPECT_FALSE(numbers.contains(804));
}

TEST(SecurityRoles, OptionsAndBoxesGrantWithinTheMaskAndKeepWhatOthersStored) {
    using Change = void (*)(ActivityAccess&);
    const struct {
        const char* what;
        std::int32_t valid, stored;
        Change change;
        std::int32_t result;
    } cases[] = {
        {"Full grants the mask, and to perform", 190, 0, [](auto& a) { a.setFull(); }, 190},
        {"Full keeps bits beyond the mask", 20, 8, [](auto& a) { a.setFull(); }, 28},
        {"None removes all", 20, 60, [](auto& a) { a.setNone(); }, 0},
        {"Partial after None has the bits beyond the mask", 20, 60,
         [](auto& a) { a.setNone(), a.setPartial(); }, 40},
        {"Partial after Full keeps it", 190, 4, [](auto& a) { a.setFull(), a.setPartial(); }, 190},
        {"a box changes its bit alone", 190, 190, [](auto& a) { a.grant(Delete, false); }, 158},
        {"a box does not grant to perform", 190, 0, [](auto& a) { a.setPartial(), a.grant(ViewAll, true); },
         4},
        {"to perform ends with the last box", 190, 132, [](auto& a) { a.grant(ViewAll, false); }, 0},
        {"bits beyond the mask do not", 20, 68, [](auto& a) { a.grant(ViewAll, false); }, 64},
        {"a bit outside the mask is not granted", 20, 4, [](auto& a) { a.grant(Create, true); }, 4},
    };
    for (const auto& c : cases) {
        ActivityAccess access(c.valid, c.stored);
        c.change(access);
        EXPECT_EQ(access.access(), c.result) << c.what;
    }
}

TEST(SecurityRoles, OnlyChangedAccessIsWritten) {
    RoleStage stage;
    EXPECT_EQ(stage.edit(3,
                         [](RoleDialog& dialog) {
                             EXPECT_EQ(dialog.caption(), "Edit Security Role");
                             EXPECT_EQ(dialog.lblPermissions.caption(), "No activity selected");
                             EXPECT_FALSE(dialog.optFull.enabled());
                             EXPECT_EQ(shown(dialog, 106), "View All");
                             EXPECT_EQ(shown(dialog, 201), "Full");
                             EXPECT_EQ(shown(dialog, 107), "None");

                             select(dialog.rptActivity, 106);
                             EXPECT_EQ(dialog.lblPermissions.caption(), "Permissions for Terms");
                             EXPECT_THAT(dialog.txtActivityDescription.text(), HasSubstr("payment terms"));
                             EXPECT_TRUE(dialog.optPartial.selected());
                             EXPECT_TRUE(dialog.chkViewAll.checked() && dialog.chkDelete.enabled());
                             EXPECT_FALSE(dialog.chkViewOwned.enabled()) << "not in the mask";
                             dialog.chkDelete.userCheck(true);
                             EXPECT_EQ(shown(dialog, 106), "View All, Delete");
                             dialog.optFull.userSelect();
                             EXPECT_TRUE(dialog.chkCreate.checked() && !dialog.chkCreate.enabled());

                             select(dialog.rptActivity, 201);
                             dialog.optPartial.userSelect();
                             EXPECT_EQ(shown(dialog, 201, 2), "0") << "nothing was changed";
                             dialog.chkViewAll.userCheck(false);

                             select(dialog.rptActivity, 107);
                             dialog.optFull.userSelect();
                             dialog.optNone.userSelect();
                             EXPECT_EQ(shown(dialog, 107, 2), "1");
                             select(dialog.rptActivity, 800);
                             dialog.rptActivity.clearSelection();
                             dialog.optNone.userSelect();
                             dialog.cmdOK.userPress();
                         }),
              3);
    const std::string of = "DELETE FROM SecurityRoleAccess WHERE SecurityRoleID = 3 AND Activity = ";
    const std::string into = "INSERT INTO SecurityRoleAccess (SecurityRoleID, Activity, Access) VALUES(3,";
    EXPECT_THAT(stage.executed(),
                ElementsAre("UPDATE SecurityRoles SET Name = 'Sales''s', Description = 'd' WHERE ID = 3",
                            of + "106", into + "106,60)", of + "107", of + "201", into + "201,56)"));
    EXPECT_FALSE(stage.told());
}

TEST(SecurityRoles, ANewRoleIsWrittenWithWhatItGrants) {
    RoleStage stage;
    EXPECT_EQ(stage.edit(0,
                         [&](RoleDialog& dialog) {
                             EXPECT_EQ(dialog.caption(), "New Security Role");
                             EXPECT_FALSE(dialog.cmdExport.enabled());
                             dialog.textBox("txtName").userType("  ");
                             dialog.cmdOK.userPress();
                             EXPECT_EQ(dialog.focusedControl(), dialog.control("txtName"));
                             stage.host->on("Common.RecordExists", Variant(true));
                             dialog.textBox("txtName").userType("Viewer");
                             dialog.setFocus(dialog.rptActivity);
                             dialog.cmdOK.userPress();
                             EXPECT_EQ(dialog.focusedControl(), dialog.control("txtName"));
                             stage.host->on("Common.RecordExists", Variant(false));
                             dialog.textBox("txtName").userType(" Fitters ");
                             select(dialog.rptActivity, 805);
                             dialog.optFull.userSelect();
                             dialog.cmdOK.userPress();
                         }),
              9);
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(exclamation("You must enter valid security role name."),
                            exclamation("A security role with this name already exists.")));
    EXPECT_THAT(stage.inserted(),
                ElementsAre("INSERT INTO SecurityRoles (Name,Description) VALUES('Fitters', '')"));
    EXPECT_THAT(
        stage.executed(),
        ElementsAre("DELETE FROM SecurityRoleAccess WHERE SecurityRoleID = 9 AND Activity = 805",
                    "INSERT INTO SecurityRoleAccess (SecurityRoleID, Activity, Access) VALUES(9,805,190)"));
}

TEST(SecurityRoles, AFailedSaveKeepsTheInputAndTheNextOneWritesTheRest) {
    RoleStage stage;
    std::string fails = "INSERT INTO SecurityRoleAccess (SecurityRoleID, Activity, Access) VALUES(9,106,60)";
    stage.host->on("Database.ExecuteNonQuery", [&](Arguments a) { return Variant(a[0].toText() != fails); });
    stage.host->rows("SELECT * FROM SecurityRoles WHERE ID = 9",
                     "<Records><Record><ID>9</ID></Record></Records>");
    const auto grant = [](RoleDialog& dialog) {
        dialog.textBox("txtName").userType("Fitters");
        for (const std::int32_t activity : {100, 106, 200}) {
            select(dialog.rptActivity, activity);
            dialog.optFull.userSelect();
        }
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
    };
    EXPECT_EQ(stage.edit(0,
                         [&](RoleDialog& dialog) {
                             grant(dialog);
                             stage.host->forget();
                             fails.clear();
                             dialog.cmdOK.userPress();
                         }),
              9);
    EXPECT_THAT(stage.executed(), Not(Contains(HasSubstr("Activity = 100"))));
    EXPECT_THAT(stage.executed(), Contains(EndsWith("VALUES(9,106,60)")));
    EXPECT_THAT(stage.executed(), Contains(EndsWith("VALUES(9,200,4)")));

    RoleStage given;
    given.host->on("Database.ExecuteNonQuery", Variant(false));
    EXPECT_EQ(given.edit(0,
                         [&](RoleDialog& dialog) {
                             grant(dialog);
                             dialog.cmdCancel.userPress();
                         }),
              9)
        << "the role exists, and the list must show it";
    EXPECT_THAT(given.failures(), ElementsAre(explained("There was a problem saving this security role.")));
}

TEST(SecurityRoles, ARoleThatAnotherUserDeletedIsNotWritten) {
    RoleStage stage;
    EXPECT_EQ(stage.edit(3,
                         [&](RoleDialog& dialog) {
                             stage.host->rows("SELECT * FROM SecurityRoles WHERE ID = 3", "<Records/>");
                             select(dialog.rptActivity, 106);
                             dialog.optFull.userSelect();
                             dialog.cmdOK.userPress();
                             EXPECT_TRUE(dialog.shown() && dialog.lblMissing.visible());
                             EXPECT_EQ(shown(dialog, 106), "Full");
                             dialog.cmdCancel.userPress();
                         }),
              0);
    EXPECT_THAT(stage.executed(), IsEmpty());
    EXPECT_EQ(stage.desktop.boxes.size(), 1U);
}

TEST(SecurityRoles, AnExportHoldsTheRoleAndItsAccess) {
    for (const bool exported : {true, false}) {
        RoleStage stage;
        stage.desktop.files = {"/x/role.xml"};
        stage.host->on("tslniee5.Engine.DoExport", Variant(exported));
        stage.edit(3, [](RoleDialog& dialog) {
            dialog.cmdExport.userPress();
            dialog.cmdExport.userPress();  // cancelled
        });
        EXPECT_THAT(
            stage.host->callsOf("tslniee5.Engine.AddToExport"),
            ElementsAre(
                "SecurityRoles, SELECT * FROM vwExporting_SecurityRoles WHERE UniqueID = '3-3'",
                "SecurityRoleAccess, SELECT * FROM vwExporting_SecurityRoleAccess WHERE SecurityRoleUniqueID = '3-3'"));
        EXPECT_THAT(stage.host->callsOf("tslniee5.Engine.DoExport"), ElementsAre("/x/role.xml"));
        EXPECT_EQ(stage.desktop.proposals.front(), "Sales's.xml");
        EXPECT_THAT(stage.desktop.boxes,
                    ElementsAre(exported ? information("This security role has been exported.")
                                         : exclamation("There was a problem exporting this security role.")));
    }
}

TEST(SecurityRoles, ACopyIsOneStatementPairAndATakenNameWritesNothing) {
    RoleStage stage;
    stage.list([](RolesScreen& list) {
        EXPECT_FALSE(list.control("cmdCopy")->enabled());
        select(list.rptItems, 3);
        press(list, "cmdCopy");
        EXPECT_EQ(list.selectedID(), 9);
    });
    EXPECT_THAT(
        stage.host->callsOf("Database.ExecuteScaler"),
        Contains(HasSubstr("SELECT COUNT(*) AS MyCount FROM SecurityRoles WHERE Name = 'Sales''s Copy'")));
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre(
            "INSERT INTO SecurityRoles (Name, Description) SELECT 'Sales''s Copy', Description from SecurityRoles where ID = 3"));
    EXPECT_THAT(
        stage.executed(),
        ElementsAre(
            "INSERT INTO SecurityRoleAccess (SecurityRoleID,Activity,Access) SELECT 9,Activity,Access FROM SecurityRoleAccess WHERE SecurityRoleID = 3 "));

    RoleStage odd;
    odd.host->on("Database.ExecuteScaler", [](Arguments a) {
        return a[0].toText().starts_with("SELECT Name") ? Variant("{1}") : Variant(0);
    });
    odd.list([](RolesScreen& list) {
        select(list.rptItems, 3);
        press(list, "cmdCopy");
    });
    EXPECT_THAT(odd.inserted(), ElementsAre(HasSubstr("SELECT '{1} Copy', ")));

    RoleStage taken;
    taken.host->on("Database.ExecuteScaler", [](Arguments a) {
        return a[0].toText().starts_with("SELECT Name") ? Variant("Sales") : Variant(1);
    });
    taken.list([](RolesScreen& list) {
        select(list.rptItems, 3);
        press(list, "cmdCopy");
    });
    EXPECT_THAT(taken.host->callsOf("ShowMessageStyle1"), ElementsAre(HasSubstr("<Bold>Sales Copy</Bold>")));
    EXPECT_THAT(taken.inserted(), IsEmpty());
    EXPECT_THAT(taken.executed(), IsEmpty());

    for (const Variant& name : {Variant(""), Variant(false), Variant()}) {
        RoleStage nameless;
        nameless.host->on("Database.ExecuteScaler", [&](Arguments a) {
            return a[0].toText().starts_with("SELECT Name") ? name : Variant(0);
        });
        nameless.list([](RolesScreen& list) {
            select(list.rptItems, 3);
            press(list, "cmdCopy");
        });
        EXPECT_THAT(nameless.failures(),
                    ElementsAre(HasSubstr("There was a problem copying this security role.")));
        EXPECT_THAT(nameless.inserted(), IsEmpty());
    }
}

TEST(SecurityRoles, ARoleInUseIsNotDeletedAndClosingReadsTheUserAgain) {
    RoleStage stage;
    stage.list([&](RolesScreen& list) {
        for (const std::int32_t role : {3, 4}) {
            select(list.rptItems, role);
            list.cmdDelete.userPress();
        }
        EXPECT_EQ(list.rptItems.recordCount(), 1U);
        EXPECT_THAT(stage.host->callsOf("Security.ReInitializeUser"), IsEmpty());
        list.cmdClose.userPress();
    });
    EXPECT_THAT(
        stage.host->callsOf("ShowMessageStyle1"),
        ElementsAre(
            "The security role <Bold>Sales's</Bold> cannot be deleted because it's being used by 2 employees., In order to delete this security role you must remove it from the employees that are using it."));
    EXPECT_THAT(stage.executed(), ElementsAre("DELETE FROM SecurityRoles WHERE ID = 4"));
    EXPECT_THAT(stage.host->callsOf("Security.ReInitializeUser"), ElementsAre("5"));
}

TEST(SecurityRoles, TheContextMenuOffersOnlyWhatTheUserMay) {
    const struct {
        std::int32_t right;  // the only one that the user has
        std::vector<std::string> commands;
    } cases[] = {{8, {"&New...", "&Copy"}}, {16, {"&Edit..."}}, {32, {"&Delete"}}, {0, {}}};
    for (const auto& c : cases) {
        RoleStage stage;
        stage.host->on("Security.CanDo", [&](Arguments a) {
            EXPECT_EQ(a[0].toLong(), 501);
            return Variant(a[1].toLong() == c.right);
        });
        stage.list([](RolesScreen& list) { list.rptItems.userContextMenu(0); });
        std::vector<std::string> offered;
        for (const Command& popup : stage.desktop.popups) {
            for (const Command& command : popup.commands)
                offered.push_back(command.caption);
        }
        EXPECT_EQ(offered, c.commands) << c.right;
    }
}

TEST(SecurityRoles, FurtherRolesAreInstalledByThePackageProcessor) {
    RoleStage stage;
    stage.desktop.popupChoices = {28321};
    stage.list([](RolesScreen& list) { list.cmdMore.userPress(); });
    EXPECT_THAT(stage.desktop.popups.front().commands.back().caption,
                HasSubstr("Update Additional Security Roles"));
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(exclamation("The TSLN 5 Package Processor cannot be found.")));
}

}  // namespace
}  // namespace tsln::test
