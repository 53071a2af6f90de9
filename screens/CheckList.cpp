#include "screens/CheckList.h"

namespace tsln {

void CheckList::addEntry(Entry entry) {
    entry.cells.resize(columns.size());
    entries_.push_back(std::move(entry));
    changed();
}

void CheckList::clear() {
    entries_.clear();
    changed();
}

void CheckList::setTicked(std::size_t index, bool ticked) {
    entries_.at(index).ticked = ticked;
    changed();
}

void CheckList::userTick(std::size_t index, bool ticked) {
    if (!enabled() || index >= entries_.size() || entries_[index].ticked == ticked) return;
    entries_[index].ticked = ticked;
    fire(onClick);
}

}  // namespace tsln
