#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "screens/Screen.h"

namespace tsln {

/// The single shared instance of each screen, by the screen's name: made when first needed, kept until
/// released.
class ScreenSlots {
  public:
    /// The screen's instance; `make` makes it when there is none. S is the class that `make` returns.
    template <class Make>
    auto instance(std::string_view name, Make make) {
        using Pointer = decltype(make());
        auto& slot = slots_[std::string(name)];
        if (!slot) slot = make();
        return std::static_pointer_cast<typename Pointer::element_type>(slot);
    }
    void release(std::string_view name) { slots_.erase(std::string(name)); }
    bool empty() const noexcept { return slots_.empty(); }

    /// Opens a screen the way every entry point does: its shared instance is loaded, `setup` hands it the
    /// arguments, it is shown modally, and the slot is empty again afterwards, whatever happened. The result
    /// is the closed screen, from which the caller reads what it returns. A setup that returns false has
    /// found nothing to show, and the screen is unloaded without. A screen that is open already raises
    /// HostError(code::alreadyShown).
    template <class Make, class Setup>
    auto show(std::string_view name, Make make, Setup setup) {
        auto screen = instance(name, make);
        if (screen->shown()) screen->showModal();  // raises; the open one keeps its slot
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
