#pragma once

#include <memory>
#include <string>
#include <vector>

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// The company's connection, with the members of the platform's database objects: "Execute" (statement; optionally a
/// variable for the number of changed rows, and options, which are ignored) returns a recordset; also "BeginTrans",
/// "CommitTrans", "RollbackTrans", "State" (1: open), "DefaultDatabase" (the company's file), "ConnectionTimeout" and
/// "CommandTimeout" (in seconds), and "Errors".
///
/// "Errors" has "Count", "Item" (index from 0) and "Clear"; an error has "Number", "Description", "Source" and
/// "NativeError". A failure raises HostError and stays in "Errors" until the next failure or "Clear". "Database" of
/// the shared-code object has its own last error.
class ConnectionObject : public HostObject {
  public:
    explicit ConnectionObject(std::shared_ptr<HostContext> context);
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

    class Errors;

  private:
    Variant Execute(Arguments a);
    /// Runs the work. Raises its SqlError as a HostError and adds it to "Errors".
    template <class Work>
    Variant keepingErrors(const Work& work);

    std::shared_ptr<Errors> errors_;
};

}  // namespace tsln::workbench
