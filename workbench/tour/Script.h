#pragma once

#include <chrono>
#include <coroutine>
#include <exception>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <wx/timer.h>

namespace tsln::workbench {

/// An expectation of a script that was not met. what() describes it in a sentence.
class ScriptFailure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The actions of a user, written as a coroutine that runs beside the windows in any event loop: it acts, waits until
/// the windows show the expected result, and acts again.
///
///     Script visit() {
///         press(WXK_INSERT);
///         co_await until("the dialog opens", [] { return activeWindowTitle() == "New Terms"; });
///     }
class Script {
  public:
    /// A wait of a script for a condition. When the time limit passes first, the script ends with a ScriptFailure
    /// that names `what`.
    struct Wait {
        std::string what;
        std::function<bool()> condition;
        std::chrono::milliseconds limit;

        bool await_ready() const { return false; }
        void await_resume() const {
            if (!*held) throw ScriptFailure("The time limit passed before " + what + ".");
        }
        template <class Promise>
        void await_suspend(std::coroutine_handle<Promise> script) {
            script.promise().wait = this;
            script.promise().deadline = std::chrono::steady_clock::now() + limit;
        }
        std::shared_ptr<bool> held = std::make_shared<bool>(false);
    };

    struct promise_type {
        Wait* wait = nullptr;
        std::chrono::steady_clock::time_point deadline;
        std::exception_ptr failure;

        Script get_return_object() {
            return Script(std::coroutine_handle<promise_type>::from_promise(*this));
        }
        std::suspend_always initial_suspend() noexcept { return {}; }
        std::suspend_always final_suspend() noexcept { return {}; }
        void return_void() {}
        void unhandled_exception() { failure = std::current_exception(); }
    };

    Script(Script&& other) noexcept : script_(std::exchange(other.script_, nullptr)) {}
    Script& operator=(Script&&) = delete;
    ~Script() {
        if (script_) script_.destroy();
    }

    /// Resumes the script when the awaited condition holds or its time has passed. Returns true once the script has
    /// ended.
    bool resumeIfReady();
    /// The exception that ended the script early; null when it ran to its end.
    std::exception_ptr failure() const { return script_.promise().failure; }

  private:
    explicit Script(std::coroutine_handle<promise_type> script) : script_(script) {}
    std::coroutine_handle<promise_type> script_;
};

/// Waits until the condition holds, for at most this time.
Script::Wait until(std::string what, std::function<bool()> condition,
                   std::chrono::milliseconds limit = std::chrono::seconds(20));
/// Waits for events that a program cannot observe, such as the work of a window manager.
Script::Wait pause(std::chrono::milliseconds time);

/// Runs a script beside the program's windows.
class ScriptRunner : private wxTimer {
  public:
    /// `done` is called once, with the exception that ended the script early, or null.
    ScriptRunner(Script script, std::function<void(const std::exception_ptr&)> done);

  private:
    void Notify() override;

    Script script_;
    std::function<void(const std::exception_ptr&)> done_;
    bool running_ = false;
};

}  // namespace tsln::workbench
