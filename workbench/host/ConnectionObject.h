#pragma once

#include <memory>
#include <string>
#include <vector>

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// The company's database connection as the platform's database objects are: "Execute" (statement; optionally
/// a variable for the number of rows changed, and options, which are not heeded) gives a recordset,
/// "BeginTrans", "CommitTrans", "RollbackTrans", "State" (1: open) and "Errors".
///
/// "Errors" has "Count", "Item" (index from 0) and "Clear"; an error has "Number", "Description", "Source"
/// and "NativeError". What fails is raised as a HostError, and stands in "Errors" until the next failure or
/// "Clear". "Database" of the shared-code object has its own last error.
class ConnectionObject : public HostObject {
  public:
    explicit ConnectionObject(std::shared_ptr<HostContext> context);
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

    class Errors;

  private:
    Variant Execute(Arguments a);
    /// Raises what the work's SqlError says, with it in "Errors".
    template <class Work>
    Variant keepingErrors(const Work& work);

    std::shared_ptr<Errors> errors_;
};

}  // namespace tsln::workbench
