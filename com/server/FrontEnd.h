#pragma once

#include <memory>

#include "desktop/WxDesktop.h"

namespace tsln::com {

/// The windows of the module: started for the first screen, ended with the last Library of the process, any
/// number of times. All screens of a process open on one thread, the host's user-interface thread.
class FrontEnd {
  public:
    /// The one that lives, or a new one.
    static std::shared_ptr<FrontEnd> shared();

    ~FrontEnd();
    FrontEnd(const FrontEnd&) = delete;
    FrontEnd& operator=(const FrontEnd&) = delete;

    /// Usable for windows once start() has been called.
    Desktop& desktop() noexcept { return desktop_; }

    /// Gets the toolkit going, once. Raises HostError(RPC_E_WRONG_THREAD) when it runs on another thread, and
    /// code::fail when it does not start.
    void start();

    /// The look of windows opened while it lives: that of this module's manifest rather than the host's.
    class Look {
      public:
        explicit Look(const FrontEnd& frontEnd) noexcept;
        ~Look();
        Look(const Look&) = delete;
        Look& operator=(const Look&) = delete;

      private:
        std::uintptr_t cookie_ = 0;
        bool active_ = false;
    };

  private:
    FrontEnd();

    desktop::WxDesktop desktop_;
    unsigned long thread_ = 0;  // that the toolkit runs on; 0 until it does
    void* look_;                // an activation context, or INVALID_HANDLE_VALUE
};

}  // namespace tsln::com
