#pragma once

#include <string>
#include <vector>

#include "workbench/host/HostUi.h"

namespace tsln::test {

/// Records the host's messages and answers questions with Yes.
class AgreeingUi : public workbench::HostUi {
  public:
    workbench::Reply showMessage(const workbench::Message& message) override {
        told.push_back(message.text);
        return {.answer = message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok};
    }
    std::vector<std::string> told;
};

}  // namespace tsln::test
