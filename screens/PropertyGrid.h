#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// Captions with read-only values, in categories that the user can collapse. Items may be added while it is
/// shown.
class PropertyGrid : public Control {
  public:
    PropertyGrid(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    /// A category or a row, in the order they were added.
    struct Item {
        std::optional<std::size_t> parent;  ///< the index of the category that contains it
        std::string caption;
        std::string value;  ///< rows only
        bool isCategory = false;
    };
    const std::vector<Item>& items() const noexcept { return items_; }

    /// Adds a category, at the top level or within another one, and returns its index. A parent that is not a
    /// category raises std::out_of_range.
    std::size_t addCategory(std::string caption, std::optional<std::size_t> parent = std::nullopt);
    /// Adds a row to a category. An index that is not that of a category raises std::out_of_range.
    void addRow(std::size_t category, std::string caption, std::string value);
    void clear();
    /// How often the grid was cleared. The front end compares it to tell replaced items from added ones.
    int clearings() const noexcept { return clearings_; }

  private:
    void requireCategory(std::size_t index) const;

    std::vector<Item> items_;
    int clearings_ = 0;
};

}  // namespace tsln
