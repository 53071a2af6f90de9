#include "screens/Screen.h"

#include <algorithm>

#include "screens/Timer.h"

namespace tsln {

Screen::Screen(Desktop& desktop, std::string name) : desktop_(desktop), name_(std::move(name)) {}

Screen::~Screen() = default;

void Screen::setCaption(std::string caption) {
    caption_ = std::move(caption);
    if (view_) view_->screenChanged();
}

void Screen::setPointerBusy(bool busy) {
    pointerBusy_ = busy;
    if (view_) view_->screenChanged();
}

Control* Screen::control(std::string_view name) const {
    const auto found = std::ranges::find_if(controls_, [&](Control* c) { return sameName(c->name(), name); });
    return found == controls_.end() ? nullptr : *found;
}

void Screen::load() {
    if (loaded_) return;
    loaded_ = true;
    handle([this] { Form_Load(); });
}

void Screen::showModal() {
    if (shown_) throw HostError(code::alreadyShown, name_, "The screen is shown already.");
    load();
    shown_ = true;
    desktop_.showModal(*this);
    shown_ = false;
}

void Screen::activate() {
    if (shown_) handle([this] { Form_Activate(); });
}

void Screen::hide() {
    shown_ = false;
    for (Timer* timer : timers_)
        timer->stop();
    if (view_) view_->screenChanged();
}

void Screen::unload() {
    close(false);
}

void Screen::userClose() {
    close(true);
}

void Screen::userHelp() {
    handle([this] { Form_Help(); });
}

void Screen::close(bool byCloseBox) {
    if (!loaded_) return hide();
    bool mayClose = true;
    // When Form_QueryUnload() throws, the screen closes, so that the user is not trapped in it.
    handle([&] { mayClose = Form_QueryUnload(byCloseBox); });
    if (!mayClose || !loaded_) return;
    loaded_ = false;
    handle([this] { Form_Unload(); });
    hide();
}

void Screen::setJob(Job* job) {
    job_ = job;
    if (view_) view_->jobChanged();
}

void Screen::setFocus(Control& control) {
    focused_ = &control;
    if (view_) view_->focusChanged(control);
}

bool Screen::handle(const std::function<void()>& handler) {
    if (handlers_++ == 0) actStarts();
    bool done = false;
    try {
        handler();
        done = true;
    } catch (const std::exception& error) {
        reportError(error);
    } catch (...) {
        reportError(std::runtime_error("Unexpected error."));
    }
    --handlers_;
    return done;
}

void Screen::reportError(const std::exception& error) noexcept {
    desktop_.messageBox(this, error.what(), MessageButtons::Ok, MessageIcon::Critical);
}

void Screen::controlChanged(Control& control) {
    if (view_) view_->controlChanged(control);
}

}  // namespace tsln
