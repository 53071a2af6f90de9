#include "com/server/LateCall.h"

#include "com/edge/Conversion.h"

namespace tsln::com {

ReceivedArguments sortArguments(const OperationInfo& row, const DISPPARAMS& parameters) {
    if (parameters.cArgs > row.argumentCount) throw WrongArgument{DISP_E_BADPARAMCOUNT, 0};
    if (parameters.cNamedArgs > parameters.cArgs) throw WrongArgument{E_INVALIDARG, 0};
    std::vector<Variant> values(row.argumentCount, Variant(Missing()));
    std::vector<const VARIANT*> passed(row.argumentCount);
    for (UINT i = 0; i < parameters.cArgs; ++i) {
        // Named arguments come first in the list; the others follow in reverse order.
        const DISPID at = i < parameters.cNamedArgs ? parameters.rgdispidNamedArgs[i]
                                                    : static_cast<DISPID>(parameters.cArgs - 1 - i);
        if (at < 0 || static_cast<std::size_t>(at) >= values.size())
            throw WrongArgument{DISP_E_PARAMNOTFOUND, i};
        Variant& value = values[static_cast<std::size_t>(at)];
        if (!value.isMissing()) throw WrongArgument{DISP_E_BADPARAMCOUNT, i};  // given twice
        passed[static_cast<std::size_t>(at)] = &parameters.rgvarg[i];
        try {
            value = fromCom(parameters.rgvarg[i]);
            if (!value.isMissing())
                value = convert(value, row.argumentRow[static_cast<std::size_t>(at)].type);
        } catch (const HostError& error) {
            throw WrongArgument{error.code(), i};
        }
    }
    ReceivedArguments sorted;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i].isMissing()) throw WrongArgument{DISP_E_PARAMNOTOPTIONAL, static_cast<UINT>(i)};
        sorted.add(*passed[i], std::move(values[i]));
    }
    return sorted;
}

}  // namespace tsln::com
