#pragma once

#include <memory>

#include "desktop/WxDesktop.h"

namespace tsln::com {

/// The start and end of wxWidgets in the host's process. wxWidgets starts with the first screen and ends with
/// the last Library; both may happen any number of times. All screens of a process open on one thread, the
/// host's user-interface thread.
class FrontEnd {
  public:
    /// The existing front end of the process, or a new one.
    static std::shared_ptr<FrontEnd> shared();

    ~FrontEnd();
    FrontEnd(const FrontEnd&) = delete;
    FrontEnd& operator=(const FrontEnd&) = delete;

    /// The desktop. It can open windows after start().
    Desktop& desktop() noexcept { return desktop_; }

    /// Starts wxWidgets if it is not running. Raises HostError(RPC_E_WRONG_THREAD) when it runs on another
    /// thread, and HostError(code::fail) when it does not start.
    void start();

    /// While a Look exists, new windows get the look of this module's manifest instead of the host's.
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
    unsigned long thread_ = 0;  // the thread of wxWidgets; 0 while it is not running
    void* look_;                // an activation context, or INVALID_HANDLE_VALUE
};

}  // namespace tsln::com
