#pragma once

#include "workbench/host/HostUi.h"

namespace tsln::workbench {

/// Shows the host's messages and its expression editor in windows. Of a message: the main text large, the
/// advice below it, bold where the markup says so, the icon of the style, a failure's explanation and the
/// database's words set apart.
class MessageWindows : public HostUi {
  public:
    Reply showMessage(const Message& message) override;
    std::optional<std::string> editExpression(const ExpressionEdit& edit) override;
};

}  // namespace tsln::workbench
