#pragma once

#include "automation/Object.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// A platform variant of our own, cleared with its owner.
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

/// The bytes of a variable or an array's element of that type; 0 for types that are neither read nor written.
std::size_t sizeOf(VARTYPE type) noexcept;

/// The platform's value as ours; references and chains of them are followed. Currency and decimals without a
/// fraction come as whole numbers, others as doubles. An array of one dimension comes as an ArrayObject. Raises
/// HostError(code::typeMismatch) for error values, arrays of several dimensions and objects that cannot be called
/// by name.
Variant fromCom(const VARIANT& value);

/// Our value as the platform's, owned by the receiver; what `out` held is not cleared. A 64-bit number that fits
/// into 32 bits goes out with 32. An ArrayObject goes out as the array that it was made from.
void toCom(const Variant& value, VARIANT& out);

/// A value for a variable of the outside, converted to the variable's type.
class Assignment {
  public:
    /// `reference` is a VT_BYREF value or a chain of VT_BYREF | VT_VARIANT that ends in one; the variable is the
    /// last one of the chain and must outlive this. Raises HostError where the value does not convert.
    Assignment(const VARIANT& reference, const Variant& value);
    /// Writes the variable, once; what it held is released with this.
    void carryOut() noexcept;

  private:
    VARIANT reference_;  // not owned
    OwnedVariant value_;
};

/// Writes a variable at once: Assignment and carryOut().
void assignReference(const VARIANT& reference, const Variant& value);

/// The object as the platform reaches it; null for null. What came from the outside goes back as it came.
/// The reference is the caller's.
IDispatch* newDispatch(const ObjectPtr& object);

/// An object of the platform as ours; null for null. What is ours comes back as it was.
ObjectPtr fromDispatch(IDispatch* dispatch);

}  // namespace tsln::com
