#pragma once

#include <string>
#include <vector>

#include "workbench/host/EngineObject.h"

namespace tsln::workbench {

/// The component "tslnfe5.Engine": lets the user edit an expression in a window of its own.
///
/// "Initialize" takes the shared-code object, "PreTerminate" lets go of it. "ShowEditExpression" (expression)
/// and "ShowEditExpression2" (expression, the window's title) answer with the edited text, or with what they
/// were given when the user cancels.
class ExpressionEngine : public EngineObject {
  public:
    using EngineObject::EngineObject;

  private:
    Variant invokeOwn(std::string_view member, Access access, Arguments arguments) override;
    Variant edit(Arguments a);
    std::vector<std::string> names() const;
};

}  // namespace tsln::workbench
