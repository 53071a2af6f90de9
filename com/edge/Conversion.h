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

/// The platform's value as ours; references are followed. Currency and decimals come as whole numbers where
/// they are, else as doubles. Raises HostError(code::typeMismatch) for what no member may return: arrays,
/// error values, objects that cannot be called by name.
Variant fromCom(const VARIANT& value);

/// Our value as the platform's, owned by the receiver; what `out` held is not cleared. Whole numbers take the
/// smallest of 16, 32 and 64 bits that they were given as and, beyond 32 bits, only if they need them.
void toCom(const Variant& value, VARIANT& out);

/// Writes the variable that a VT_BYREF value points to, converted to the variable's type; what it held is
/// released. Raises HostError where the value does not convert; the variable is as it was then.
void assignReference(const VARIANT& reference, const Variant& value);

/// The object as the platform reaches it; null for null. What came from the outside goes back as it came.
/// The reference is the caller's.
IDispatch* newDispatch(const ObjectPtr& object);

/// An object of the platform as ours; null for null. What is ours comes back as it was.
ObjectPtr fromDispatch(IDispatch* dispatch);

}  // namespace tsln::com
