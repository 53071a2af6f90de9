#include "com/edge/DispatchObject.h"

#include <deque>

#include "com/edge/Conversion.h"
#include "com/edge/Failure.h"
#include "com/edge/Wide.h"

namespace tsln::com {
namespace {

/// The arguments of one call as the platform expects them: in reverse order. By-reference arguments refer to
/// variants of this object.
class PassedArguments {
  public:
    explicit PassedArguments(Arguments arguments) : arguments_(arguments), list_(arguments.count()) {
        for (std::size_t i = 0; i < arguments.count(); ++i) {
            OwnedVariant& value = values_.emplace_back();
            toCom(arguments[i], *value);
            VARIANT& passed = list_[list_.size() - 1 - i];
            passed = *value;  // a plain copy: `value` stays the owner
            if (arguments.all()[i].isByReference()) refer(passed, *value);
        }
    }

    VARIANT* list() { return list_.data(); }
    UINT count() const { return static_cast<UINT>(list_.size()); }

    /// Writes the values after the call to the caller's variables.
    void writeBack() {
        for (std::size_t i = 0; i < arguments_.count(); ++i) {
            if (arguments_.all()[i].isByReference()) arguments_.assign(i, fromCom(*values_[i]));
        }
    }

  private:
    /// Makes `passed` a reference to the value. A variable is passed with the type of its value, as a member
    /// that is declared with that type requires; a variable without a value is passed as a variant, which
    /// takes any type.
    static void refer(VARIANT& passed, VARIANT& value) {
        const VARTYPE type = V_VT(&value);
        if (type == VT_EMPTY || type == VT_NULL || type == VT_ERROR) {
            V_VT(&passed) = VT_BYREF | VT_VARIANT;
            V_VARIANTREF(&passed) = &value;
        } else {
            V_VT(&passed) = static_cast<VARTYPE>(VT_BYREF | type);
            V_BYREF(&passed) = &V_NONE(&value);
        }
    }

    Arguments arguments_;
    std::deque<OwnedVariant> values_;
    std::vector<VARIANT> list_;
};

}  // namespace

DispatchObject::DispatchObject(IDispatch* dispatch) : dispatch_(dispatch) {
    dispatch->QueryInterface(IID_PPV_ARGS(&scripted_));
}

DISPID DispatchObject::idOf(std::string_view member) const {
    std::wstring name = toWide(member);
    DISPID id = DISPID_UNKNOWN;
    HRESULT result;
    if (scripted_) {
        const BSTR text = SysAllocString(name.c_str());
        result = scripted_->GetDispID(text, fdexNameCaseInsensitive, &id);
        SysFreeString(text);
    } else {
        wchar_t* names[] = {name.data()};
        result = dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    }
    if (result == DISP_E_UNKNOWNNAME || (SUCCEEDED(result) && id == DISPID_UNKNOWN))
        raiseUnknownMember("Automation", member);
    if (FAILED(result)) throw HostError(result, std::string(member), textOf(result));
    return id;
}

Variant DispatchObject::invoke(std::string_view member, Access access, Arguments arguments) {
    // The call may release this object.
    const ComPtr<IDispatch> alive = dispatch_;
    const ComPtr<IDispatchEx> scripted = scripted_;
    const DISPID id = idOf(member);
    PassedArguments passed(arguments);
    DISPID putId = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{passed.list(), nullptr, passed.count(), 0};
    WORD flags =
        DISPATCH_METHOD | DISPATCH_PROPERTYGET;  // the caller does not know which of both the member is
    if (access == Access::Put) {
        parameters.rgdispidNamedArgs = &putId;
        parameters.cNamedArgs = 1;
        // A property that holds an object is set by PROPERTYPUTREF; some objects accept PROPERTYPUT only.
        const bool isObject = passed.count() > 0 && V_VT(passed.list()) == VT_DISPATCH;
        flags = isObject ? DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
    }
    OwnedVariant result;
    EXCEPINFO told{};
    VARIANT* const wanted = access == Access::Put ? nullptr : result.get();
    UINT wrongArgument = 0;
    const HRESULT answer =
        scripted ? scripted->InvokeEx(id, LOCALE_USER_DEFAULT, flags, &parameters, wanted, &told, nullptr)
                 : alive->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, wanted, &told,
                                 &wrongArgument);
    if (FAILED(answer)) throw errorOf(answer, told, std::string(member));
    passed.writeBack();
    return fromCom(*result);
}

ObjectPtr createComponent(std::string_view programId) {
    const std::string name(programId);
    CLSID classId;
    if (FAILED(CLSIDFromProgID(toWide(programId).c_str(), &classId))) {
        throw HostError(code::classNotRegistered, name, "The component '" + name + "' is not installed.");
    }
    ComPtr<IDispatch> component;
    const HRESULT result = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                            IID_PPV_ARGS(&component));
    if (FAILED(result)) {
        throw HostError(result, name, "The component '" + name + "' cannot be created: " + textOf(result));
    }
    return fromDispatch(component.Get());
}

}  // namespace tsln::com
