#pragma once

#include <functional>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "com/edge/ComObject.h"
#include "com/edge/Conversion.h"
#include "com/edge/Failure.h"
#include "com/edge/Wide.h"
#include "workbench/host/CompanySession.h"

namespace tsln::test {

using com::ComPtr;

/// A class factory whose instances a function makes.
class ComponentFactory : public com::ComObject<IClassFactory> {
  public:
    explicit ComponentFactory(std::function<ComPtr<IDispatch>()> create) : create_(std::move(create)) {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept override {
        if (!out) return E_POINTER;
        *out = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        return com::guarded([&]() -> HRESULT { return create_()->QueryInterface(iid, out); }, nullptr);
    }
    STDMETHODIMP LockServer(BOOL) noexcept override { return S_OK; }

  private:
    std::function<ComPtr<IDispatch>()> create_;
};

/// While it exists, a component can be created by its program identifier, like those of any host. It is a class of this
/// process.
class OfferedComponent {
  public:
    /// One of the session's components.
    OfferedComponent(const workbench::CompanySession& session, const std::string& programId)
        : OfferedComponent(programId, [&session, programId] {
              return com::adopt(com::newDispatch(session.createObject(programId)));
          }) {}
    OfferedComponent(const std::string& programId, std::function<ComPtr<IDispatch>()> create)
        : key_(com::toWide(programId)) {
        CLSID classId;
        CoCreateGuid(&classId);
        wchar_t text[64];
        StringFromGUID2(classId, text, static_cast<int>(std::size(text)));
        EXPECT_EQ(ERROR_SUCCESS,
                  RegSetValueW(HKEY_CLASSES_ROOT, (key_ + L"\\CLSID").c_str(), REG_SZ, text, 0));
        ComPtr<IClassFactory> factory = com::adopt<IClassFactory>(new ComponentFactory(std::move(create)));
        EXPECT_EQ(S_OK, CoRegisterClassObject(classId, factory.Get(), CLSCTX_INPROC_SERVER,
                                              REGCLS_MULTIPLEUSE, &cookie_));
    }
    ~OfferedComponent() {
        CoRevokeClassObject(cookie_);
        RegDeleteKeyW(HKEY_CLASSES_ROOT, (key_ + L"\\CLSID").c_str());
        RegDeleteKeyW(HKEY_CLASSES_ROOT, key_.c_str());
    }
    OfferedComponent(const OfferedComponent&) = delete;
    OfferedComponent& operator=(const OfferedComponent&) = delete;

  private:
    std::wstring key_;
    DWORD cookie_ = 0;
};

}  // namespace tsln::test
