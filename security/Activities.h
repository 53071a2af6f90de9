#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tsln::security {

/// What a role may do with an activity, as bits of its access.
enum Access : std::int32_t {
    ViewOwned = 2,  ///< see the records that one is responsible for
    ViewAll = 4,
    Create = 8,
    Update = 16,
    Delete = 32,
    Perform = 128,  ///< carry out a step of the workflow
};

/// An activity of the application to which roles give access.
struct SecuredActivity {
    std::int32_t number;
    std::int32_t group;
    std::string_view groupName;
    std::string_view name;
    std::int32_t validAccess;  ///< the bits that can be granted
    std::string_view description;
};

/// All activities, in the order in which they are shown.
std::span<const SecuredActivity> activities();

/// The names of the bits, separated by commas.
std::string accessNames(std::int32_t access);
/// Names the access for the user: "None", "Full" when every valid bit is set, or the bits that are set.
std::string accessText(std::int32_t access, std::int32_t validAccess);

/// The access of a role to one activity while it is edited. Bits that cannot be granted for the activity, which another
/// program may have stored, survive every change except the removal of all access.
class ActivityAccess {
  public:
    ActivityAccess(std::int32_t validAccess, std::int32_t stored)
        : valid_(validAccess), stored_(stored), access_(stored) {}

    std::int32_t access() const noexcept { return access_; }
    bool isNone() const noexcept { return access_ == 0; }
    bool isFull() const noexcept { return (access_ & valid_) == valid_; }
    bool has(Access bit) const noexcept { return (access_ & bit) != 0; }
    bool allows(Access bit) const noexcept { return (valid_ & bit) != 0; }

    void setNone() noexcept { access_ = 0; }
    /// Grants everything that can be granted, which includes Perform.
    void setFull() noexcept { access_ = valid_ | invalidBits(); }
    /// Leaves the access as it is. After setNone() it begins with nothing that can be granted.
    void setPartial() noexcept {
        if (isNone()) access_ = invalidBits();
    }
    /// Grants or takes away one bit. Perform has no box of its own: it stays as it is, but ends with the last of the
    /// other bits, so that an activity without any tick is not performed.
    void grant(Access bit, bool granted) noexcept;

  private:
    std::int32_t invalidBits() const noexcept { return stored_ & ~valid_; }

    std::int32_t valid_, stored_, access_;
};

}  // namespace tsln::security
