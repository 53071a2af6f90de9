#include "bridge/Activity.h"

namespace tsln {

void Activity::RecordCustomerActivity(std::int32_t ID, std::string_view text) const {
    call("RecordCustomerActivity", ID, text);
}

void Activity::RecordVendorActivity(std::int32_t ID, std::string_view text) const {
    call("RecordVendorActivity", ID, text);
}

void Activity::RecordEmployeeActivity(std::int32_t ID, std::string_view text) const {
    call("RecordEmployeeActivity", ID, text);
}

}  // namespace tsln
