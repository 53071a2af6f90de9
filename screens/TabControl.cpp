#include "screens/TabControl.h"

namespace tsln {

bool TabControl::show(int page) {
    if (page == selected_ || !isPageVisible(page)) return false;
    selected_ = page;
    return true;
}

void TabControl::select(int page) {
    if (show(page)) changed();
}

bool TabControl::isPageVisible(int page) const {
    return exists(page) && !hidden_[static_cast<std::size_t>(page)];
}

int TabControl::nearestVisible(int page) const {
    for (int after = page; exists(after); ++after) {
        if (isPageVisible(after)) return after;
    }
    while (exists(page) && !isPageVisible(page))
        --page;
    return page;
}

void TabControl::setPageVisible(int page, bool visible) {
    if (!exists(page) || isPageVisible(page) == visible) return;
    hidden_[static_cast<std::size_t>(page)] = !visible;
    selected_ = nearestVisible(selected_ < 0 ? page : selected_);
    changed();
}

void TabControl::userSelect(int page) {
    if (enabled() && show(page)) fire(onSelect);
}

Variant TabControl::invoke(std::string_view member, Access access, Arguments arguments) {
    if (!sameName(member, "Item")) return Control::invoke(member, access, arguments);
    if (access == Access::Put) select(arguments[0].toLong());
    return selected_;
}

}  // namespace tsln
