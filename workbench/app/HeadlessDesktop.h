#pragma once

#include "screens/Desktop.h"
#include "workbench/host/CompanySession.h"

namespace tsln::workbench {

/// A desktop without windows and without a user, for screens that do their work by themselves: a shown screen is
/// activated and then closed. Message boxes are printed and closed without an answer; nothing can be chosen.
class HeadlessDesktop : public Desktop {
  public:
    /// `session` creates the components and must outlive the desktop.
    explicit HeadlessDesktop(const CompanySession& session) : session_(session) {}

    void showModal(Screen& screen) override;
    MessageAnswer messageBox(Screen* owner, std::string_view text, MessageButtons buttons, MessageIcon icon,
                             std::string_view title = {}) override;
    std::optional<std::size_t> choose(Screen*, std::string_view, std::string_view,
                                      std::span<const std::string>) override {
        return std::nullopt;
    }
    std::optional<std::string> openFile(Screen&, std::string_view, std::span<const FileFilter>) override {
        return std::nullopt;
    }
    std::optional<std::string> saveFile(Screen&, std::string_view, std::span<const FileFilter>,
                                        std::string_view) override {
        return std::nullopt;
    }
    int choosePopup(Screen&, const Command&, Control&) override { return 0; }
    void printPreview(Screen&, const ReportControl&, std::string_view) override {}
    void showHelp(Screen&, std::string_view, std::int32_t) override {}
    void setClipboardText(std::string_view) override {}
    std::string clipboardText() override { return {}; }
    std::unique_ptr<RunningTimer> startTimer(std::function<void()>, int) override {
        return std::make_unique<RunningTimer>();
    }
    void yield() override {}
    ProcessEnd runAndWait(std::string_view) override { return {}; }
    bool shellOpen(std::string_view, std::string_view) override { return false; }
    std::string applicationFolder() override { return {}; }
    std::string computerName() override { return {}; }
    std::optional<std::string> readSetting(std::string_view, std::string_view) override {
        return std::nullopt;
    }
    void writeSetting(std::string_view, std::string_view, std::string_view) override {}
    std::optional<std::string> textResource(std::string_view name) override;
    ObjectPtr createObject(std::string_view programId) override { return session_.createObject(programId); }

  private:
    const CompanySession& session_;
};

/// The host's messages where there is no display: they are printed to standard error.
class PrintingUi : public HostUi {
  public:
    Reply showMessage(const Message& message) override;
};

}  // namespace tsln::workbench
