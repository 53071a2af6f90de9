#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// Replaces every merge field "<<name>>" by the value that `valueOf` finds for the name. A field without a value, a "<<"
/// that nothing closes and a ">>" that nothing opens stay as they are.
std::string mergeFields(std::string_view text,
                        const std::function<std::optional<std::string>(std::string_view name)>& valueOf);

/// Arguments: the template's type (1 customer, 2 vendor, 3 employee, 4 quote, sale or order), the record's identifier,
/// subject and body. Merges the record's fields, lets the user edit and send the message in a window, and stores a sent
/// one in SentMessages. The workbench delivers no mail.
Variant sendEmailWithTemplate(HostContext& context, Arguments a);

}  // namespace tsln::workbench
