#pragma once

#include "automation/Object.h"
#include "com/edge/ComObject.h"

namespace tsln::com {

/// An interface by which this module recognises its own objects behind an IDispatch. Each module has a tag of
/// its own and compares its address, so that an object of another module built from the same sources is not
/// mistaken for one of this module.
struct DECLSPEC_UUID("5b1f5f0e-2c53-4b6b-9d5c-6c5a3f0e7a21") IOwnObject : IUnknown {
    virtual void* STDMETHODCALLTYPE ownObject(const void* moduleTag) noexcept = 0;
};

}  // namespace tsln::com

__CRT_UUID_DECL(tsln::com::IOwnObject, 0x5b1f5f0e, 0x2c53, 0x4b6b, 0x9d, 0x5c, 0x6c, 0x5a, 0x3f, 0x0e, 0x7a,
                0x21)

namespace tsln::com {

/// The IDispatch of one of our objects. GetIDsOfNames gives a number to any name; whether the object has such
/// a member is found by Invoke (DISP_E_UNKNOWNNAME).
class ObjectDispatch : public ComObject<IDispatch, IOwnObject> {
  public:
    /// `object` is not null.
    explicit ObjectDispatch(ObjectPtr object) : object_(std::move(object)) {}

    /// The object behind `dispatch` if this module made it, else null.
    static ObjectPtr objectOf(IDispatch* dispatch);

    STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) noexcept override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* told, UINT* wrongArgument) noexcept override;
    void* STDMETHODCALLTYPE ownObject(const void* moduleTag) noexcept override;

  private:
    ObjectPtr object_;
};

}  // namespace tsln::com
