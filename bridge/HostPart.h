#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "automation/Object.h"

namespace tsln {

class Library;

/// A sub-object of the host's shared-code object. It holds no reference: every call fetches the shared-code object
/// from the library and the sub-object from there, so a host may replace either between calls.
class HostPart {
  public:
    HostPart(Library& library, std::string_view name) : library_(library), name_(name) {}

  protected:
    template <class... A>
    Variant call(std::string_view member, A&&... arguments) const {
        return fetch()->call(member, std::forward<A>(arguments)...);
    }

  private:
    /// Raises HostError(code::objectNotSet) where the host has no such sub-object.
    ObjectPtr fetch() const;

    Library& library_;
    std::string_view name_;
};

/// Returns the host's shared-code object. Raises HostError(code::objectNotSet) before the library is initialized.
ObjectPtr sharedCodeOf(Library& library);

/// Returns a member's result as text, empty for nothing. Raises HostError(code::typeMismatch) for another type: the
/// text is written to the company's data.
std::string textOf(const Variant& result, std::string_view member);

}  // namespace tsln
