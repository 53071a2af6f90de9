#include "doubles/ScriptedDesktop.h"

#include <algorithm>

#include "resources/TextResources.h"

namespace tsln::test {
namespace {

template <class T>
std::optional<T> next(std::deque<T>& queue) {
    if (queue.empty()) return std::nullopt;
    T value = std::move(queue.front());
    queue.pop_front();
    return value;
}

}  // namespace

void ScriptedDesktop::showModal(Screen& screen) {
    shown.push_back(screen.name());
    screen.layout();
    screen.activate();
    if (auto act = next(scripts[screen.name()]); act && screen.shown()) (*act)(screen);
    if (screen.shown()) screen.userClose();
    if (screen.shown()) screen.hide();  // it refused to close; the test must not hang
}

MessageAnswer ScriptedDesktop::messageBox(Screen*, std::string_view text, MessageButtons buttons,
                                          MessageIcon icon, std::string_view title) {
    boxes.push_back({std::string(text), buttons, icon, std::string(title)});
    if (buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    return next(answers).value_or(MessageAnswer::No);
}

std::optional<std::size_t> ScriptedDesktop::choose(Screen*, std::string_view title, std::string_view question,
                                                   std::span<const std::string> offered) {
    questions.push_back({std::string(title), std::string(question), {offered.begin(), offered.end()}});
    const auto choice = next(choices);
    return choice && *choice < offered.size() ? choice : std::nullopt;
}

void ScriptedDesktop::setClipboardText(std::string_view text) {
    clipboard = text;
}

std::string ScriptedDesktop::clipboardText() {
    return clipboard;
}

class ScriptedDesktop::ScriptedTimer : public RunningTimer {
  public:
    ScriptedTimer(ScriptedDesktop& desktop, std::function<void()> callback)
        : desktop_(desktop), callback_(std::move(callback)) {
        desktop_.timers_.push_back(this);
    }
    ~ScriptedTimer() override { std::erase(desktop_.timers_, this); }
    const std::function<void()>& callback() const { return callback_; }

  private:
    ScriptedDesktop& desktop_;
    std::function<void()> callback_;
};

std::unique_ptr<RunningTimer> ScriptedDesktop::startTimer(std::function<void()> callback, int) {
    return std::make_unique<ScriptedTimer>(*this, std::move(callback));
}

void ScriptedDesktop::tick() {
    for (const ScriptedTimer* timer : std::vector(timers_.begin(), timers_.end())) {
        if (std::ranges::find(timers_, timer) == timers_.end()) continue;  // stopped by an earlier callback
        const auto callback = timer->callback();  // a copy: the callback may stop this timer
        callback();
    }
}

std::optional<std::string> ScriptedDesktop::pickFile(std::string_view title,
                                                     std::span<const FileFilter> filters) {
    FileDialog& dialog = fileDialogs.emplace_back(FileDialog{std::string(title), {}});
    for (const FileFilter& filter : filters)
        dialog.filters.push_back(filter.caption + "|" + filter.pattern);
    return next(files);
}

std::optional<std::string> ScriptedDesktop::openFile(Screen&, std::string_view title,
                                                     std::span<const FileFilter> filters) {
    return pickFile(title, filters);
}

std::optional<std::string> ScriptedDesktop::saveFile(Screen&, std::string_view title,
                                                     std::span<const FileFilter> filters,
                                                     std::string_view proposal) {
    proposals.emplace_back(proposal);
    return pickFile(title, filters);
}

int ScriptedDesktop::choosePopup(Screen&, const Command& popup, Control&) {
    popups.push_back(popup);
    return next(popupChoices).value_or(0);
}

void ScriptedDesktop::printPreview(Screen&, const ReportControl&, std::string_view title) {
    printed.emplace_back(title);
}

void ScriptedDesktop::showHelp(Screen&, std::string_view file, std::int32_t context) {
    help.push_back({std::string(file), context});
}

void ScriptedDesktop::yield() {
    ++yields;
    if (onYield) onYield();
}

ProcessEnd ScriptedDesktop::runAndWait(std::string_view commandLine) {
    commandLines.emplace_back(commandLine);
    if (whileProcessRuns) whileProcessRuns();
    return {.started = true};
}

bool ScriptedDesktop::shellOpen(std::string_view file, std::string_view arguments) {
    opened.push_back(std::string(file) + "|" + std::string(arguments));
    return opens;
}

std::optional<std::string> ScriptedDesktop::readSetting(std::string_view key, std::string_view value) {
    const auto found = settings.find(std::string(key) + "|" + std::string(value));
    if (found == settings.end()) return std::nullopt;
    return found->second;
}

void ScriptedDesktop::writeSetting(std::string_view key, std::string_view value, std::string_view text) {
    settings[std::string(key) + "|" + std::string(value)] = text;
}

std::optional<std::string> ScriptedDesktop::textResource(std::string_view name) {
    if (const auto own = textResources.find(name); own != textResources.end()) return own->second;
    const auto text = resources::text(name);
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

ObjectPtr ScriptedDesktop::createObject(std::string_view programId) {
    ObjectPtr component = components ? components(programId) : nullptr;
    if (!component)
        throw HostError(code::classNotRegistered, "Desktop", "No component " + std::string(programId));
    return component;
}

}  // namespace tsln::test
