#pragma once

#include "com/edge/ComObject.h"

namespace tsln::com {

/// Makes instances of `Library`. They cannot be part of another object.
class ClassFactory : public ComObject<IClassFactory> {
  public:
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept override;
    STDMETHODIMP LockServer(BOOL lock) noexcept override;
};

}  // namespace tsln::com
