#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Messages": notices by which the module tells the host's other windows what it changed. PostMessage takes
/// a code and, where there is one, what it is about; the session keeps them.
class MessagesObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;
};

}  // namespace tsln::workbench
