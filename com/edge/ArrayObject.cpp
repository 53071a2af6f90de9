#include "com/edge/ArrayObject.h"

#include <limits>

#include "com/edge/Conversion.h"
#include "com/edge/Failure.h"

namespace tsln::com {
namespace {

void check(HRESULT result) {
    if (FAILED(result)) throw HostError(result, "Automation", textOf(result));
}

}  // namespace

ArrayObject::ArrayObject(VARTYPE elementType, SAFEARRAY* array) : elementType_(elementType) {
    if (!array) return;
    const auto mismatch = [](const char* what) {
        throw HostError(code::typeMismatch, "Automation", std::string("Type mismatch: ") + what + ".");
    };
    if (SafeArrayGetDim(array) != 1) mismatch("an array of several dimensions");
    // The size check keeps an array of a wrongly declared type from being read beyond its end.
    if ((elementType & VT_ARRAY) || sizeOf(elementType) == 0 ||
        sizeOf(elementType) != SafeArrayGetElemsize(array))
        mismatch("an array of elements that cannot be read");
    LONG last = 0;
    check(SafeArrayGetLBound(array, 1, &first_));
    check(SafeArrayGetUBound(array, 1, &last));
    const std::int64_t count = std::int64_t{last} - first_ + 1;
    if (count > std::numeric_limits<std::int32_t>::max()) mismatch("an array of too many elements");
    count_ = static_cast<std::int32_t>(count);
    check(SafeArrayCopy(array, &array_));
}

ArrayObject::~ArrayObject() {
    if (array_) SafeArrayDestroy(array_);
}

Variant ArrayObject::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<ArrayObject> members[] = {
        {"Count", [](ArrayObject& self, Arguments) { return Variant(self.count_); }},
        {"Item",
         [](ArrayObject& self, Arguments a) {
             a.require(1, 1);
             return self.item(a[0].toLong());
         }},
    };
    return invokeMember<ArrayObject>(*this, "Array", members, member, access, arguments);
}

Variant ArrayObject::item(std::int32_t number) const {
    if (number < 1 || number > count_)
        throw HostError(code::badIndex, "Array", "Invalid index: " + std::to_string(number) + ".");
    LONG index = static_cast<LONG>(std::int64_t{first_} + number - 1);
    VARIANT element;
    VariantInit(&element);
    V_VT(&element) = static_cast<VARTYPE>(elementType_ | VT_BYREF);
    check(SafeArrayPtrOfIndex(array_, &index, &V_BYREF(&element)));
    return fromCom(element);
}

void ArrayObject::copyTo(VARIANT& out) const {
    VariantInit(&out);
    SAFEARRAY* copy = nullptr;
    if (array_) check(SafeArrayCopy(array_, &copy));
    V_VT(&out) = static_cast<VARTYPE>(elementType_ | VT_ARRAY);
    V_ARRAY(&out) = copy;
}

}  // namespace tsln::com
