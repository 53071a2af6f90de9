#include "workbench/host/NumericFieldChecker.h"

#include <algorithm>
#include <cmath>

#include "automation/NumericText.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

Variant check(Arguments a, double (*shape)(double)) {
    a.require(4, 4);
    Object& field = a[0].object();
    const double least = a[1].toDouble(), most = a[2].toDouble();
    if (least > most) throw HostError(code::badIndex, "Checker", "The minimum is greater than the maximum.");
    const std::string text = textOf(field.get("Text"));
    const double number = shape(parseNumber(text).value_or(a[3].toDouble()));
    const std::string corrected = numberText(std::clamp(number, least, most));
    if (corrected != text) field.put("Text", corrected);
    return {};
}

}  // namespace

Variant NumericFieldChecker::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = NumericFieldChecker;
    static constexpr Member<Self> members[] = {
        {"CheckInteger",
         [](Self&, Arguments a) { return check(a, [](double number) { return std::nearbyint(number); }); }},
        {"CheckDecimal", [](Self&, Arguments a) { return check(a, [](double number) { return number; }); }},
    };
    return invokeMember<Self>(*this, "Checker", members, member, access, arguments);
}

}  // namespace tsln::workbench
