#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Object.h"

namespace tsln {

class CommandBars;
class Control;
class ReportControl;
class Screen;
struct Command;

enum class MessageButtons { Ok, OkCancel, YesNo };
enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageAnswer { Ok, Cancel, Yes, No };

/// An entry in a file dialog's list of file types.
struct FileFilter {
    std::string caption;  ///< "XML Files"
    std::string pattern;  ///< "*.xml"
};

/// How a process ended.
struct ProcessEnd {
    bool started = false;
    int exitCode = 0;  ///< negative: the number of the signal that ended it
};

/// A timer that runs until it is destroyed. Its own callback may destroy it.
class RunningTimer {
  public:
    virtual ~RunningTimer() = default;
};

/// The services of the machine on which a screen is shown: windows, dialogs, processes, help, settings.
/// Screens get all other services from the host. Texts and paths are UTF-8. Only createObject() throws.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// Shows the screen, activates it and returns when it is hidden or unloaded. A shown screen may show
    /// another.
    virtual void showModal(Screen& screen) = 0;
    /// `owner` may be null. A box closed without an answer returns Cancel if it has that button, else No or
    /// Ok. An empty title stands for the program's name.
    virtual MessageAnswer messageBox(Screen* owner, std::string_view text, MessageButtons buttons,
                                     MessageIcon icon, std::string_view title = {}) = 0;
    /// Asks the user to choose one of the answers; the first is preselected. Returns the index of the chosen
    /// answer; no value when cancelled or when `answers` is empty. `owner` may be null.
    virtual std::optional<std::size_t> choose(Screen* owner, std::string_view title,
                                              std::string_view question,
                                              std::span<const std::string> answers) = 0;
    /// Lets the user pick an existing file and returns its path; no value when cancelled.
    virtual std::optional<std::string> openFile(Screen& owner, std::string_view title,
                                                std::span<const FileFilter> filters) = 0;
    /// Lets the user pick a file to write and returns its path; no value when cancelled. The dialog asks
    /// before an existing file is picked. `proposal` is the name or path it begins with; a name without a folder stands
    /// for one in the folder used last.
    virtual std::optional<std::string> saveFile(Screen& owner, std::string_view title,
                                                std::span<const FileFilter> filters,
                                                std::string_view proposal = {}) = 0;
    /// Shows the popup under a control and returns the chosen command's identifier, 0 when none was chosen.
    virtual int choosePopup(Screen& owner, const Command& popup, Control& below) = 0;
    virtual void printPreview(Screen& owner, const ReportControl& report, std::string_view title) = 0;
    /// Opens a help file from the host program's folder at a topic. `owner` owns the help window.
    virtual void showHelp(Screen& owner, std::string_view file, std::int32_t context) = 0;

    /// Puts a text on the system's clipboard. Does nothing while another program holds the clipboard open.
    virtual void setClipboardText(std::string_view text) = 0;
    /// The text on the clipboard; empty when there is none.
    virtual std::string clipboardText() = 0;
    /// Calls `callback` from the event loop every `milliseconds` until the returned timer is destroyed. The
    /// callback must not throw.
    virtual std::unique_ptr<RunningTimer> startTimer(std::function<void()> callback, int milliseconds) = 0;

    /// Processes pending window messages, for some tenths of a second at most. Does nothing within itself.
    virtual void yield() = 0;
    /// Starts a process from its command line and returns when it has ended. Screens repaint but take no
    /// input meanwhile. When the process cannot be started, the call returns at once with `started` false.
    virtual ProcessEnd runAndWait(std::string_view commandLine) = 0;
    /// Starts a program with the shell's "open" verb in the normal show state and returns at once. Returns false when
    /// it cannot be started.
    virtual bool shellOpen(std::string_view file, std::string_view arguments) = 0;
    /// The folder of the host program.
    virtual std::string applicationFolder() = 0;
    /// The name of this computer in its network.
    virtual std::string computerName() = 0;

    /// A value under the user's settings key ("Software\\..."); no value when there is none.
    virtual std::optional<std::string> readSetting(std::string_view key, std::string_view value) = 0;
    virtual void writeSetting(std::string_view key, std::string_view value, std::string_view text) = 0;

    /// The text of a text resource of the module, with its own line ends; no value when it has none of that name.
    virtual std::optional<std::string> textResource(std::string_view name) = 0;

    /// Creates a component by its program identifier; raises HostError(code::classNotRegistered).
    virtual ObjectPtr createObject(std::string_view programId) = 0;
};

}  // namespace tsln
