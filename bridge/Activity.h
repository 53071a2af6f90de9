#pragma once

#include <cstdint>
#include <string_view>

#include "bridge/HostPart.h"

namespace tsln {

/// The host's activity histories of records.
class Activity : HostPart {
  public:
    explicit Activity(Library& library) : HostPart(library, "Activity") {}
    void RecordCustomerActivity(std::int32_t ID, std::string_view text) const;
    void RecordVendorActivity(std::int32_t ID, std::string_view text) const;
    void RecordEmployeeActivity(std::int32_t ID, std::string_view text) const;
};

}  // namespace tsln
