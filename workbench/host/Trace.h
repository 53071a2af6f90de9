#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/Object.h"

namespace tsln::workbench {

/// One late-bound call between module and host, recorded when it has ended.
struct TraceEntry {
    std::uint64_t number = 0;  ///< in the order of the calls' beginnings, from 1
    int depth = 0;             ///< the number of traced calls that enclose it
    std::string member;        ///< "Database.ExecuteRead", "ShowMessageStyle1"
    Access access = Access::Call;
    bool fetch = false;     ///< only fetches a sub-object
    std::string arguments;  ///< shortened
    std::string statement;  ///< the complete statement among the arguments; empty when there is none
    std::string result;     ///< shortened; the error when the call failed
    bool failed = false;
    std::chrono::microseconds duration{};
};

/// Reports every call through a TracedObject of this tracer to all observers. Not thread-safe.
class Tracer {
  public:
    using Observer = std::function<void(const TraceEntry&)>;
    /// Exceptions of an observer are ignored: a trace must not change the traced call.
    void observe(Observer observer) { observers_.push_back(std::move(observer)); }

  private:
    friend class TracedObject;
    void tell(const TraceEntry& entry) const noexcept;

    std::vector<Observer> observers_;
    std::uint64_t calls_ = 0;
    int depth_ = 0;
};

/// An object that forwards every call to another object and reports it. Sub-objects, which are read without
/// arguments, are returned traced; other results, such as documents, are returned unchanged.
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
