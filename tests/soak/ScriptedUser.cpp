#include "tests/soak/ScriptedUser.h"

#include "screens/Job.h"
#include "tests/soak/Diary.h"

namespace tsln::soak {
namespace {

constexpr std::size_t deepest = 6;  // screens above each other; a further one is left at once
constexpr int triesToLeave = 40;

}  // namespace

ScriptedUser::ScriptedUser(RandomUser& user, std::string inFolder, std::function<void()> callOperation)
    : user_(user), callOperation_(std::move(callOperation)) {
    folder = std::move(inFolder);
}

void ScriptedUser::showModal(Screen& screen) {
    open_.push_back(&screen);
    screen.layout();
    screen.activate();
    for (int left = open_.size() > deepest ? 0 : user_.patience(); left > 0 && screen.shown(); --left) {
        if (user_.random.chance(10)) tick();
        if (user_.random.chance(1)) callOperation_();
        if (screen.shown()) user_.act(screen);
    }
    for (int tries = 0; screen.shown(); ++tries) {
        if (tries > triesToLeave) diary::fail(screen.name() + " does not close");
        user_.leave(screen);
    }
    open_.pop_back();
}

MessageAnswer ScriptedUser::messageBox(Screen*, std::string_view text, MessageButtons buttons, MessageIcon,
                                       std::string_view) {
    const MessageAnswer answer = user_.answer(buttons);
    user_.note("is told '" + std::string(text) + "': " + std::to_string(static_cast<int>(answer)));
    return answer;
}

std::optional<std::size_t> ScriptedUser::choose(Screen*, std::string_view, std::string_view question,
                                                std::span<const std::string> offered) {
    user_.note("is asked '" + std::string(question) + "'");
    if (offered.empty() || user_.random.chance(20)) return std::nullopt;
    return user_.random.below(offered.size());
}

std::optional<std::string> ScriptedUser::someFile() {
    user_.note("chooses a file");
    if (user_.random.chance(20)) return std::nullopt;
    return user_.path(folder);
}

std::optional<std::string> ScriptedUser::openFile(Screen&, std::string_view, std::span<const FileFilter>) {
    return someFile();
}

std::optional<std::string> ScriptedUser::saveFile(Screen&, std::string_view, std::span<const FileFilter>,
                                                  std::string_view) {
    return someFile();
}

int ScriptedUser::choosePopup(Screen&, const Command& popup, Control&) {
    return user_.command(popup);
}

void ScriptedUser::yield() {
    // Not by the user's choices: how often a job yields depends on the machine's speed.
    Job* const job = open_.empty() ? nullptr : open_.back()->job();
    if (job && ++yieldings_ % 7 == 0) job->userCancel();
}

bool ScriptedUser::shellOpen(std::string_view, std::string_view) {
    return user_.random.chance(50);
}

}  // namespace tsln::soak
