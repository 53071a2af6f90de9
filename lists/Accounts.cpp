#include "lists/Lists.h"

namespace tsln::lists {
namespace {

constexpr Choice accountTypes[] = {{1, "Sales"}, {2, "Purchase"}};

}  // namespace

/// Some of the texts name shipping methods and customers instead of accounts (deliberate).
const ListDescription accountsList{
    .open = Operation::ShowAccounts,
    .edit = Operation::ShowAccounts_Edit,
    .screenName = "frmAccounts",
    .caption = "Accounts",
    .table = "Accounts",
    .view = "vwScreen_Accounts",
    .orderBy = "Account",
    .columns = {{"Account", 240, "Account"}, {"Account Type", 110, "FriendlyAccountType"}},
    .securityArea = 110,
    .listKind = 36,
    .moveReferencesCode = 14,
    .defaults = DefaultSet{"Would you like to install the default accounts?", "TSLN50_Accounts"},
    .deletionChecks =
        {{"SELECT COUNT(*) AS MyCount FROM Products WHERE SalesAccountID = {0} OR PurchaseAccountID = {0}",
          "The shipping method <Bold>{0}</Bold> cannot be deleted because it's being referenced by {1} products.",
          "In order to delete this shipping method you must first remove it from the customers that are referencing it."}},
    .deleteFailure = "There was a problem deleting one or more accounts(s).",
    .busyState = true,
    .dialog = {
        .newCaption = "New Shipping Methods",
        .editCaption = "Edit Account",
        .fields = {fields::name("txtAccount", "&Account:", "Account", "<a>", "You must enter a valid account name.", "An account with this name already exists."),
                   fields::choice("cboAccountType", "Account &type:", "AccountType", "<t>", accountTypes).required("You must select an account type."),
                   exportedField},
        .saveFailure = "There was a problem saving this account.",
        .expression = true,
    }};

}  // namespace tsln::lists
