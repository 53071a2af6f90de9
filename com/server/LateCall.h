#pragma once

#include "bridge/Operations.h"
#include "com/edge/ReceivedArguments.h"

namespace tsln::com {

/// Thrown for a wrong argument of a late-bound call.
struct WrongArgument {
    HRESULT error;
    UINT place;  ///< in the caller's list, from 0
};

/// The arguments of a late-bound call to an operation, in the order and with the types of the operation
/// table. The caller's variables must outlive the result. Throws WrongArgument with
/// - DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW for an argument that does not convert,
/// - DISP_E_BADPARAMCOUNT for a surplus argument and for one that is given twice,
/// - DISP_E_PARAMNOTOPTIONAL for one that is left out,
/// - DISP_E_PARAMNOTFOUND for a named argument that the operation does not have.
ReceivedArguments sortArguments(const OperationInfo& row, const DISPPARAMS& parameters);

}  // namespace tsln::com
