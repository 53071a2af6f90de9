#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "doubles/Random.h"
#include "screens/Screen.h"
#include "workbench/host/HostUi.h"

namespace tsln::soak {

/// A user who does anything, anywhere: the same for the same seed.
class RandomUser {
  public:
    explicit RandomUser(unsigned seed) : random(seed) {}

    test::Random random;
    /// How many acts were done.
    std::size_t acts = 0;
    /// Writes an act into the diary and counts it.
    void note(const std::string& act);

    /// How many acts the user spends on the screen that now opens.
    int patience() { return random.chance(10) ? 0 : random.between(1, 30); }
    /// The control to act on; null for the screen as a whole, or when it has none that can be used.
    Control* someControl(const Screen& screen);
    /// Some answer that the buttons offer.
    MessageAnswer answer(MessageButtons buttons);
    /// A path in a folder: of a file or a folder that exists, or of none.
    std::string path(const std::string& folder);
    /// A command of the popup, or 0.
    int command(const Command& popup);

    /// Does something to a control of the screen without a window.
    void act(Screen& screen);
    /// Tries to leave the screen.
    void leave(Screen& screen);

  private:
    void press(Screen& screen, Button::Role role);
};

/// The host's windows: such a user answers them at once.
class RandomUi : public workbench::HostUi {
  public:
    RandomUi(RandomUser& user, std::string folder) : user_(user), folder_(std::move(folder)) {}

    workbench::Reply showMessage(const workbench::Message& message) override;
    std::optional<std::string> editExpression(const workbench::ExpressionEdit& edit) override;
    std::optional<std::int32_t> searchRecord(const workbench::RecordSearch& search) override;
    std::optional<workbench::Email> editEmail(const workbench::Email& email) override;
    std::optional<std::string> chooseFolder(const std::string& title) override;

  private:
    RandomUser& user_;
    std::string folder_;
};

}  // namespace tsln::soak
