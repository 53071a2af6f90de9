#pragma once

#include <memory>
#include <string_view>

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// Creates a component of the host by its program identifier, without letter case: the numeric-field checker, the
/// expression editor, the import/export engine, the file manager, the reader of product files, and the manager and the SQL
/// engine of companies of version 4.2. For another identifier raises HostError(code::classNotRegistered).
ObjectPtr createComponent(std::string_view programId, const std::shared_ptr<HostContext>& context);

}  // namespace tsln::workbench
