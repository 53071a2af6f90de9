#pragma once

#include <memory>
#include <string_view>

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// Creates a component of the host by its program identifier, without letter case: the numeric-field checker, the
/// expression editor, the import/export engine, the file manager or the reader of product files. For another identifier
/// raises HostError(code::classNotRegistered).
ObjectPtr createComponent(std::string_view programId, const std::shared_ptr<HostContext>& context);

}  // namespace tsln::workbench
