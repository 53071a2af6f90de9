#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/Operations.h"

namespace tsln::workbench {

/// An operation and what it does, in a few words.
struct ListedOperation {
    Operation operation;
    std::string_view caption;
};

/// A group of related operations of the library, as the workbench lists them.
struct OperationGroup {
    std::string_view caption;
    std::vector<ListedOperation> operations;
};

/// Returns all operations in groups, each once.
std::span<const OperationGroup> operationGroups();

/// Returns the operations whose name, caption and group caption contain all words of the search text, without letter case.
/// Groups without a match are left out; an empty search text matches all operations.
std::vector<OperationGroup> findOperations(std::string_view search);

/// Returns the declaration of an operation: "ShowMoveReferences(listCode As Integer, ID As Long) As Boolean".
std::string signature(const OperationInfo& row);
std::string_view typeCaption(ValueType type);

}  // namespace tsln::workbench
