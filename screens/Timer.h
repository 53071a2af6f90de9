#pragma once

#include <functional>
#include <memory>

#include "screens/Desktop.h"

namespace tsln {

class Screen;

/// Runs a handler of its screen at intervals. A tick that falls into another handler of the screen is left
/// out. The timer stops when the screen is hidden or unloaded. A member of its screen.
class Timer {
  public:
    /// `milliseconds` between two ticks, at least 1.
    Timer(Screen& screen, int milliseconds);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    int interval() const noexcept { return interval_; }
    /// A timer that runs begins to count anew.
    void setInterval(int milliseconds);

    /// Starts to count, or begins to count anew.
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
