#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "screens/Screen.h"

namespace tsln {

/// The single shared instance of each screen, by the screen's name. It is made when first needed and kept until
/// released.
class ScreenSlots {
  public:
    /// Returns the screen's instance, made by `make` when there is none. S is the class that `make` returns.
    template <class Make>
    auto instance(std::string_view name, Make make) {
        using Pointer = decltype(make());
        auto& slot = slots_[std::string(name)];
        if (!slot) slot = make();
        return std::static_pointer_cast<typename Pointer::element_type>(slot);
    }
    void release(std::string_view name) { slots_.erase(std::string(name)); }
    bool empty() const noexcept { return slots_.empty(); }

    /// Opens a screen as every entry point does: loads its shared instance, calls `setup` with it, shows it modally,
    /// and empties the slot afterwards in any case. Returns the closed screen, from which the caller reads the
    /// result. When `setup` returns false, the screen is unloaded without being shown. A screen that is already open
    /// raises HostError(code::alreadyShown).
    template <class Make, class Setup>
    auto show(std::string_view name, Make make, Setup setup) {
        auto screen = instance(name, make);
        if (screen->shown()) screen->showModal();  // raises; the open screen keeps its slot
        const Release release{*this, std::string(name)};
        screen->load();
        bool wanted = true;
        if constexpr (std::is_same_v<decltype(setup(*screen)), bool>) {
            wanted = setup(*screen);
        } else {
            setup(*screen);
        }
        if (wanted) screen->showModal();
        screen->unload();
        return screen;
    }

  private:
    struct Release {
        ScreenSlots& slots;
        std::string name;
        ~Release() { slots.release(name); }
    };
    std::map<std::string, std::shared_ptr<Screen>> slots_;
};

}  // namespace tsln
