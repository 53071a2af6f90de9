#include "com/server/ClassFactory.h"

#include "com/edge/Failure.h"
#include "com/server/LibraryClass.h"
#include "module/Module.h"

namespace tsln::com {
STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    return guarded([&]() -> HRESULT { return createLibrary(plugInModule)->QueryInterface(iid, out); },
                   nullptr);
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) noexcept {
    moduleReferences() += lock ? 1 : -1;
    return S_OK;
}

}  // namespace tsln::com
