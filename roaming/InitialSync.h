#pragma once

#include <chrono>
#include <string>

#include "bridge/HostScreen.h"
#include "screens/MarkupLabel.h"
#include "screens/Timer.h"

namespace tsln::roaming {

/// Requests the initial synchronization of this workstation, starts the agent that carries it out, and closes by itself
/// once the company's row says that it is complete.
///
/// It waits by a timer: a tick sends one statement, and no work is done in between. It also waits for a request that
/// was made earlier and is not carried out yet. A request can be repeated while it waits, because nothing shows whether
/// the agent still runs.
class InitialSync : public HostScreen {
  public:
    explicit InitialSync(Library& library);

    MarkupLabel lblExplanation{*this, "lblExplanation", ""};
    Label lblStatus{*this, "lblStatus", ""};
    Label lblElapsed{*this, "lblElapsed", ""};
    Label lblFrequency{*this, "lblFrequency", ""};
    Button cmdFileManager{*this, "cmdFileManager", "&File Locations..."};
    Button cmdMoveFiles{*this, "cmdMoveFiles", "&Move Files..."};
    Button cmdRequest{*this, "cmdRequest", "&Request Initial Sync...", Button::Role::Default};
    Button cmdClose{*this, "cmdClose", "Close", Button::Role::Cancel};
    Timer tmrWait{*this, 1000};

    /// True unless the screen was closed by the completion of the initial synchronization.
    bool Cancelled = true;

    /// Reads the company's state. A failure is reported.
    void initialize();
    Layout layout() override;

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    bool Form_QueryUnload(bool byCloseBox) override;

  private:
    /// Returns the company's state, nothing when it has no row. May raise HostError.
    std::optional<std::int32_t> readState() const;
    void showState(std::int32_t state);
    void request();
    void wait();
    void stopWaiting();
    void tick();
    void callFileManager(std::string_view member);

    std::optional<std::int32_t> shownState_;
    std::optional<std::chrono::steady_clock::time_point> requested_;  // by this screen
    int failedPolls_ = 0;                                             // one after the other
};

/// The time as "0:07", "12:30" or "1:02:03".
std::string elapsedText(std::chrono::seconds time);

/// Lets the user request the initial synchronization. Returns false when it was completed.
bool requestInitialSync(Library& library);

}  // namespace tsln::roaming
