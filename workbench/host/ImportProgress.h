#pragma once

#include <chrono>
#include <string>

#include "automation/Object.h"

namespace tsln::workbench {

/// The controls of a screen that show an import: a label and a progress bar, both of which may be missing. A control that
/// raises an error is not used any more.
class ImportProgress {
  public:
    void setLabel(ObjectPtr label) { label_ = std::move(label); }
    void setBar(ObjectPtr bar) { bar_ = std::move(bar); }
    const ObjectPtr& label() const noexcept { return label_; }
    const ObjectPtr& bar() const noexcept { return bar_; }

    void begin(const std::string& section, std::size_t records);
    /// Shows the number of records that are done, at most twenty times a second.
    void advance(std::size_t done);

  private:
    static void set(ObjectPtr& control, std::string_view property, const Variant& value);

    ObjectPtr label_, bar_;
    std::chrono::steady_clock::time_point shown_{};
};

}  // namespace tsln::workbench
