#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// A list in columns of which any number of entries can be ticked.
class CheckList : public Control {
  public:
    CheckList(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    struct Column {
        std::string caption;
        int width = 100;  ///< pixels at 96 per inch
        bool rightAligned = false;
    };
    std::vector<Column> columns;  ///< set before the screen is shown

    struct Entry {
        std::vector<std::string> cells;  ///< one per column
        std::int32_t itemData = 0;
        bool ticked = false;
    };
    const std::vector<Entry>& entries() const noexcept { return entries_; }
    void addEntry(Entry entry);
    void clear();
    /// An index that does not exist raises std::out_of_range.
    void setTicked(std::size_t index, bool ticked);

    std::function<void()> onClick;  ///< an entry was ticked or cleared
    void userTick(std::size_t index, bool ticked);

  private:
    std::vector<Entry> entries_;
};

}  // namespace tsln
