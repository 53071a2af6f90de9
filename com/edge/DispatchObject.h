#pragma once

#include "automation/Object.h"
#include "com/edge/ComObject.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// A COM object that is called by member names; each call looks up the member's number again. Errors of the
/// object are raised as HostError with their code, source and text. Arguments passed by reference are written
/// back.
class DispatchObject : public Object {
  public:
    /// Takes a reference of its own. `dispatch` is not null.
    explicit DispatchObject(IDispatch* dispatch);

    IDispatch* dispatch() const noexcept { return dispatch_.Get(); }

    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    DISPID idOf(std::string_view member) const;

    ComPtr<IDispatch> dispatch_;
    ComPtr<IDispatchEx> scripted_;  // some objects of script engines find members by this interface only
};

/// Creates a component of the platform by its program identifier. Raises HostError with
/// code::classNotRegistered, or with the error of the component's server.
ObjectPtr createComponent(std::string_view programId);

}  // namespace tsln::com
