#pragma once

#include <functional>
#include <memory>

#include "screens/Desktop.h"

namespace tsln {

class Screen;

/// Runs a handler of its screen at intervals. A tick during another handler of the screen is skipped. The
/// timer stops when the screen is hidden or unloaded. It is a member of its screen.
class Timer {
  public:
    /// `milliseconds` is the interval; less than 1 counts as 1.
    Timer(Screen& screen, int milliseconds);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    int interval() const noexcept { return interval_; }
    /// Restarts the interval of a running timer. Less than 1 counts as 1.
    void setInterval(int milliseconds);

    /// Starts the timer, or restarts its interval.
    void start();
    void stop() noexcept { running_.reset(); }
    bool running() const noexcept { return running_ != nullptr; }

    std::function<void()> onTick;

  private:
    void tick();

    Screen& screen_;
    int interval_;
    std::unique_ptr<RunningTimer> running_;
};

}  // namespace tsln
