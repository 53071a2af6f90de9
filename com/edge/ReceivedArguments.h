#pragma once

#include <deque>
#include <vector>

#include "automation/Object.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// The arguments of one call from the outside, in their order, for as long as the call lasts. Variables that the
/// caller passed by reference are written by writeBack() and stay as they were until then.
class ReceivedArguments {
  public:
    ReceivedArguments() = default;
    /// The arguments of a late-bound call. Named arguments other than a property's new value raise
    /// HostError(DISP_E_NONAMEDARGS).
    explicit ReceivedArguments(const DISPPARAMS& parameters);

    /// Appends an argument. `value` is what the callee reads: the value that `passed` holds or refers to, converted
    /// if need be. A variable that `passed` refers to must outlive this.
    void add(const VARIANT& passed, Variant value);

    Arguments arguments() { return Arguments(arguments_); }
    /// Writes the changed variables, each converted to its own type. Raises HostError where one does not convert;
    /// no variable is written then.
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
