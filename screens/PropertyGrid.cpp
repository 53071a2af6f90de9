#include "screens/PropertyGrid.h"

#include <stdexcept>

namespace tsln {

void PropertyGrid::requireCategory(std::size_t index) const {
    if (!items_.at(index).isCategory)
        throw std::out_of_range(name() + " has no category " + std::to_string(index));
}

std::size_t PropertyGrid::addCategory(std::string caption, std::optional<std::size_t> parent) {
    if (parent) requireCategory(*parent);
    items_.push_back({parent, std::move(caption), {}, true});
    changed();
    return items_.size() - 1;
}

void PropertyGrid::addRow(std::size_t category, std::string caption, std::string value) {
    requireCategory(category);
    items_.push_back({category, std::move(caption), std::move(value)});
    changed();
}

void PropertyGrid::clear() {
    items_.clear();
    ++clearings_;
    changed();
}

}  // namespace tsln
