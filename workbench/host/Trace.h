#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/Object.h"

namespace tsln::workbench {

/// One late-bound call between module and host, told when it has ended.
struct TraceEntry {
    std::uint64_t number = 0;  ///< in the order the calls began, from 1
    int depth = 0;             ///< how many traced calls it was made within
    std::string member;        ///< "Database.ExecuteRead", "ShowMessageStyle1"
    Access access = Access::Call;
    bool fetch = false;     ///< nothing but the fetching of a sub-object
    std::string arguments;  ///< in short
    std::string statement;  ///< the statement among the arguments, in full; empty when there is none
    std::string result;     ///< in short; what was raised when it failed
    bool failed = false;
    std::chrono::microseconds duration{};
};

/// Gives every observer each call that passes through a TracedObject of this tracer. Not for two threads.
class Tracer {
  public:
    using Observer = std::function<void(const TraceEntry&)>;
    /// What an observer throws is lost: a trace must not change what happens.
    void observe(Observer observer) { observers_.push_back(std::move(observer)); }

  private:
    friend class TracedObject;
    void tell(const TraceEntry& entry) const noexcept;

    std::vector<Observer> observers_;
    std::uint64_t calls_ = 0;
    int depth_ = 0;
};

/// An object that passes every call on to another and tells of it. Sub-objects, which are read without
/// arguments, come back traced, too; other results, such as documents, are handed through.
class TracedObject : public Object {
  public:
    /// `name` is the object's name in traces; empty for the shared-code object.
    TracedObject(ObjectPtr target, std::string name, std::shared_ptr<Tracer> tracer)
        : target_(std::move(target)), name_(std::move(name)), tracer_(std::move(tracer)) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    ObjectPtr target_;
    std::string name_;
    std::shared_ptr<Tracer> tracer_;
};

}  // namespace tsln::workbench
