#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// The shared-code object that the host hands to the module: messages, the event log, small helpers, and the
/// sub-objects "Database", "Common", "Security", "Options", "Messages", "Activity" and "Profiles".
///
/// Members that the host does not offer raise the unknown-member error.
class SharedCode : public HostObject {
  public:
    explicit SharedCode(std::shared_ptr<HostContext> context);
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    Variant ShowMessageStyle1WithMemory(Arguments a);
    Variant showMessage(MessageStyle style, Arguments a);
    Variant showError(Arguments a, bool log);
    Variant RecordEvent(Arguments a);
    Variant PSDFile();
    Variant OperatingMode();
    MessageAnswer show(const Message& message);

    ObjectPtr database_, common_, security_, options_, messages_, activity_, profiles_;
};

/// What the host puts in the place of "{standard explanation}".
inline constexpr std::string_view kStandardExplanation =
    "This typically happens if the database is in use by another user or program. Try saving again. If the "
    "problem "
    "persists, close the program, restart and try again.";

}  // namespace tsln::workbench
