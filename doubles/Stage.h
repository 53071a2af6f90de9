#pragma once

#include <functional>
#include <memory>
#include <string>

#include "bridge/Library.h"
#include "doubles/RecordingHost.h"
#include "doubles/ScriptedDesktop.h"
#include "lists/Lists.h"

namespace tsln::test {

/// A library with all screens, between a scripted desktop and a recording host.
struct Stage {
    ScriptedDesktop desktop;
    std::shared_ptr<RecordingHost> host = RecordingHost::make();
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);

    Stage();
    /// True when the module or the host showed the user a message.
    bool told() const { return !desktop.boxes.empty() || host->told(); }
};

/// Returns a writing statement without the written values: its table, columns and condition.
std::string shapeOf(const std::string& statement);

/// Runs a scenario once to count its calls to the host, then again for each call and each kind of fault with only
/// that call failing, and calls `check` after each run. Each run has a new stage. The test fails when the scenario
/// throws, when a run with a fault sends a writing statement that the clean run does not send (apart from values), or
/// when a screen stays in its slot or an object of the host stays referenced.
void sweepFaults(const std::function<void(Stage&)>& scenario, const std::function<void(Stage&)>& check);

}  // namespace tsln::test
