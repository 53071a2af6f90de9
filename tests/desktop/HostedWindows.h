#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "desktop/WxDesktop.h"
#include "doubles/RecordingHost.h"
#include "module/Module.h"

namespace tsln::desktop::test {

/// The module between real windows and a recording host.
class HostedWindows : public testing::Test {
  protected:
    HostedWindows() {
        plugInModule(library);
        library.Initialize(host->sharedCode());
    }

    const std::shared_ptr<tsln::test::RecordingHost> host = tsln::test::RecordingHost::make();
    WxDesktop desktop{[this](std::string_view programId) { return host->component(programId); }, ""};
    Library library{desktop};
};

}  // namespace tsln::desktop::test
