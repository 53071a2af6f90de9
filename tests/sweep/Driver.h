#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "bridge/Library.h"
#include "doubles/RecordingHost.h"
#include "doubles/ScriptedDesktop.h"
#include "workbench/host/CompanySession.h"
#include "workbench/tour/GalleryStops.h"

namespace tsln::workbench {

/// Numbers the module's calls to the objects of a host and makes one of them fail.
class FaultyHost {
  public:
    /// Stands before `target`: every call through it, and through the objects that its calls return, is numbered.
    ObjectPtr before(ObjectPtr target, std::string name);
    /// Numbers a call; raises its error or returns its wrong result when it is the one to fail.
    std::optional<Variant> failing(const std::string& call);

    struct Plan {
        std::size_t call;  ///< from 0
        test::Fault fault;
    };
    std::optional<Plan> plan;
    std::vector<std::string> calls;       ///< "Database.ExecuteRead(SELECT ...)", by number
    std::set<std::string> statements;     ///< the writing statements that were sent
    std::multiset<std::string> writings;  ///< the same, without their values
    int references = 0;                   ///< objects of the host that the module holds

  private:
    class Proxy;
    void note(std::string_view member, Arguments arguments);
};

/// A user who fills every field of each screen that opens, presses its default button, and leaves it by Esc. On the
/// first screen, another button can be pressed instead.
class FillingDesktop : public test::ScriptedDesktop {
  public:
    FillingDesktop(const std::string& inFolder, FaultyHost& host, const CompanySession& session,
                   std::string button);

    void showModal(Screen& screen) override;
    MessageAnswer messageBox(Screen* owner, std::string_view text, MessageButtons buttons, MessageIcon icon,
                             std::string_view title) override;

    std::vector<std::string> lostInput;  ///< fields of screens that stayed open, whose input had changed
    std::pair<std::size_t, std::size_t>
        pressing{};                   ///< the calls, from and to, that the button of the first screen made
    std::set<std::string> positions;  ///< the keys under which the screens save their positions
    bool refused = false;             ///< the button of a screen was disabled
    std::vector<std::string> furtherButtons;  ///< the first screen's buttons that are neither default nor Esc

  private:
    void press(Screen& screen, Button& button);

    FaultyHost& host_;
    const std::string button_;
    int depth_ = 0;
};

/// The host's windows: every question is answered with yes, the first record is chosen, every message is sent.
class AgreeingUi : public HostUi {
  public:
    explicit AgreeingUi(std::string folder) : folder_(std::move(folder)) {}

    std::vector<std::string> shown;
    Reply showMessage(const Message& message) override;
    std::optional<std::string> editExpression(const ExpressionEdit& edit) override {
        return edit.expression + " ";
    }
    std::optional<std::int32_t> searchRecord(const RecordSearch& search) override;
    std::optional<Email> editEmail(const Email& email) override { return email; }
    std::optional<std::string> chooseFolder(const std::string&) override { return folder_; }

  private:
    std::string folder_;
};

/// What an operation did.
struct Outcome {
    std::string raised;  ///< the error with which it ended; empty for none
    FaultyHost host;
    std::vector<std::string> lostInput;
    bool refused = false;  ///< the button of a screen was disabled when it was to be pressed
    /// What the user was told, by the host as "message|advice|the database's words".
    std::vector<std::string> told;
    std::vector<std::string> shown;            ///< the screens that opened
    std::vector<std::string> withoutPosition;  ///< screens that closed without saving their position
    std::pair<std::size_t, std::size_t> pressing{};
    std::vector<std::string> buttons;
    bool screensLeft = false;  ///< a screen stayed in its slot
};

/// Calls the operation on the company in `file`, with such a user, who presses the named button or, without a name, the
/// default one.
std::unique_ptr<Outcome> perform(const GalleryStop& stop, const std::string& file, const std::string& folder,
                                 const std::string& button, std::optional<FaultyHost::Plan> plan);

}  // namespace tsln::workbench
