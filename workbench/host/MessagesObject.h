#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Messages": notices by which the module informs the host's other windows of changes. PostMessage takes a code and
/// optionally the record; the session stores the notices.
class MessagesObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;
};

}  // namespace tsln::workbench
