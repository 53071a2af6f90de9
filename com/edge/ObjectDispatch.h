#pragma once

#include "automation/Object.h"
#include "com/edge/ComObject.h"

namespace tsln::com {

/// Tells whether an object behind IDispatch is one of this module's own. Only the pointer to the tag is
/// compared, so that another module built from the same sources is not taken for this one.
struct DECLSPEC_UUID("5b1f5f0e-2c53-4b6b-9d5c-6c5a3f0e7a21") IOwnObject : IUnknown {
    virtual void* STDMETHODCALLTYPE ownObject(const void* moduleTag) noexcept = 0;
};

}  // namespace tsln::com

__CRT_UUID_DECL(tsln::com::IOwnObject, 0x5b1f5f0e, 0x2c53, 0x4b6b, 0x9d, 0x5c, 0x6c, 0x5a, 0x3f, 0x0e, 0x7a,
                0x21)

namespace tsln::com {

/// One of our objects as the platform reaches it: by name alone. Names are given numbers as they are asked
/// for, so only the call itself tells whether there is such a member (DISP_E_UNKNOWNNAME).
class ObjectDispatch : public ComObject<IDispatch, IOwnObject> {
  public:
    /// `object` is not null.
    explicit ObjectDispatch(ObjectPtr object) : object_(std::move(object)) {}

    /// The object behind `dispatch` if that is one of this module's, else null.
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
