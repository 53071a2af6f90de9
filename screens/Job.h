#pragma once

#include <chrono>
#include <cstddef>
#include <functional>

namespace tsln {

class Button;
class ProgressBar;
class Screen;

/// Work of many steps within a handler of a screen. The user sees its progress and can end it between two
/// steps.
///
/// While a job exists, its screen takes no input except a press of the cancel button, Esc and the close box,
/// which all cancel the job. The screen is redrawn between steps, at most 20 times a second. A screen has one
/// job at a time: a second one, made while the first exists, shows no progress and is never cancelled.
class Job {
  public:
    /// The arguments must outlive the job; `bar` and `cancel` may be null. The bar runs from 0 to `steps`.
    Job(Screen& screen, std::size_t steps, ProgressBar* bar, Button* cancel);
    /// Restores the enabled state of the cancel button.
    ~Job();
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// Reports that a step is done. Returns false when the user has cancelled the job.
    bool step();
    /// Redraws the screen and processes a press of the cancel button without a step: for waits. Returns false
    /// when the user has cancelled the job.
    bool goOn();
    bool cancelled() const noexcept { return cancelled_; }
    /// Called once, when the user cancels: for work that does not ask step() or goOn(). Must not throw.
    std::function<void()> onCancel;

    /// The cancel button; null when there is none.
    Button* cancelButton() const noexcept { return cancel_; }
    /// The user cancels the job. Ignored when there is no cancel button. Called by the front end.
    void userCancel();

  private:
    void draw();

    Screen& screen_;
    ProgressBar* bar_;
    Button* cancel_;
    bool wasEnabled_ = false;
    bool runs_ = false;
    bool cancelled_ = false;
    std::chrono::steady_clock::time_point drawn_;
};

}  // namespace tsln
