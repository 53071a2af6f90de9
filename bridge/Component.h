#pragma once

#include "bridge/Host.h"

namespace tsln {

/// A component of the host. It is given the shared-code object at first and terminated at the end.
class Component {
  public:
    /// Raises HostError when there is no component or it does not take the shared-code object.
    Component(ObjectPtr component, const Host& host) : component_(std::move(component)) {
        if (!component_)
            throw HostError(code::objectNotSet, "Library", "The component could not be created.");
        component_->call("Initialize", host.sharedCode());
    }
    ~Component() {
        try {
            component_->call("PreTerminate");
        } catch (const std::exception&) {
            // The component has done its work or failed; a failure to terminate it changes neither.
        }
    }
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    Object* operator->() const { return component_.get(); }

  private:
    ObjectPtr component_;
};

}  // namespace tsln
