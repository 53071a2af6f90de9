#include "workbench/host/SqlEngineObject.h"

namespace tsln::workbench {

Variant SqlEngineObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = SqlEngineObject;
    static constexpr Member<Self> members[] = {
        {"ExecuteScaler",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             if (self.terminated_)
                 throw HostError(code::objectNotSet, "SQL engine", "The SQL engine was terminated.");
             return self.context().company.scalar(a[0].toText());
         }},
        {"PreTerminate",
         [](Self& self, Arguments) {
             self.terminated_ = true;
             return Variant();
         }},
    };
    return answer(*this, "SQL engine", members, member, access, arguments);
}

}  // namespace tsln::workbench
