#include "screens/Job.h"

#include <algorithm>
#include <cstdint>

#include "screens/Controls.h"
#include "screens/ProgressBar.h"
#include "screens/Screen.h"

namespace tsln {
namespace {

constexpr std::chrono::milliseconds betweenDrawings{50};

}  // namespace

Job::Job(Screen& screen, std::size_t steps, ProgressBar* bar, Button* cancel)
    : screen_(screen), bar_(bar), cancel_(cancel), runs_(!screen.job()) {
    if (!runs_) return;
    if (bar_) {
        bar_->setRange(0, static_cast<std::int32_t>(std::min<std::size_t>(steps, INT32_MAX)));
        bar_->setValue(0);
    }
    if (cancel_) {
        wasEnabled_ = cancel_->enabled();
        cancel_->setEnabled(true);
    }
    screen_.setJob(this);
    draw();
}

Job::~Job() {
    if (!runs_) return;
    screen_.setJob(nullptr);
    if (cancel_) cancel_->setEnabled(wasEnabled_);
}

bool Job::step() {
    if (runs_ && bar_) bar_->step();
    return goOn();
}

bool Job::goOn() {
    if (runs_ && std::chrono::steady_clock::now() - drawn_ >= betweenDrawings) draw();
    return !cancelled_;
}

void Job::userCancel() {
    if (!cancel_ || cancelled_) return;
    cancelled_ = true;
    cancel_->setEnabled(false);  // shows that the job is ending
    if (onCancel) onCancel();
}

void Job::draw() {
    screen_.desktop().yield();
    drawn_ = std::chrono::steady_clock::now();
}

}  // namespace tsln
