#ifdef _WIN32
#include "com/edge/ComObject.h"
#include "com/edge/Conversion.h"
#include "com/edge/DispatchObject.h"
#include "com/edge/Failure.h"
#include "com/edge/Wide.h"
#include "workbench/app/Module.h"
#include "workbench/host/CompanySession.h"
#include "workbench/host/Components.h"

namespace tsln::workbench {
namespace {

using com::ComPtr;

/// Makes one of the session's components for whoever asks the platform for it.
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

/// A component that the platform offers under its program identifier as long as this lives. Which class that
/// identifier stands for is told by the program's manifest, so that nothing need be registered.
class OfferedComponent {
  public:
    OfferedComponent(const CompanySession& session, std::string_view programId) {
        CLSID classId;
        HRESULT result = CLSIDFromProgID(com::toWide(programId).c_str(), &classId);
        const ComPtr<IClassFactory> factory =
            com::adopt<IClassFactory>(new ComponentFactory(session, programId));
        if (SUCCEEDED(result)) {
            result = CoRegisterClassObject(classId, factory.Get(), CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                           REGCLS_MULTIPLEUSE, &cookie_);
        }
        if (FAILED(result)) throw HostError(result, std::string(programId), com::textOf(result));
    }
    ~OfferedComponent() {
        if (cookie_) CoRevokeClassObject(cookie_);
    }
    OfferedComponent(const OfferedComponent&) = delete;
    OfferedComponent& operator=(const OfferedComponent&) = delete;

  private:
    DWORD cookie_ = 0;
};

}  // namespace

struct Module::Parts {
    std::vector<std::unique_ptr<OfferedComponent>> components;
    ObjectPtr library;
};

Module::Module(const CompanySession& session, OnProcessEnd) : parts_(std::make_unique<Parts>()) {
    for (const std::string_view programId : componentNames())
        parts_->components.push_back(std::make_unique<OfferedComponent>(session, programId));
    parts_->library = com::createComponent("tslnmaint5.Library");
}

Module::~Module() {
    parts_->library.reset();
    parts_.reset();
    CoFreeUnusedLibraries();
}

const ObjectPtr& Module::library() const noexcept {
    return parts_->library;
}

}  // namespace tsln::workbench
#endif
