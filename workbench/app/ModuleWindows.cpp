#ifdef _WIN32
#include <algorithm>

#include "com/edge/ComObject.h"
#include "com/edge/Conversion.h"
#include "com/edge/DispatchObject.h"
#include "com/edge/Failure.h"
#include "com/edge/Wide.h"
#include "workbench/app/Module.h"
#include "workbench/host/CompanySession.h"

namespace tsln::workbench {
namespace {

/// The class factory of one of the session's components.
class ComponentFactory : public com::ComObject<IClassFactory> {
  public:
    ComponentFactory(const CompanySession& session, std::string_view programId)
        : session_(session), programId_(programId) {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept override {
        if (!out) return E_POINTER;
        *out = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        return com::guarded(
            [&]() -> HRESULT {
                return com::adopt(com::newDispatch(session_.createObject(programId_)))
                    ->QueryInterface(iid, out);
            },
            nullptr);
    }
    STDMETHODIMP LockServer(BOOL) noexcept override { return S_OK; }

  private:
    const CompanySession& session_;
    std::string_view programId_;
};

/// The classes in the program's manifest, by which COM finds the components without registration.
struct OfferedClass {
    CLSID classId;
    std::string_view programId;
};
constexpr OfferedClass offeredClasses[] = {
    {{0x2f9c6a10, 0x41d7, 0x4a5e, {0x8a, 0x57, 0x6b, 0x0c, 0x7a, 0x3f, 0x1e, 0x01}}, "tslnnum5.Checker"},
    {{0x2f9c6a11, 0x41d7, 0x4a5e, {0x8a, 0x57, 0x6b, 0x0c, 0x7a, 0x3f, 0x1e, 0x01}}, "tslniee5.Engine"},
    {{0x2f9c6a12, 0x41d7, 0x4a5e, {0x8a, 0x57, 0x6b, 0x0c, 0x7a, 0x3f, 0x1e, 0x01}}, "tslnfe5.Engine"},
    {{0x2f9c6a13, 0x41d7, 0x4a5e, {0x8a, 0x57, 0x6b, 0x0c, 0x7a, 0x3f, 0x1e, 0x01}}, "tslncmgr5.Library"},
    {{0x2f9c6a14, 0x41d7, 0x4a5e, {0x8a, 0x57, 0x6b, 0x0c, 0x7a, 0x3f, 0x1e, 0x01}}, "tslnsql5.Engine"},
};

/// The session that creates the components; null while no module is loaded.
const CompanySession* offering = nullptr;

}  // namespace

/// Because of the manifest, COM treats the program as the DLL that serves these classes and calls this function.
STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    const auto offered = std::ranges::find_if(
        offeredClasses, [&](const OfferedClass& row) { return IsEqualCLSID(row.classId, classId); });
    if (!offering || offered == std::end(offeredClasses)) return CLASS_E_CLASSNOTAVAILABLE;
    return com::guarded(
        [&] {
            return com::adopt(new ComponentFactory(*offering, offered->programId))->QueryInterface(iid, out);
        },
        nullptr);
}

struct Module::Parts {
    ObjectPtr library;
};

Module::Module(const CompanySession& session, const OnProcessEnd&) : parts_(std::make_unique<Parts>()) {
    offering = &session;
    parts_->library = com::createComponent("tslnmaint5.Library");
}

Module::~Module() {
    parts_.reset();
    offering = nullptr;
    CoFreeUnusedLibraries();
}

const ObjectPtr& Module::library() const noexcept {
    return parts_->library;
}

}  // namespace tsln::workbench
#endif
