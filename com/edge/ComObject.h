#pragma once

#include <atomic>

#include "com/edge/Platform.h"
// clang-format off: needs Platform.h first
#include <wrl/client.h>
// clang-format on

namespace tsln::com {

using Microsoft::WRL::ComPtr;

/// Takes over a reference that belongs to the caller. ComPtr::Attach() cannot be used: that of mingw-w64 10
/// adds a reference.
template <class Interface>
ComPtr<Interface> adopt(Interface* reference) noexcept {
    ComPtr<Interface> pointer;
    *pointer.GetAddressOf() = reference;
    return pointer;
}

/// The number of this module's COM objects that exist, plus the number of locks on the module.
std::atomic<long>& moduleReferences() noexcept;

/// Implements IUnknown for a COM object that offers the given interfaces. The first of them answers for
/// IUnknown, and the first that derives from IDispatch answers for IDispatch. A new object has one reference,
/// which belongs to its creator: `adopt(new X(...))`
template <class First, class... Others>
class ComObject : public First, public Others... {
  public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** out) noexcept override {
        if (!out) return E_POINTER;
        *out = find(iid);
        if (!*out) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() noexcept override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

  protected:
    ComObject() noexcept { ++moduleReferences(); }
    virtual ~ComObject() { --moduleReferences(); }

  private:
    void* find(REFIID iid) noexcept {
        if (iid == __uuidof(IUnknown)) return static_cast<First*>(this);
        void* found = nullptr;
        found = offer<First>(iid);
        ((found = found ? found : offer<Others>(iid)), ...);
        return found;
    }
    template <class Interface>
    void* offer(REFIID iid) noexcept {
        if (iid == __uuidof(Interface)) return static_cast<Interface*>(this);
        if constexpr (std::is_base_of_v<IDispatch, Interface>) {
            if (iid == __uuidof(IDispatch)) return static_cast<IDispatch*>(static_cast<Interface*>(this));
        }
        return nullptr;
    }

    std::atomic<ULONG> references_{1};
};

}  // namespace tsln::com
