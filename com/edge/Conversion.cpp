#include "com/edge/Conversion.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "com/edge/ArrayObject.h"
#include "com/edge/DispatchObject.h"
#include "com/edge/Failure.h"
#include "com/edge/ObjectDispatch.h"
#include "com/edge/Wide.h"

namespace tsln::com {
namespace {

[[noreturn]] void mismatch(const char* what) {
    throw HostError(code::typeMismatch, "Automation", std::string("Type mismatch: ") + what + ".");
}

void check(HRESULT result) {
    if (FAILED(result)) throw HostError(result, "Automation", textOf(result));
}

constexpr double wholeLimit = 9007199254740992;  // 2^53: whole numbers below it are exact in a double

/// A whole number if the value is one, else the value itself.
Variant number(double value) {
    if (value == std::floor(value) && std::fabs(value) < wholeLimit) return static_cast<std::int64_t>(value);
    return value;
}

Variant fromDecimal(DECIMAL decimal) {
    double value = 0;
    check(VarR8FromDec(&decimal, &value));
    return number(value);
}

ObjectPtr fromUnknown(IUnknown* unknown) {
    if (!unknown) return nullptr;
    ComPtr<IDispatch> dispatch;
    if (FAILED(unknown->QueryInterface(IID_PPV_ARGS(&dispatch))))
        mismatch("the object cannot be called by name");
    return fromDispatch(dispatch.Get());
}

constexpr int mostLinks = 16;  // of a chain of references; a chain that refers to itself has no end

/// The last reference of a chain: the one that points to the variable itself. Returns a plain value
/// unchanged.
const VARIANT& lastLink(const VARIANT& value) {
    const VARIANT* link = &value;
    for (int links = 0; V_VT(link) == (VT_VARIANT | VT_BYREF); ++links) {
        const VARIANT* const inner = V_VARIANTREF(link);
        if (!inner || !V_ISBYREF(inner)) break;
        if (links == mostLinks) mismatch("a chain of references without an end");
        link = inner;
    }
    if (V_ISBYREF(link) && !V_BYREF(link)) mismatch("a reference to nothing");
    return *link;
}

Variant fromValue(const VARIANT& value) {
    if (V_ISARRAY(&value)) {
        const auto type = static_cast<VARTYPE>(V_VT(&value) & ~VT_ARRAY);
        return ObjectPtr(std::make_shared<ArrayObject>(type, V_ARRAY(&value)));
    }
    switch (V_VT(&value)) {
        case VT_EMPTY:
            return {};
        case VT_NULL:
            return Null();
        case VT_ERROR:
            if (V_ERROR(&value) == DISP_E_PARAMNOTFOUND) return Missing();
            mismatch("an error value");
        case VT_BOOL:
            return V_BOOL(&value) != VARIANT_FALSE;
        case VT_I1:
            return static_cast<std::int16_t>(static_cast<signed char>(V_I1(&value)));
        case VT_UI1:
            return static_cast<std::int16_t>(V_UI1(&value));
        case VT_I2:
            return static_cast<std::int16_t>(V_I2(&value));
        case VT_UI2:
            return static_cast<std::int32_t>(V_UI2(&value));
        case VT_I4:
        case VT_INT:
            return static_cast<std::int32_t>(V_I4(&value));
        case VT_UI4:
        case VT_UINT:
            return static_cast<std::int64_t>(V_UI4(&value));
        case VT_I8:
            return static_cast<std::int64_t>(V_I8(&value));
        case VT_UI8:
            if (V_UI8(&value) <= static_cast<ULONGLONG>(std::numeric_limits<std::int64_t>::max()))
                return static_cast<std::int64_t>(V_UI8(&value));
            return static_cast<double>(V_UI8(&value));
        case VT_R4:
            return V_R4(&value);
        case VT_R8:
            return V_R8(&value);
        case VT_CY:
            if (V_CY(&value).int64 % 10000 == 0) return static_cast<std::int64_t>(V_CY(&value).int64 / 10000);
            return static_cast<double>(V_CY(&value).int64) / 10000;
        case VT_DECIMAL:
            return fromDecimal(V_DECIMAL(&value));
        case VT_DATE:
            return Date{V_DATE(&value)};
        case VT_BSTR:
            return fromBstr(V_BSTR(&value));
        case VT_DISPATCH:
            return fromDispatch(V_DISPATCH(&value));
        case VT_UNKNOWN:
            return fromUnknown(V_UNKNOWN(&value));
        default:
            mismatch("a kind of value that no member may return");
    }
}

}  // namespace

std::size_t sizeOf(VARTYPE type) noexcept {
    if (type & VT_ARRAY) return sizeof(SAFEARRAY*);
    switch (type) {
        case VT_I1:
        case VT_UI1:
            return 1;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL:
            return 2;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_ERROR:
        case VT_R4:
            return 4;
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_CY:
        case VT_DATE:
            return 8;
        case VT_DECIMAL:
            return sizeof(DECIMAL);
        case VT_BSTR:
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return sizeof(void*);
        case VT_VARIANT:
            return sizeof(VARIANT);
        default:
            return 0;
    }
}

Variant fromCom(const VARIANT& value) {
    const VARIANT& link = lastLink(value);
    if (!V_ISBYREF(&link)) return fromValue(link);
    if (V_VT(&link) == (VT_VARIANT | VT_BYREF)) return fromValue(*V_VARIANTREF(&link));
    if (V_ISARRAY(&link)) {
        const auto type = static_cast<VARTYPE>(V_VT(&link) & ~(VT_ARRAY | VT_BYREF));
        return ObjectPtr(std::make_shared<ArrayObject>(type, *V_ARRAYREF(&link)));
    }
    OwnedVariant copy;
    check(VariantCopyInd(copy.get(), const_cast<VARIANT*>(&link)));
    return fromValue(*copy);
}

void toCom(const Variant& value, VARIANT& out) {
    VariantInit(&out);
    const auto set = [&out]<class T>(const T& held) {
        if constexpr (std::is_same_v<T, Null>) {
            V_VT(&out) = VT_NULL;
        } else if constexpr (std::is_same_v<T, Missing>) {
            V_VT(&out) = VT_ERROR;
            V_ERROR(&out) = DISP_E_PARAMNOTFOUND;
        } else if constexpr (std::is_same_v<T, bool>) {
            V_VT(&out) = VT_BOOL;
            V_BOOL(&out) = held ? VARIANT_TRUE : VARIANT_FALSE;
        } else if constexpr (std::is_same_v<T, std::int16_t>) {
            V_VT(&out) = VT_I2;
            V_I2(&out) = held;
        } else if constexpr (std::is_same_v<T, std::int32_t>) {
            V_VT(&out) = VT_I4;
            V_I4(&out) = held;
        } else if constexpr (std::is_same_v<T, std::int64_t>) {
            if (held == static_cast<std::int32_t>(held)) {
                V_VT(&out) = VT_I4;
                V_I4(&out) = static_cast<LONG>(held);
            } else {
                V_VT(&out) = VT_I8;
                V_I8(&out) = held;
            }
        } else if constexpr (std::is_same_v<T, float>) {
            V_VT(&out) = VT_R4;
            V_R4(&out) = held;
        } else if constexpr (std::is_same_v<T, double>) {
            V_VT(&out) = VT_R8;
            V_R8(&out) = held;
        } else if constexpr (std::is_same_v<T, Date>) {
            V_VT(&out) = VT_DATE;
            V_DATE(&out) = held.days;
        } else if constexpr (std::is_same_v<T, std::string>) {
            V_BSTR(&out) = newBstr(held);
            V_VT(&out) = VT_BSTR;
        } else if constexpr (std::is_same_v<T, ObjectPtr>) {
            if (const auto* array = dynamic_cast<const ArrayObject*>(held.get())) return array->copyTo(out);
            V_DISPATCH(&out) = newDispatch(held);
            V_VT(&out) = VT_DISPATCH;
        }
    };
    std::visit(set, value.held());
}

Assignment::Assignment(const VARIANT& reference, const Variant& value) : reference_(lastLink(reference)) {
    if (!V_ISBYREF(&reference_)) mismatch("a value in the place of a variable");
    toCom(value, *value_);
    const auto type = static_cast<VARTYPE>(V_VT(&reference_) & ~VT_BYREF);
    if (type == VT_VARIANT) return;
    if (sizeOf(type) == 0) mismatch("a variable that cannot be written");
    check(VariantChangeType(value_.get(), value_.get(), 0, type));
}

void Assignment::carryOut() noexcept {
    const auto type = static_cast<VARTYPE>(V_VT(&reference_) & ~VT_BYREF);
    if (type == VT_VARIANT) {
        std::swap(*V_VARIANTREF(&reference_), *value_);
    } else if (type == VT_DECIMAL) {
        *V_DECIMALREF(&reference_) = V_DECIMAL(value_.get());
        V_DECIMALREF(&reference_)->wReserved = 0;  // in a variant, this field is the type
    } else {
        // All other values lie at the same offset in a variant. value_ takes the old value and releases it.
        auto* const variable = static_cast<std::byte*>(V_BYREF(&reference_));
        std::swap_ranges(variable, variable + sizeOf(type),
                         reinterpret_cast<std::byte*>(&V_NONE(value_.get())));
    }
}

void assignReference(const VARIANT& reference, const Variant& value) {
    Assignment(reference, value).carryOut();
}

IDispatch* newDispatch(const ObjectPtr& object) {
    if (!object) return nullptr;
    if (const auto outside = std::dynamic_pointer_cast<DispatchObject>(object)) {
        outside->dispatch()->AddRef();
        return outside->dispatch();
    }
    return new ObjectDispatch(object);
}

ObjectPtr fromDispatch(IDispatch* dispatch) {
    if (!dispatch) return nullptr;
    if (ObjectPtr own = ObjectDispatch::objectOf(dispatch)) return own;
    return std::make_shared<DispatchObject>(dispatch);
}

}  // namespace tsln::com
