#pragma once

#include "com/edge/ComObject.h"

namespace tsln::com {

/// Creates instances of `Library`. Aggregation is not supported.
class ClassFactory : public ComObject<IClassFactory> {
  public:
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept override;
    STDMETHODIMP LockServer(BOOL lock) noexcept override;
};

}  // namespace tsln::com
