#include "workbench/host/ActivityObject.h"

#include "shared/modSharedSQL.h"
#include "workbench/sql/SqlText.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {

Variant ActivityObject::record(std::string_view statement, Arguments a) {
    a.require(2, 2);
    // The text is filled in last, so that tags in it are not replaced.
    context().company.execute(modSharedSQL::fillTags(
        statement,
        {{"<id>", a[0].toLong()}, {"<by>", context().user.ID}, {"<text>", literal(textOf(a[1]))}}));
    return {};
}

Variant ActivityObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = ActivityObject;
    static constexpr Member<Self> members[] = {
        {"RecordCustomerActivity",
         [](Self& self, Arguments a) {
             return self.record(
                 "INSERT INTO CustomerActivity (CustomerID,EmployeeID,Activity) VALUES(<id>, <by>, <text>)",
                 a);
         }},
        {"RecordVendorActivity",
         [](Self& self, Arguments a) {
             return self.record(
                 "INSERT INTO VendorActivity (VendorID,EmployeeID,Activity) VALUES(<id>, <by>, <text>)", a);
         }},
        {"RecordEmployeeActivity",
         [](Self& self, Arguments a) {
             return self.record(
                 "INSERT INTO EmployeeActivity (EmployeeID,ByEmployeeID,Activity) VALUES(<id>, <by>, <text>)",
                 a);
         }},
    };
    return answer(*this, "Activity", members, member, access, arguments);
}

}  // namespace tsln::workbench
