#include "tests/com/hostile/RandomVariant.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "com/edge/Wide.h"

namespace tsln::test {
namespace {

/// An object that offers no interface but IUnknown.
class Nothing : public com::ComObject<IUnknown> {};

constexpr wchar_t brokenCharacters[] = L"zero\0inside\xD800 \xDC00\xFFFF";
constexpr UINT hugeLength = 100'000;  // characters
constexpr double doubles[] = {
    0,      -1,      0.5, 44.6, 1e15, -1e300, std::numeric_limits<double>::infinity(),
    NAN,    2958466,  // the first day after the platform's last date
    -657435};
constexpr LONGLONG numbers[] = {0,     1,         2,          3,          -1,         7,
                                32768, -32769,    2147483647, 2147483648, 4294967295, -2147483649LL,
                                70000, 123456789, LLONG_MAX,  LLONG_MIN};

}  // namespace

BSTR RandomVariant::text() {
    constexpr const char* records[] = {
        "<Records><Record><ID>1</ID><Name>&lt;</Record>",
        "<Records><Record><ID>zwei</ID><Terms>Net</Terms><Name>A</Name></Record></Records>"};
    switch (chance_.below(9)) {
        case 0:
            return nullptr;
        case 1:
            if (const BSTR huge = SysAllocStringLen(nullptr, hugeLength)) {
                std::fill_n(huge, hugeLength, L'x');
                return huge;
            }
            return nullptr;
        case 2:
            return SysAllocStringLen(brokenCharacters, static_cast<UINT>(std::size(brokenCharacters)));
        case 3:
            return SysAllocString(com::toWide(chance_.of(records)).c_str());
        default:
            return SysAllocString(com::toWide(chance_.text()).c_str());
    }
}

void RandomVariant::array(VARIANT& out, int depth) {
    const VARTYPE type = chance_.of<VARTYPE>({VT_VARIANT, VT_I4, VT_BSTR, VT_UI1, VT_DISPATCH});
    const UINT dimensions = chance_.oneIn(4) ? 2 : 1;
    SAFEARRAYBOUND bounds[] = {{static_cast<ULONG>(chance_.below(4)), chance_.of<LONG>({0, 1, -5})},
                               {static_cast<ULONG>(chance_.below(3)), 0}};
    SAFEARRAY* const made = SafeArrayCreate(type, dimensions, bounds);
    V_VT(&out) = static_cast<VARTYPE>(VT_ARRAY | type);
    V_ARRAY(&out) = made;
    if (!made || dimensions > 1 || chance_.oneIn(8)) return;
    for (ULONG i = 0; i < bounds[0].cElements; ++i) {
        LONG at = bounds[0].lLbound + static_cast<LONG>(i);
        if (type == VT_VARIANT) {
            com::OwnedVariant element;
            value(*element, depth + 1);
            SafeArrayPutElement(made, &at, element.get());
        } else if (type == VT_I4) {
            LONG number = static_cast<LONG>(chance_.below(6));
            SafeArrayPutElement(made, &at, &number);
        }
    }
}

void RandomVariant::value(VARIANT& out, int depth) {
    VariantInit(&out);
    const LONGLONG number = numbers[chance_.below(std::size(numbers))];
    const double real = doubles[chance_.below(std::size(doubles))];
    constexpr VARTYPE types[] = {
        VT_EMPTY, VT_NULL, VT_I1,    VT_UI1,     VT_I2,      VT_UI2,      VT_I4,       VT_UI4,   VT_I8,
        VT_UI8,   VT_INT,  VT_UINT,  VT_R4,      VT_R8,      VT_CY,       VT_DATE,     VT_BSTR,  VT_BSTR,
        VT_BSTR,  VT_BOOL, VT_ERROR, VT_DECIMAL, VT_UNKNOWN, VT_DISPATCH, VT_DISPATCH, VT_ARRAY, VT_ILLEGAL};
    const VARTYPE type = types[chance_.below(std::size(types))];
    V_VT(&out) = type;
    switch (type) {
        case VT_R4:
            V_R4(&out) = static_cast<float>(real);
            break;
        case VT_R8:
        case VT_DATE:
            V_R8(&out) = real;
            break;
        case VT_BSTR:
            V_BSTR(&out) = text();
            break;
        case VT_BOOL:
            V_BOOL(&out) = chance_.of<VARIANT_BOOL>({VARIANT_TRUE, VARIANT_FALSE, 1, 7});
            break;
        case VT_ERROR:
            V_ERROR(&out) = chance_.of<SCODE>({DISP_E_PARAMNOTFOUND, E_FAIL, S_OK});
            break;
        case VT_DECIMAL:
            V_DECIMAL(&out).Lo64 = static_cast<ULONGLONG>(number);
            V_DECIMAL(&out).Hi32 = chance_.oneIn(3) ? 0xffffffff : 0;
            V_DECIMAL(&out).scale = static_cast<BYTE>(chance_.below(29));
            V_DECIMAL(&out).sign = chance_.oneIn(2) ? DECIMAL_NEG : 0;
            V_VT(&out) = VT_DECIMAL;  // shares its bytes with the number
            break;
        case VT_UNKNOWN:
            V_UNKNOWN(&out) = chance_.oneIn(2) ? nullptr : static_cast<IUnknown*>(new Nothing);
            break;
        case VT_DISPATCH:
            V_DISPATCH(&out) = chance_.oneIn(3) ? nullptr : object_().Detach();
            break;
        case VT_ARRAY:
            V_VT(&out) = VT_EMPTY;
            if (depth < 3) array(out, depth);
            break;
        case VT_EMPTY:
        case VT_NULL:
            break;
        default:
            V_I8(&out) = number;
    }
    if (type == VT_ILLEGAL)
        V_VT(&out) = chance_.of<VARTYPE>({VT_VOID, VT_HRESULT, VT_PTR, 0x0f0f & ~VT_BYREF});
}

VARIANT RandomVariant::reference() {
    com::OwnedVariant& target = values_.emplace_back();
    value(*target);
    VARIANT link;
    VariantInit(&link);
    const VARTYPE type = V_VT(target.get());
    if (chance_.oneIn(2) && type != VT_EMPTY && type != VT_NULL && type != VT_DECIMAL) {
        V_VT(&link) = static_cast<VARTYPE>(VT_BYREF | type);
        V_BYREF(&link) = chance_.oneIn(10) ? nullptr : &V_NONE(target.get());
    } else {
        V_VT(&link) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&link) = chance_.oneIn(10) ? nullptr : target.get();
    }
    for (std::size_t links = chance_.oneIn(3) ? chance_.below(20) : 0; links > 0; --links) {
        links_.push_back(link);
        V_VT(&link) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&link) = &links_.back();
    }
    if (chance_.oneIn(15)) {
        VARIANT& circle = links_.emplace_back();
        VariantInit(&circle);
        V_VT(&circle) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&circle) = &circle;
        link = circle;
    }
    return link;
}

VARIANT RandomVariant::argument() {
    if (chance_.oneIn(2)) return reference();
    com::OwnedVariant& made = values_.emplace_back();
    value(*made);
    return *made;  // a plain copy: the maker stays the owner
}

}  // namespace tsln::test
