#include "workbench/host/ExpressionEngine.h"

#include "workbench/host/TextOf.h"

namespace tsln::workbench {

Variant ExpressionEngine::edit(Arguments a) {
    if (!sharedCode_) throw HostError(code::objectNotSet, "Engine", "The engine has not been initialized.");
    const std::string given = textOf(a[0]);
    const std::string title = a[1].isText() ? a[1].toText() : std::string();
    return context().ui.editExpression({given, title}).value_or(given);
}

Variant ExpressionEngine::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = ExpressionEngine;
    static constexpr Member<Self> members[] = {
        {"Initialize",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             self.sharedCode_ = a[0].toObject();
             return Variant();
         }},
        {"PreTerminate",
         [](Self& self, Arguments) {
             self.sharedCode_.reset();
             return Variant();
         }},
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
