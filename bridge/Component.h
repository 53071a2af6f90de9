#pragma once

#include "bridge/Host.h"

namespace tsln {

/// A component of the host, handed the shared-code object and terminated in the end.
class Component {
  public:
    /// Raises HostError when the component does not take the shared-code object.
    Component(ObjectPtr component, const Host& host) : component_(std::move(component)) {
        component_->call("Initialize", host.sharedCode());
    }
    ~Component() {
        try {
            component_->call("PreTerminate");
        } catch (const std::exception&) {
            // The work is done or has failed already; there is nothing left to tell.
        }
    }
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    Object* operator->() const { return component_.get(); }

  private:
    ObjectPtr component_;
};

}  // namespace tsln
