#pragma once

#include <functional>

#include "doubles/ScriptedDesktop.h"
#include "tests/soak/RandomUser.h"

namespace tsln::soak {

/// The random user at a desktop without windows.
class ScriptedUser : public test::ScriptedDesktop {
  public:
    /// `callOperation` lets the host call some operation while a screen is shown.
    ScriptedUser(RandomUser& user, std::string inFolder, std::function<void()> callOperation);

    void showModal(Screen& screen) override;
    MessageAnswer messageBox(Screen* owner, std::string_view text, MessageButtons buttons, MessageIcon icon,
                             std::string_view title) override;
    std::optional<std::size_t> choose(Screen* owner, std::string_view title, std::string_view question,
                                      std::span<const std::string> offered) override;
    std::optional<std::string> openFile(Screen& owner, std::string_view title,
                                        std::span<const FileFilter> filters) override;
    std::optional<std::string> saveFile(Screen& owner, std::string_view title,
                                        std::span<const FileFilter> filters,
                                        std::string_view proposal) override;
    int choosePopup(Screen& owner, const Command& popup, Control& below) override;
    void yield() override;
    bool shellOpen(std::string_view file, std::string_view arguments) override;

  private:
    std::optional<std::string> someFile();

    RandomUser& user_;
    const std::function<void()> callOperation_;
    std::vector<Screen*> open_;
    int yieldings_ = 0;
};

}  // namespace tsln::soak
