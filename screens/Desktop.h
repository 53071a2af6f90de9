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

/// A choice in a file dialog's list of types.
struct FileFilter {
    std::string caption;  ///< "XML Files"
    std::string pattern;  ///< "*.xml"
};

/// How a process that was waited for came to its end.
struct ProcessEnd {
    bool started = false;
    int exitCode = 0;  ///< negative: ended by that signal
};

/// A timer that runs until it is destroyed, which its own callback may do.
class RunningTimer {
  public:
    virtual ~RunningTimer() = default;
};

/// What a screen needs of the machine it is shown on: windows, dialogs, processes, help, settings. Everything
/// else it asks of the host. Texts and paths are UTF-8. Nothing here throws but createObject().
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// Shows the screen, activates it and returns when it is hidden or unloaded. Screens may nest.
    virtual void showModal(Screen& screen) = 0;
    /// `owner` may be null. A box closed without an answer gives Cancel where there is one, else No or Ok.
    /// Without a title the box has the program's.
    virtual MessageAnswer messageBox(Screen* owner, std::string_view text, MessageButtons buttons,
                                     MessageIcon icon, std::string_view title = {}) = 0;
    /// Asks a question that has answers in words, the first of which is chosen at first. Returns the index of
    /// the answer; nothing when cancelled or when there are no answers. `owner` may be null.
    virtual std::optional<std::size_t> choose(Screen* owner, std::string_view title,
                                              std::string_view question,
                                              std::span<const std::string> answers) = 0;
    /// The file the user picked in an existing-file dialog; nothing when cancelled.
    virtual std::optional<std::string> openFile(Screen& owner, std::string_view title,
                                                std::span<const FileFilter> filters) = 0;
    /// The file name the user picked for writing, replacing an existing one confirmed; nothing when
    /// cancelled.
    virtual std::optional<std::string> saveFile(Screen& owner, std::string_view title,
                                                std::span<const FileFilter> filters) = 0;
    /// Shows the popup under a control and returns the chosen command's identifier, 0 when none was chosen.
    virtual int choosePopup(Screen& owner, const Command& popup, Control& below) = 0;
    virtual void printPreview(Screen& owner, const ReportControl& report, std::string_view title) = 0;
    /// Opens the help file, found beside the host program, on a topic. `owner` owns its window.
    virtual void showHelp(Screen& owner, std::string_view file, std::int32_t context) = 0;

    /// Puts a text into the system's clipboard. A clipboard that another program holds stays as it is.
    virtual void setClipboardText(std::string_view text) = 0;
    /// The text in the clipboard; empty when there is none.
    virtual std::string clipboardText() = 0;
    /// Calls back every so many milliseconds, from the event loop, until the timer returned is destroyed. The
    /// callback must not throw.
    virtual std::unique_ptr<RunningTimer> startTimer(std::function<void()> callback, int milliseconds) = 0;

    /// Lets pending screen messages be processed.
    virtual void yield() = 0;
    /// Starts a process from its command line and returns when it has ended; screens keep repainting, but
    /// take no input meanwhile. A process that cannot be started ends the call at once.
    virtual ProcessEnd runAndWait(std::string_view commandLine) = 0;
    /// Starts a program with the shell's "open" verb in the normal show state and returns at once.
    virtual void shellOpen(std::string_view file, std::string_view arguments) = 0;
    /// The folder of the host program.
    virtual std::string applicationFolder() = 0;

    /// A value under the user's settings key ("Software\\..."); nothing when there is none.
    virtual std::optional<std::string> readSetting(std::string_view key, std::string_view value) = 0;
    virtual void writeSetting(std::string_view key, std::string_view value, std::string_view text) = 0;

    /// Creates a component by its program identifier; raises HostError(code::classNotRegistered).
    virtual ObjectPtr createObject(std::string_view programId) = 0;
};

}  // namespace tsln
