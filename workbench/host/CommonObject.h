#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Common": uniqueness checks, names of records by identifier, GUIDs, and loaders that fill the module's combo boxes
/// through their late-bound members.
class CommonObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    Variant RecordExists(Arguments a);
    Variant LoadComboFromQuery(Arguments a);
    Variant LoadSalesReps(Arguments a);
    Variant ParseCompleteName(Arguments a);
    Variant GetCustomerBalance(Arguments a);
    Variant LoadDiscountGroups(Arguments a);
    /// Returns the first value of the statement for the identifier; an empty text when there is none.
    Variant name(std::string_view statement, Arguments a);
    /// Fills the combo box from the statement's columns Entry and ID.
    Variant load(Object& combo, std::string_view statement);
};

}  // namespace tsln::workbench
