#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// Captions with values to read, in categories that can be closed. It may grow while it is shown.
class PropertyGrid : public Control {
  public:
    PropertyGrid(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    /// A category or a row, in the order they were added.
    struct Item {
        std::optional<std::size_t> parent;  ///< the index of the category it stands in
        std::string caption;
        std::string value;  ///< of a row
        bool isCategory = false;
    };
    const std::vector<Item>& items() const noexcept { return items_; }

    /// Adds a category, at the top or within another one, and returns its index. A parent that is no category
    /// raises std::out_of_range.
    std::size_t addCategory(std::string caption, std::optional<std::size_t> parent = std::nullopt);
    /// Adds a row to a category. An index that is none of a category raises std::out_of_range.
    void addRow(std::size_t category, std::string caption, std::string value);
    void clear();
    /// Counts how often it was cleared, so that the front end can tell new items from further ones.
    int clearings() const noexcept { return clearings_; }

  private:
    void requireCategory(std::size_t index) const;

    std::vector<Item> items_;
    int clearings_ = 0;
};

}  // namespace tsln
