#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "screens/CommandBars.h"
#include "screens/Desktop.h"
#include "screens/Screen.h"

namespace tsln::test {

/// A desktop without windows: scripts act as the user, and what the user would see is recorded.
class ScriptedDesktop : public Desktop {
  public:
    /// Sets the script for the next showing of the screen with this name. Without a script, or when the script leaves
    /// the screen open, the close box closes it.
    template <class S, class Act>
    void user(std::string_view screenName, Act act) {
        scripts[std::string(screenName)].push_back([act](Screen& screen) { act(dynamic_cast<S&>(screen)); });
    }

    struct Box {
        std::string text;
        MessageButtons buttons;
        MessageIcon icon;
        std::string title;  ///< empty: the program's name
        bool operator==(const Box&) const = default;
    };
    struct Question {
        std::string title;
        std::string text;
        std::vector<std::string> answers;
    };
    struct FileDialog {
        std::string title;
        std::vector<std::string> filters;  ///< "caption|pattern"
    };
    struct HelpCall {
        std::string file;
        std::int32_t context;
    };

    std::map<std::string, std::deque<std::function<void(Screen&)>>> scripts;
    std::vector<std::string> shown;     ///< the screens in the order they were shown
    std::vector<Box> boxes;             ///< the shown message boxes
    std::deque<MessageAnswer> answers;  ///< to yes/no questions; No when none is left
    std::vector<Question> questions;    ///< questions with worded answers
    std::deque<std::size_t> choices;    ///< answers to `questions`, by index; cancelled when none is left
    std::string clipboard;
    std::deque<std::string> files;  ///< chosen in file dialogs; cancelled when none is left
    std::vector<FileDialog> fileDialogs;
    std::deque<int> popupChoices;      ///< chosen commands; 0 when none is left
    std::vector<Command> popups;       ///< the shown popups
    std::vector<std::string> printed;  ///< titles of print previews
    std::vector<HelpCall> help;
    std::vector<std::string> commandLines;  ///< commands that the module waited for
    std::vector<std::string> opened;        ///< files opened by the shell
    bool opens = true;                      ///< the shell can start programs
    std::string computer = "FRONT-DESK";
    std::function<void()> whileProcessRuns;
    std::map<std::string, std::string> settings;  ///< by "key|value"
    std::function<ObjectPtr(std::string_view programId)> components;
    /// Text resources by name; those of the module where there is none of the name.
    std::map<std::string, std::string, std::less<>> textResources;
    std::string folder = "/nowhere";
    std::vector<std::string> proposals;  ///< of the dialogs for saving
    int yields = 0;
    std::function<void()> onYield;

    /// Ticks every running timer once.
    void tick();
    std::size_t timersRunning() const { return timers_.size(); }

    void showModal(Screen& screen) override;
    MessageAnswer messageBox(Screen* owner, std::string_view text, MessageButtons buttons, MessageIcon icon,
                             std::string_view title = {}) override;
    std::optional<std::size_t> choose(Screen* owner, std::string_view title, std::string_view question,
                                      std::span<const std::string> answers) override;
    std::optional<std::string> openFile(Screen& owner, std::string_view title,
                                        std::span<const FileFilter> filters) override;
    std::optional<std::string> saveFile(Screen& owner, std::string_view title,
                                        std::span<const FileFilter> filters,
                                        std::string_view proposal = {}) override;
    int choosePopup(Screen& owner, const Command& popup, Control& below) override;
    void printPreview(Screen& owner, const ReportControl& report, std::string_view title) override;
    void showHelp(Screen& owner, std::string_view file, std::int32_t context) override;
    void setClipboardText(std::string_view text) override;
    std::string clipboardText() override;
    std::unique_ptr<RunningTimer> startTimer(std::function<void()> callback, int milliseconds) override;
    void yield() override;
    ProcessEnd runAndWait(std::string_view commandLine) override;
    bool shellOpen(std::string_view file, std::string_view arguments) override;
    std::string applicationFolder() override { return folder; }
    std::string computerName() override { return computer; }
    std::optional<std::string> readSetting(std::string_view key, std::string_view value) override;
    void writeSetting(std::string_view key, std::string_view value, std::string_view text) override;
    std::optional<std::string> textResource(std::string_view name) override;
    ObjectPtr createObject(std::string_view programId) override;

  private:
    class ScriptedTimer;
    std::vector<ScriptedTimer*> timers_;

    std::optional<std::string> pickFile(std::string_view title, std::span<const FileFilter> filters);
};

}  // namespace tsln::test
