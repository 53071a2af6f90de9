#include "workbench/host/ExpressionEngine.h"

#include "shared/modSharedXML.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

/// The names available in every order line.
constexpr std::string_view lineNames[] = {"Customer type", "Height",  "Line price",   "Manufacturer",
                                          "Margin",        "Product", "Product type", "Quantity",
                                          "Total",         "Width"};

}  // namespace

/// The names of every order line, then the options of the company's products.
std::vector<std::string> ExpressionEngine::names() const {
    std::vector<std::string> names(std::begin(lineNames), std::end(lineNames));
    const auto options = modSharedXML::Records::parse(
        context().company.read("SELECT DISTINCT OptionName FROM OptionDetailSettings ORDER BY OptionName"));
    for (const modSharedXML::Record option : options) {
        if (std::string name = readText("OptionName", option); !name.empty())
            names.push_back(std::move(name));
    }
    return names;
}

Variant ExpressionEngine::edit(Arguments a) {
    sharedCode();  // raises when it is missing
    const std::string given = textOf(a[0]);
    const std::string title = a[1].isText() ? a[1].toText() : std::string();
    return context().ui.editExpression({given, title, names()}).value_or(given);
}

Variant ExpressionEngine::invokeOwn(std::string_view member, Access access, Arguments arguments) {
    using Self = ExpressionEngine;
    static constexpr Member<Self> members[] = {
        {"ShowEditExpression",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             return self.edit(a);
         }},
        {"ShowEditExpression2",
         [](Self& self, Arguments a) {
             a.require(1, 2);
             return self.edit(a);
         }},
    };
    return answer(*this, "Engine", members, member, access, arguments);
}

}  // namespace tsln::workbench
