#include "com/edge/ReceivedArguments.h"

#include "com/edge/Conversion.h"
#include "com/edge/Failure.h"

namespace tsln::com {

ReceivedArguments::ReceivedArguments(const DISPPARAMS& parameters) {
    const bool isPut = parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    if (parameters.cNamedArgs > 0 && !isPut)
        throw HostError(DISP_E_NONAMEDARGS, "Automation", textOf(DISP_E_NONAMEDARGS));
    for (UINT i = parameters.cArgs; i-- > 0;)  // the last argument comes first
        add(parameters.rgvarg[i], fromCom(parameters.rgvarg[i]));
}

void ReceivedArguments::add(const VARIANT& passed, Variant value) {
    if (!V_ISBYREF(&passed)) {
        arguments_.emplace_back(std::move(value));
        return;
    }
    Variable& variable = variables_.emplace_back(Variable{passed, value, value});
    arguments_.push_back(Argument::byReference(variable.value));
}

void ReceivedArguments::writeBack() {
    std::deque<Assignment> assignments;
    for (const Variable& variable : variables_) {
        if (variable.value != variable.before) assignments.emplace_back(variable.reference, variable.value);
    }
    for (Assignment& assignment : assignments)
        assignment.carryOut();
}

}  // namespace tsln::com
