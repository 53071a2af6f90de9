#include "workbench/host/SqlEngineObject.h"

namespace tsln::workbench {

Company& SqlEngineObject::company() const {
    if (terminated_) throw HostError(code::objectNotSet, "SQL engine", "The SQL engine was terminated.");
    return context().company;
}

Variant SqlEngineObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = SqlEngineObject;
    static constexpr Member<Self> members[] = {
        {"ExecuteScaler",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             return self.company().scalar(a[0].toText());
         }},
        {"ExecuteNonQuery",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             try {
                 self.company().execute(a[0].toText());
                 return Variant(true);
             } catch (const SqlError&) {
                 return Variant(false);
             }
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
