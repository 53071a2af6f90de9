#include "workbench/host/MessagesObject.h"

#include "workbench/host/TextOf.h"

namespace tsln::workbench {

Variant MessagesObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = MessagesObject;
    static constexpr std::size_t mostNotices = 1000;
    static constexpr Member<Self> members[] = {
        {"PostMessage",
         [](Self& self, Arguments a) {
             a.require(1, 2);
             auto& notices = self.context().notices;
             if (notices.size() == mostNotices) notices.erase(notices.begin());
             notices.push_back({a[0].toLong(), textOf(a[1])});
             return Variant();
         }},
    };
    return answer(*this, "Messages", members, member, access, arguments);
}

}  // namespace tsln::workbench
