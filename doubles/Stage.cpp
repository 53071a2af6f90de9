#include "doubles/Stage.h"

#include <gtest/gtest.h>

#include "module/Module.h"

namespace tsln::test {

Stage::Stage() {
    plugInModule(*library);
    desktop.components = [this](std::string_view programId) { return host->component(programId); };
    library->Initialize(host->sharedCode());
}

void sweepFaults(const std::function<void(Stage&)>& scenario, const std::function<void(Stage&)>& check) {
    int calls = 0;
    {
        Stage stage;
        scenario(stage);
        check(stage);
        calls = stage.host->callCount();
    }
    ASSERT_GT(calls, 0) << "the scenario asks nothing of the host";
    using Fault = RecordingHost::Fault;
    for (const Fault fault : {Fault::Raise, Fault::False, Fault::Nothing, Fault::WrongType, Fault::Empty}) {
        for (int call = 0; call < calls; ++call) {
            SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " at call " +
                         std::to_string(call));
            Stage stage;
            stage.host->failCall(call, fault);
            EXPECT_NO_THROW(scenario(stage));
            check(stage);
            EXPECT_TRUE(stage.library->screens().empty()) << "a screen was left in its slot";
            stage.library->PreTerminate();
            EXPECT_EQ(stage.host->liveObjects(), 0) << "the module keeps an object of the host";
        }
    }
}

}  // namespace tsln::test
