#pragma once

#include "screens/Desktop.h"

namespace tsln::test {

/// A desktop without windows and without a user.
class QuietDesktop : public Desktop {
  public:
    void showModal(Screen&) override {}
    MessageAnswer messageBox(Screen*, std::string_view, MessageButtons, MessageIcon,
                             std::string_view = {}) override {
        return {};
    }
    std::optional<std::size_t> choose(Screen*, std::string_view, std::string_view,
                                      std::span<const std::string>) override {
        return {};
    }
    std::optional<std::string> openFile(Screen&, std::string_view, std::span<const FileFilter>) override {
        return {};
    }
    std::optional<std::string> saveFile(Screen&, std::string_view, std::span<const FileFilter>,
                                        std::string_view) override {
        return {};
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
    bool shellOpen(std::string_view, std::string_view) override { return true; }
    std::string applicationFolder() override { return {}; }
    std::string computerName() override { return {}; }
    std::optional<std::string> readSetting(std::string_view, std::string_view) override { return {}; }
    void writeSetting(std::string_view, std::string_view, std::string_view) override {}
    std::optional<std::string> textResource(std::string_view) override { return {}; }
    ObjectPtr createObject(std::string_view) override { return {}; }
};

}  // namespace tsln::test
