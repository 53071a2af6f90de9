#pragma once

#include "automation/Object.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// A platform variant that is cleared when it goes out of scope.
class OwnedVariant {
  public:
    OwnedVariant() noexcept { VariantInit(&value_); }
    ~OwnedVariant() { VariantClear(&value_); }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;

    VARIANT& operator*() noexcept { return value_; }
    VARIANT* operator->() noexcept { return &value_; }
    VARIANT* get() noexcept { return &value_; }

  private:
    VARIANT value_;
};

/// The size in bytes of a variable or array element of that type; 0 for types that are neither read nor
/// written.
std::size_t sizeOf(VARTYPE type) noexcept;

/// Converts a value of the platform to ours, following references and chains of them. Currency and decimals
/// without a fraction become whole numbers, others doubles. An array of one dimension becomes an ArrayObject.
/// Raises HostError(code::typeMismatch) for error values, arrays of several dimensions and objects that
/// cannot be called by name.
Variant fromCom(const VARIANT& value);

/// Converts our value to the platform's. The caller owns the result; the previous value of `out` is not
/// cleared. A 64-bit number that fits into 32 bits becomes VT_I4. An ArrayObject becomes a copy of the array
/// that it was made from.
void toCom(const Variant& value, VARIANT& out);

/// An assignment to a variable of a COM caller, in two steps: the conversion, which may fail, and the
/// writing, which does not.
class Assignment {
  public:
    /// Converts the value to the variable's type. `reference` is a VT_BYREF value, or a chain of VT_BYREF |
    /// VT_VARIANT values that ends in one. The variable at its end must outlive this. Raises HostError if the
    /// value does not convert.
    Assignment(const VARIANT& reference, const Variant& value);
    /// Writes the variable; to be called once. The variable's previous value is released with this object.
    void carryOut() noexcept;

  private:
    VARIANT reference_;  // not owned
    OwnedVariant value_;
};

/// Converts the value and writes it to the variable that `reference` refers to.
void assignReference(const VARIANT& reference, const Variant& value);

/// An IDispatch for the object; null for null. An object that came from COM (DispatchObject) gives its
/// original pointer. The caller owns the reference.
IDispatch* newDispatch(const ObjectPtr& object);

/// Our object for an IDispatch; null for null. A pointer that newDispatch() made gives the original object.
ObjectPtr fromDispatch(IDispatch* dispatch);

}  // namespace tsln::com
