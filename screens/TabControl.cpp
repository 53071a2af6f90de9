#include "screens/TabControl.h"

namespace tsln {

bool TabControl::show(int page) {
    if (page == selected_ || page < 0 || page >= static_cast<int>(captions_.size())) return false;
    selected_ = page;
    return true;
}

void TabControl::select(int page) {
    if (show(page)) changed();
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
