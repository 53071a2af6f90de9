#pragma once

#include <memory>
#include <string_view>

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// Creates one of the host's components by its program identifier, which compares without letter case: the
/// numeric-field checker, the expression editor and the import/export engine. Others raise
/// HostError(code::classNotRegistered).
ObjectPtr createComponent(std::string_view programId, const std::shared_ptr<HostContext>& context);

}  // namespace tsln::workbench
