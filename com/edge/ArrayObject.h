#pragma once

#include "automation/Object.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// An array of the platform as a read-only collection with the members Count and Item. Items are counted from
/// 1, whatever the array's own lower bound is. An array has no text form and is no number.
class ArrayObject : public Object {
  public:
    /// Copies `array`. Null is an array without elements. Raises HostError(code::typeMismatch) for an array
    /// of several dimensions and for element types that fromCom() does not read.
    ArrayObject(VARTYPE elementType, SAFEARRAY* array);
    ~ArrayObject() override;
    ArrayObject(const ArrayObject&) = delete;
    ArrayObject& operator=(const ArrayObject&) = delete;

    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

    /// Makes `out` an array of the original element type and bounds, owned by the receiver; what `out` held
    /// is not cleared.
    void copyTo(VARIANT& out) const;

  private:
    Variant item(std::int32_t number) const;

    VARTYPE elementType_;
    SAFEARRAY* array_ = nullptr;
    LONG first_ = 0;  // lower bound
    std::int32_t count_ = 0;
};

}  // namespace tsln::com
