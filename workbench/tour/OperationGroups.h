#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/Operations.h"

namespace tsln::workbench {

/// Operations of the library that belong together, as the workbench lists them.
struct OperationGroup {
    std::string_view caption;
    std::vector<Operation> operations;
};

/// Every operation, once, in groups.
std::span<const OperationGroup> operationGroups();

/// The operations whose name or group caption contains all the words of the search text, without letter case.
/// Groups without a match are left out; an empty search text matches everything.
std::vector<OperationGroup> findOperations(std::string_view search);

/// How a developer writes the call: "ShowMoveReferences(Integer listCode, Long ID) As Boolean".
std::string signature(const OperationInfo& row);
std::string_view typeCaption(ValueType type);

}  // namespace tsln::workbench
