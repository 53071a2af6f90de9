#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desktop/Settings.h"
#include "screens/Desktop.h"

class wxWindow;

namespace tsln::desktop {

class ScreenDialog;

/// The desktop that shows screens in real windows. There must be a wxApp while it lives. For use on the
/// user-interface thread.
class WxDesktop : public Desktop {
  public:
    /// Creates a component by its program identifier; null when there is none of that name.
    using ComponentFactory = std::function<ObjectPtr(std::string_view programId)>;

    /// `settingsFile`: where settings lie, where the platform has no place of its own for them.
    WxDesktop(ComponentFactory components, std::string settingsFile);
    ~WxDesktop() override;

    /// Called after a process that was waited for has ended or could not be started. Must not throw.
    std::function<void(std::string_view commandLine, ProcessEnd end)> onProcessEnd;

    void showModal(Screen& screen) override;
    MessageAnswer messageBox(Screen* owner, std::string_view text, MessageButtons buttons, MessageIcon icon,
                             std::string_view title = {}) override;
    std::optional<std::size_t> choose(Screen* owner, std::string_view title, std::string_view question,
                                      std::span<const std::string> answers) override;
    std::optional<std::string> openFile(Screen& owner, std::string_view title,
                                        std::span<const FileFilter> filters) override;
    std::optional<std::string> saveFile(Screen& owner, std::string_view title,
                                        std::span<const FileFilter> filters) override;
    int choosePopup(Screen& owner, const Command& popup, Control& below) override;
    void printPreview(Screen& owner, const ReportControl& report, std::string_view title) override;
    void showHelp(Screen& owner, std::string_view file, std::int32_t context) override;
    void setClipboardText(std::string_view text) override;
    std::string clipboardText() override;
    std::unique_ptr<RunningTimer> startTimer(std::function<void()> callback, int milliseconds) override;
    void yield() override;
    ProcessEnd runAndWait(std::string_view commandLine) override;
    void shellOpen(std::string_view file, std::string_view arguments) override;
    std::string applicationFolder() override;
    std::optional<std::string> readSetting(std::string_view key, std::string_view value) override;
    void writeSetting(std::string_view key, std::string_view value, std::string_view text) override;
    ObjectPtr createObject(std::string_view programId) override;

  private:
    /// The window over which something opens: the owner's, else the foremost one, else the program's own.
    wxWindow* windowFor(const Screen* owner) const;
    ScreenDialog* dialogOf(const Screen* screen) const;
    /// Windows that were disabled for a while have lost the keyboard; the foremost screen gets it back.
    void restoreFocus();
    /// Draws what running handlers have changed so far: the user is about to look at it.
    void drawChanges();

    ComponentFactory components_;
    Settings settings_;
    std::vector<ScreenDialog*> dialogs_;  // the foremost last
};

}  // namespace tsln::desktop
