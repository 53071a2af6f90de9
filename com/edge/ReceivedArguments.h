#pragma once

#include <deque>
#include <vector>

#include "automation/Object.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// The arguments of one call that came by COM, in their order. Exists as long as the call. The caller's
/// variables are written by writeBack() and not before.
class ReceivedArguments {
  public:
    ReceivedArguments() = default;
    /// The arguments of a late-bound call. Named arguments other than a property's new value raise
    /// HostError(DISP_E_NONAMEDARGS).
    explicit ReceivedArguments(const DISPPARAMS& parameters);

    /// Appends an argument. `value` is the value of `passed`, possibly converted, which the callee reads. A
    /// variable that `passed` refers to must outlive this.
    void add(const VARIANT& passed, Variant value);

    Arguments arguments() { return Arguments(arguments_); }
    /// Writes the values that the call has changed to the caller's variables, converted to their types. If
    /// one does not convert, raises HostError and writes none.
    void writeBack();

  private:
    struct Variable {
        VARIANT reference;  // not owned
        Variant value;
        Variant before;
    };
    std::deque<Variable> variables_;  // arguments_ refers to its elements
    std::vector<Argument> arguments_;
};

}  // namespace tsln::com
