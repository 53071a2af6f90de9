#include "workbench/host/ImportProgress.h"

namespace tsln::workbench {
namespace {

constexpr std::chrono::milliseconds betweenSteps{50};

}  // namespace

void ImportProgress::set(ObjectPtr& control, std::string_view property, const Variant& value) {
    if (!control) return;
    try {
        control->put(property, value);
    } catch (const HostError&) {
        control = nullptr;
    }
}

void ImportProgress::begin(const std::string& section, std::size_t records) {
    set(label_, "Caption", "Importing: " + section);
    set(bar_, "Value", 0);
    set(bar_, "Max", static_cast<std::int32_t>(records));
    shown_ = std::chrono::steady_clock::now();
}

void ImportProgress::advance(std::size_t done) {
    const auto now = std::chrono::steady_clock::now();
    if (now - shown_ < betweenSteps) return;
    set(bar_, "Value", static_cast<std::int32_t>(done));
    shown_ = now;
}

}  // namespace tsln::workbench
