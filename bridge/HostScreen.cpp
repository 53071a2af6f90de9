#include "bridge/HostScreen.h"

#include <cmath>

#include "automation/NumericText.h"

namespace tsln {
namespace {

/// All help buttons of the module open this help file.
constexpr std::string_view helpFile = "UI Reference.chm";
constexpr std::int32_t helpContext = 40;

struct PositionValue {
    std::string_view name;
    std::optional<int> Screen::Placement::*member;
};
constexpr PositionValue positionValues[] = {
    {"Left", &Screen::Placement::left},
    {"Width", &Screen::Placement::width},
    {"Height", &Screen::Placement::height},
};

/// The platform's codes of window states. A minimized window is stored as normal.
constexpr std::string_view stateValue = "WindowState";
constexpr int stateNormal = 0;
constexpr int stateMaximized = 2;

}  // namespace

std::string windowPositionKey(const Screen& screen) {
    return std::string(settingsKey) + "\\Window Positions\\" + screen.name();
}

void HostScreen::reportDatabaseFailure(std::string_view message, std::string_view explanation,
                                       Host::ShowFailure show) {
    std::string detail;
    try {
        detail = host().database().LastSQLErrorDescription();
    } catch (const std::exception& error) {
        detail = error.what();
    }
    try {
        (host().*show)(message, explanation, detail);
    } catch (const std::exception&) {
        // The host failed to show the message; the user must still see it.
        tell(std::string(message) + "\n\n" + detail, MessageIcon::Critical);
    }
}

void HostScreen::reportConnectionFailure(std::string_view message, std::string_view explanation) {
    try {
        host().ShowADOErrorMessage(message, explanation);
    } catch (const std::exception&) {
        // The host failed to show the message; the user must still see it.
        tell(message, MessageIcon::Critical);
    }
}

void HostScreen::Form_Help() {
    desktop().showHelp(*this, helpFile, helpContext);
}

void HostScreen::reportError(const std::exception& error) noexcept {
    try {
        host().ShowAndLogErrorMessage("The last action could not be completed.", "", error.what());
    } catch (const std::exception&) {
        // The host failed to show the error; the user must still see it.
        Screen::reportError(error);
    }
}

Busy::Busy(HostScreen& screen, std::initializer_list<Button*> buttons) : screen_(screen) {
    ++screen_.busy_;
    for (Button* button : buttons) {
        if (button->enabled()) disabled_.push_back(button);
        button->setEnabled(false);
    }
}

Busy::~Busy() {
    for (Button* button : disabled_)
        button->setEnabled(true);
    --screen_.busy_;
}

void restoreWindowPosition(Screen& screen, WindowValues which) {
    const std::string key = windowPositionKey(screen);
    for (const auto& [name, member] : positionValues) {
        const auto stored = screen.desktop().readSetting(key, name);
        const auto number = stored ? parseNumber(*stored) : std::nullopt;
        if (number && std::abs(*number) < 100'000) screen.placement.*member = static_cast<int>(*number);
    }
    if (which == WindowValues::Place) return;
    const auto state = screen.desktop().readSetting(key, stateValue);
    screen.placement.maximized = state && parseNumber(*state) == stateMaximized;
}

void saveWindowPosition(Screen& screen, WindowValues which) {
    const std::string key = windowPositionKey(screen);
    for (const auto& [name, member] : positionValues) {
        if (const auto value = screen.placement.*member) {
            screen.desktop().writeSetting(key, name, std::to_string(*value));
        }
    }
    if (which == WindowValues::Place) return;
    screen.desktop().writeSetting(key, stateValue,
                                  std::to_string(screen.placement.maximized ? stateMaximized : stateNormal));
}

}  // namespace tsln
