#include "bridge/Security.h"

namespace tsln {

bool Security::CanDo(std::int32_t area, Right right) const {
    return call("CanDo", area, static_cast<std::int32_t>(right)).toBoolean();
}

bool Security::CompanyFeatureEnabled(std::int32_t feature) const {
    return call("CompanyFeatureEnabled", feature).toBoolean();
}

bool Security::IsRoamingWorkstation() const {
    return call("IsRoamingWorkstation").toBoolean();
}

std::int32_t Security::UserId() const {
    return call("UserId").toLong();
}

void Security::ReInitializeUser(std::int32_t userID) const {
    call("ReInitializeUser", userID);
}

Variant Security::SID() const {
    return call("SID");
}

Variant Security::OID() const {
    return call("OID");
}

Variant Security::OrganizationName() const {
    return call("OrganizationName");
}

}  // namespace tsln
