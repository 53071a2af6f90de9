#pragma once

#include "bridge/Host.h"

namespace tsln {

/// An object of the host that is told by "PreTerminate" when the module no longer needs it.
class Terminated {
  public:
    /// Raises HostError when there is no object.
    explicit Terminated(ObjectPtr object) : object_(std::move(object)) {
        if (!object_) throw HostError(code::objectNotSet, "Library", "The component could not be created.");
    }
    ~Terminated() {
        try {
            object_->call("PreTerminate");
        } catch (const std::exception&) {
            // The object has done its work or failed; a failure to terminate it changes neither.
        }
    }
    Terminated(const Terminated&) = delete;
    Terminated& operator=(const Terminated&) = delete;
    Object* operator->() const { return object_.get(); }

  private:
    ObjectPtr object_;
};

/// A component of the host that is given the shared-code object at first.
class Component : public Terminated {
  public:
    /// Raises HostError when there is no component or it does not take the shared-code object.
    Component(ObjectPtr component, const Host& host) : Terminated(initialized(std::move(component), host)) {}

  private:
    static ObjectPtr initialized(ObjectPtr component, const Host& host) {
        if (component) component->call("Initialize", host.sharedCode());
        return component;
    }
};

}  // namespace tsln
