#pragma once

#include "bridge/Operations.h"
#include "com/edge/ReceivedArguments.h"

namespace tsln::com {

/// An argument that a late-bound call passed wrongly: its error and its place in the caller's list.
struct WrongArgument {
    HRESULT error;
    UINT place;
};

/// The arguments of a late-bound call to an operation, each at its place and of its type. The caller's variables
/// must outlive them. Throws
/// WrongArgument: DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW, DISP_E_BADPARAMCOUNT for surplus ones and those given
/// twice, DISP_E_PARAMNOTOPTIONAL for those left out, DISP_E_PARAMNOTFOUND for unknown named ones.
ReceivedArguments sortArguments(const OperationInfo& row, const DISPPARAMS& parameters);

}  // namespace tsln::com
