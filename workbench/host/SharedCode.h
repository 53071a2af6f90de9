#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// The shared-code object that the host passes to the module: messages, the event log, small helpers, the sub-objects
/// "Database", "Common", "Security", "Options", "Messages", "Activity" and "Profiles", and the company's connection.
///
/// A member that the host does not have raises the unknown-member error.
class SharedCode : public HostObject {
  public:
    explicit SharedCode(const std::shared_ptr<HostContext>& context);
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    Variant RecordEvent(Arguments a);
    Variant PSDFile();
    Variant OperatingMode();
    Variant ParseAddress(Arguments a);
    Variant CombineAddress(Arguments a);
    Variant ShowSelectBySearch(Arguments a);

    ObjectPtr database_, common_, security_, options_, messages_, activity_, profiles_, connection_;
};

}  // namespace tsln::workbench
