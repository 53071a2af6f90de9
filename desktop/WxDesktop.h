#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desktop/Settings.h"
#include "screens/Desktop.h"

class wxEventLoopBase;
class wxWindow;

namespace tsln::desktop {

class ScreenDialog;

/// The desktop that shows screens in windows. A wxApp must exist while it exists. For use on the
/// user-interface thread only.
class WxDesktop : public Desktop {
  public:
    /// Creates a component by its program identifier; returns null when there is none of that name.
    using ComponentFactory = std::function<ObjectPtr(std::string_view programId)>;

    /// `settingsFile` is the path of the settings file, unused on Windows.
    WxDesktop(ComponentFactory components, std::string settingsFile);
    ~WxDesktop() override;

    /// Called when the process of runAndWait() has ended or could not be started. Must not throw.
    std::function<void(std::string_view commandLine, ProcessEnd end)> onProcessEnd;

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
    std::string applicationFolder() override;
    std::string computerName() override;
    std::optional<std::string> readSetting(std::string_view key, std::string_view value) override;
    void writeSetting(std::string_view key, std::string_view value, std::string_view text) override;
    std::optional<std::string> textResource(std::string_view name) override;
    ObjectPtr createObject(std::string_view programId) override;

    /// True while a screen works and keys and clicks are dropped, as seen by a timer that the work lets through.
    static bool dropsInput();

  private:
    /// The parent for a dialog: the owner's window, else the foremost screen, else the program's main window.
    wxWindow* windowFor(const Screen* owner) const;
    ScreenDialog* dialogOf(const Screen* screen) const;
    /// Gives input and keyboard focus back to the screens. Windows lose them when they are disabled.
    void restoreFocus();
    /// Redraws what running handlers have changed so far, before the user sees a dialog or a wait begins.
    void drawChanges();

    ComponentFactory components_;
    Settings settings_;
    std::vector<ScreenDialog*> dialogs_;  // the foremost last
    wxEventLoopBase* yieldingLoop_ = nullptr;
};

}  // namespace tsln::desktop
