#pragma once

#include <cstdint>

#include "bridge/HostPart.h"

namespace tsln {

/// The rights to the rows of a list, as CanDo() takes them.
enum class Right : std::int32_t { Add = 8, Edit = 16, Delete = 32 };

class Security : HostPart {
  public:
    explicit Security(Library& library) : HostPart(library, "Security") {}
    /// True when the user holds the right in the security area.
    bool CanDo(std::int32_t area, Right right) const;
    /// True when the company has the feature.
    bool CompanyFeatureEnabled(std::int32_t feature) const;
    /// True when this computer works on a copy of the company.
    bool IsRoamingWorkstation() const;
    /// The key of the user's row among the employees.
    std::int32_t UserId() const;
    /// Makes the host read the user with this key and the user's rights again.
    void ReInitializeUser(std::int32_t userID) const;
    // Who the user is to other components of the host, which get these values unchanged.
    Variant SID() const;
    Variant OID() const;
    Variant OrganizationName() const;
};

}  // namespace tsln
