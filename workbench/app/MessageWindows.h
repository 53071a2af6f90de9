#pragma once

#include "workbench/host/HostUi.h"

namespace tsln::workbench {

/// Shows the host's messages in windows: the main text large, the advice below it, bold where the markup says
/// so, the icon of the style, a failure's explanation and the database's words set apart.
class MessageWindows : public HostUi {
  public:
    Reply showMessage(const Message& message) override;
};

}  // namespace tsln::workbench
