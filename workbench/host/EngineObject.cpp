#include "workbench/host/EngineObject.h"

#include <algorithm>

namespace tsln::workbench {

Object& EngineObject::sharedCode() const {
    if (!sharedCode_) throw HostError(code::objectNotSet, "Engine", "The engine has not been initialized.");
    return *sharedCode_;
}

Variant EngineObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = EngineObject;
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
             self.terminated();
             return Variant();
         }},
    };
    const bool ours =
        std::ranges::any_of(members, [&](const Member<Self>& row) { return sameName(row.name, member); });
    return ours ? answer(*this, "Engine", members, member, access, arguments)
                : invokeOwn(member, access, arguments);
}

}  // namespace tsln::workbench
