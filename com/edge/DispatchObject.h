#pragma once

#include "automation/Object.h"
#include "com/edge/ComObject.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// An object of the outside, reached by name: each call looks its member up anew. What the object raises
/// comes as HostError with its code, source and text; variables passed by reference are written back.
class DispatchObject : public Object {
  public:
    /// Takes a reference of its own. `dispatch` is not null.
    explicit DispatchObject(IDispatch* dispatch);

    IDispatch* dispatch() const noexcept { return dispatch_.Get(); }

    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    DISPID idOf(std::string_view member) const;

    ComPtr<IDispatch> dispatch_;
    ComPtr<IDispatchEx> scripted_;  // objects of script engines may answer by name through this one alone
};

/// Creates a component of the platform by its program identifier. Raises HostError with
/// code::classNotRegistered or what the component's server answered.
ObjectPtr createComponent(std::string_view programId);

}  // namespace tsln::com
