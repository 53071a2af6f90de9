#pragma once

#include <functional>
#include <memory>

#include "bridge/Library.h"
#include "lists/Lists.h"
#include "doubles/RecordingHost.h"
#include "doubles/ScriptedDesktop.h"

namespace tsln::test {

/// A library with every screen plugged in, between a scripted desktop and a recording host.
struct Stage {
    ScriptedDesktop desktop;
    std::shared_ptr<RecordingHost> host = RecordingHost::make();
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);

    Stage();
    /// True when the user was told something, by the module or by the host.
    bool told() const { return !desktop.boxes.empty() || host->told(); }
};

/// Runs a scenario once to count its calls to the host, then again for each call and each kind of fault with
/// just that call failing, and `check`s after each run. The scenario gets a new stage each time; nothing may
/// be thrown out of it. A run with a fault sends no writing statement that the clean run does not send, values apart.
/// After every run no screen may be left in its slot and no reference to the host's objects kept.
void sweepFaults(const std::function<void(Stage&)>& scenario, const std::function<void(Stage&)>& check);

}  // namespace tsln::test
