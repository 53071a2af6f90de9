#pragma once

#include <chrono>
#include <cstddef>

namespace tsln {

class Button;
class ProgressBar;
class Screen;

/// Work of many steps within a handler of a screen, which the user watches and can end between two steps.
///
/// While a job lives, its screen takes nothing but a press of the cancel button, by mouse or keyboard, and Esc; its close
/// box asks for the end, too. Between the steps the screen is drawn, at most some twenty times a second. One job at a
/// time: while another runs on the same screen, a second one shows nothing and is never cancelled.
class Job {
  public:
    /// All must outlive the job; `bar` and `cancel` may be null. A bar runs from 0 to `steps`.
    Job(Screen& screen, std::size_t steps, ProgressBar* bar, Button* cancel);
    /// The cancel button is as it was before.
    ~Job();
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// A step is done. False when the user wants the work to end.
    bool step();
    /// Draws what has changed and takes the user's wish to cancel, without a step: for waits. False as for step().
    bool goOn();
    bool cancelled() const noexcept { return cancelled_; }

    /// The button that the user may press; null for none.
    Button* cancelButton() const noexcept { return cancel_; }
    /// The user wants the work to end. Passed over where there is no cancel button. Called by the front end.
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
