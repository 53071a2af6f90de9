#pragma once

#include <string>
#include <vector>

#include "workbench/host/EngineObject.h"

namespace tsln::workbench {

/// The component "tslnfe5.Engine": lets the user edit an expression in its own window.
///
/// "Initialize" takes the shared-code object, "PreTerminate" releases it. "ShowEditExpression" (expression) and
/// "ShowEditExpression2" (expression, window title) return the edited text, or the given one when the user cancels.
class ExpressionEngine : public EngineObject {
  public:
    using EngineObject::EngineObject;

  private:
    Variant invokeOwn(std::string_view member, Access access, Arguments arguments) override;
    Variant edit(Arguments a);
    std::vector<std::string> names() const;
};

}  // namespace tsln::workbench
