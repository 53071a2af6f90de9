#include "workbench/tour/Script.h"

#include "desktop/WxDesktop.h"

namespace tsln::workbench {

bool Script::resumeIfReady() {
    auto& promise = script_.promise();
    if (promise.wait) {
        Wait& wait = *promise.wait;
        *wait.held = wait.condition();
        if (!*wait.held && std::chrono::steady_clock::now() < promise.deadline) return false;
        promise.wait = nullptr;
    }
    if (!script_.done()) script_.resume();
    return script_.done();
}

Script::Wait until(std::string what, std::function<bool()> condition, std::chrono::milliseconds limit) {
    return {std::move(what), std::move(condition), limit};
}

Script::Wait pause(std::chrono::milliseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    return {"time has passed", [end] { return std::chrono::steady_clock::now() >= end; }, time * 2};
}

ScriptRunner::ScriptRunner(Script script, std::function<void(const std::exception_ptr&)> done)
    : script_(std::move(script)), done_(std::move(done)) {
    constexpr int milliseconds = 30;
    Start(milliseconds);
}

void ScriptRunner::Notify() {
    // An action of the script may process events, and this timer with them. A user waits for a screen that works; what
    // the script pressed meanwhile would be dropped.
    if (running_ || desktop::WxDesktop::dropsInput()) return;
    running_ = true;
    const bool ended = script_.resumeIfReady();
    running_ = false;
    if (!ended) return;
    Stop();
    done_(script_.failure());
}

}  // namespace tsln::workbench
