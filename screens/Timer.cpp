#include "screens/Timer.h"

#include <algorithm>

#include "screens/Screen.h"

namespace tsln {

Timer::Timer(Screen& screen, int milliseconds) : screen_(screen), interval_(std::max(milliseconds, 1)) {
    screen_.timers_.push_back(this);
}

Timer::~Timer() {
    std::erase(screen_.timers_, this);
}

void Timer::setInterval(int milliseconds) {
    interval_ = std::max(milliseconds, 1);
    if (running()) start();
}

void Timer::start() {
    running_ = screen_.desktop().startTimer([this] { tick(); }, interval_);
}

void Timer::tick() {
    if (!onTick) return;
    if (ScreenView* view = screen_.view()) {
        view->act(onTick);
    } else {
        screen_.handle(onTick);
    }
}

}  // namespace tsln
