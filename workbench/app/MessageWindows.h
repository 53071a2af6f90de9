#pragma once

#include "workbench/host/HostUi.h"

namespace tsln::workbench {

/// Shows the host's messages, its expression editor, its search for records and its messages to be sent in windows. A
/// message shows the main text large, the advice
/// below it, bold markup, the icon of its style, and, set apart, a failure's explanation and the database's error
/// text.
class MessageWindows : public HostUi {
  public:
    Reply showMessage(const Message& message) override;
    std::optional<std::string> editExpression(const ExpressionEdit& edit) override;
    std::optional<std::int32_t> searchRecord(const RecordSearch& search) override;
    std::optional<Email> editEmail(const Email& email) override;
    std::optional<std::string> chooseFolder(const std::string& title) override;
};

}  // namespace tsln::workbench
