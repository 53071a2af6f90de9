#include "bridge/Common.h"

#include "screens/Controls.h"

namespace tsln {

bool Common::RecordExists(std::string_view table, std::string_view column, std::string_view value,
                          std::int32_t ID) const {
    return call("RecordExists", table, column, value, ID).toBoolean();
}

std::string Common::GetDiscountGroupName(std::int32_t ID) const {
    return call("GetDiscountGroupName", ID).toText();
}

std::string Common::GetProductNameFromID(std::int32_t ID) const {
    return call("GetProductNameFromID", ID).toText();
}

std::string Common::GetCustomerName(std::int32_t ID) const {
    return call("GetCustomerName", ID).toText();
}

void Common::LoadPhoneLabels(ComboBox& combo) const {
    call("LoadPhoneLabels", combo.automation());
}

void Common::LoadEmailLabels(ComboBox& combo) const {
    call("LoadEmailLabels", combo.automation());
}

void Common::LoadTerms(ComboBox& combo) const {
    call("LoadTerms", combo.automation());
}

std::string Common::CreateGUID() const {
    return textOf(call("CreateGUID"), "CreateGUID");
}

std::string Common::FormatAsGUID(std::string_view guid) const {
    return textOf(call("FormatAsGUID", guid), "FormatAsGUID");
}

void Common::LoadComboFromQuery(ComboBox& combo, std::string_view sql, std::string_view shown,
                                std::string_view stored, bool blankEntry) const {
    call("LoadComboFromQuery", combo.automation(), sql, shown, stored, blankEntry);
}

}  // namespace tsln
