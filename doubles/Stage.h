#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bridge/Library.h"
#include "doubles/RecordingHost.h"
#include "doubles/ScriptedDesktop.h"
#include "lists/Lists.h"

namespace tsln::test {

using testing::AllOf, testing::Contains, testing::Each, testing::ElementsAre, testing::EndsWith,
    testing::HasSubstr, testing::IsEmpty, testing::Not, testing::SizeIs, testing::StartsWith;

/// A library with all screens, between a scripted desktop and a recording host.
struct Stage {
    ScriptedDesktop desktop;
    std::shared_ptr<RecordingHost> host = RecordingHost::make();
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);

    Stage();
    /// True when the module or the host showed the user a message.
    bool told() const { return !desktop.boxes.empty() || host->told(); }
    /// The texts of the shown message boxes.
    std::vector<std::string> texts() const;
    /// The errors that the host showed, each as "message, explanation, detail".
    std::vector<std::string> failures() const { return host->callsOf("ShowAndLogErrorMessage"); }

    // The statements that were sent, by what they give: rows, a new row's key, nothing.
    std::vector<std::string> read() const { return host->callsOf("Database.ExecuteRead"); }
    std::vector<std::string> inserted() const { return host->callsOf("Database.ExecuteNonQueryWithID"); }
    std::vector<std::string> executed() const { return host->callsOf("Database.ExecuteNonQuery"); }
    /// The writing statements that were sent to the company's connection.
    std::vector<std::string> onConnection() const;
};

// Message boxes ------------------------------------------------------------------------------------------

using Box = ScriptedDesktop::Box;
inline Box exclamation(std::string text) {
    return {std::move(text), MessageButtons::Ok, MessageIcon::Exclamation, {}};
}
inline Box information(std::string text) {
    return {std::move(text), MessageButtons::Ok, MessageIcon::Information, {}};
}
inline Box question(std::string text) {
    return {std::move(text), MessageButtons::YesNo, MessageIcon::Question, {}};
}

/// A failure of the database as the host shows it, with its explanation as a placeholder or in full.
std::string explained(std::string_view message);
std::string explainedInFull(std::string_view message);
inline constexpr auto explanation =
    "This typically happens if the database is in use by another user or program. Try saving again. If the problem persists, close the program, restart and try again.";

// Answers ------------------------------------------------------------------------------------------------

RecordingHost::Answer raises(std::string text = "down");
/// Adds entries with these texts and numbers to the list that the host is to fill.
RecordingHost::Answer fills(std::vector<std::pair<std::string, std::int32_t>> entries);

// Faults -------------------------------------------------------------------------------------------------

/// Returns a writing statement without the written values: its table, columns and condition.
std::string shapeOf(const std::string& statement);

/// Runs a scenario once to count its calls to the host, then again for each call and each kind of fault with only
/// that call failing, and calls `check` after each run. Each run has a new stage. The test fails when the scenario
/// throws, when a run with a fault sends a writing statement that the clean run does not send (apart from values), or
/// when a screen stays in its slot or an object of the host stays referenced.
///
/// For what tests/sweep does not reach or check: it fills the fields of every operation and presses each button once.
void sweepFaults(
    const std::function<void(Stage&)>& scenario, const std::function<void(Stage&)>& check = [](Stage&) {});

}  // namespace tsln::test
