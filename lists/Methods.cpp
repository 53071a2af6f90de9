#include "lists/Lists.h"

namespace tsln::lists {
namespace {

using Show = ListColumn::Show;

constexpr Choice paymentTypes[] = {
    {1, "Cash"}, {2, "Check"}, {3, "Card"}, {4, "Bank transfer"}, {0, "Other"}};
constexpr Choice taskTypes[] = {{1, "Install"}, {2, "Ship"}};

}  // namespace

const ListDescription paymentMethodsList{
    .open = Operation::ShowPaymentMethods,
    .edit = Operation::ShowEditPaymentMethods,
    .screenName = "frmPaymentMethods",
    .caption = "Payment Methods",
    .table = "PaymentMethods",
    .orderBy = "PaymentMethod",
    .columns = {{"Payment Method", 220, "PaymentMethod"},
                {"Type", 120, "PaymentType", Show::Choice, paymentTypes}},
    .securityArea = 107,
    .listKind = 18,
    .moveReferencesCode = 8,
    .defaults = DefaultSet{"Would you like to install the default payment methods?", "TSLN50_PaymentMethods"},
    .deletionChecks =
        {{countReferences("Payments", "PaymentMethodID"),
          "The payment <Bold>{0}</Bold> cannot be deleted because it's being used by {1} payments.",
          "In order to delete this payment method you must delete the payments that are using it."}},
    .deleteFailure = "There was a problem deleting one or more payment method(s).",
    .dialog = {
        .newCaption = "New Payment Method",
        .editCaption = "Edit Payment Method",
        .fields = {fields::name("txtPaymentMethod", "&Payment method:", "PaymentMethod", "<sm>", "You must enter a valid payment method.", "A payment method with this name already exists."),
                   fields::choice("cboPaymentType", "&Type:", "PaymentType", "<t>", paymentTypes),
                   exportedField},
        .saveFailure = "There was a problem saving this payment method.",
    }};

const ListDescription shippingMethodsList{
    .open = Operation::ShowShippingMethods,
    .edit = Operation::ShowEditShippingMethods,
    .screenName = "frmShippingMethods",
    .caption = "Shipping Methods",
    .table = "ShippingMethods",
    .orderBy = "ShippingMethod",
    .columns = {{"Shipping Method", 220, "ShippingMethod"},
                {"Task Type", 100, "TaskType", Show::Choice, taskTypes}},
    .securityArea = 102,
    .listKind = 10,
    .moveReferencesCode = 1,
    .defaults =
        DefaultSet{"Would you like to install the default shipping methods?", "TSLN50_ShippingMethods"},
    .deletionChecks = {referencedByCustomers("shipping method", "ShippingMethodID"),
                       referencedByOrders("shipping method", "ShippingMethodID")},
    .deleteFailure = "There was a problem deleting one or more shipping method(s).",
    .busyState = true,
    .dialog = {
        .newCaption = "New Shipping Methods",
        .editCaption = "Edit Shipping Methods",
        .fields = {fields::name("txtShippingMethod", "&Shipping method:", "ShippingMethod", "<sm>", "You must enter a valid shipping method.", "The shipping method already exists."),
                   fields::choice("cboTaskType", "&Task type:", "TaskType", "<t>", taskTypes).required("You must select a task type to add.")},
        .saveFailure = "There was a problem saving this shipping method.",
    }};

const ListDescription referralMethodsList{
    .open = Operation::ShowReferralMethods,
    .edit = Operation::ShowEditReferralMethods,
    .screenName = "frmReferralMethods",
    .caption = "Referral Methods",
    .table = "ReferralMethods",
    .orderBy = "ReferralMethod",
    .columns = {{"Referral Method", 280, "ReferralMethod"}},
    .securityArea = 103,
    .listKind = 11,
    .moveReferencesCode = 2,
    .defaults =
        DefaultSet{"Would you like to install the default referral methods?", "TSLN50_ReferralMethods"},
    .deletionChecks = {referencedByCustomers("referral method", "ReferralMethodID"),
                       referencedByOrders("referral method", "ReferralMethodID")},
    .deleteFailure = "There was a problem deleting one or more referral method(s).",
    .dialog = {
        .newCaption = "New Referral Method",
        .editCaption = "Edit Referral Method",
        .fields = {fields::name("txtReferralMethod", "&Referral method:", "ReferralMethod", "<m>", "You must enter a valid Referral Method.", "This referral method already exists.")},
        .saveFailure = "There was a problem saving this referral method.",
    }};

}  // namespace tsln::lists
