#pragma once

#include "automation/HostError.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// The platform's text for a result code, or a text with its number if there is none.
std::string textOf(HRESULT result);

/// The error of a failed IDispatch::Invoke, made from its result and the EXCEPINFO. Frees the texts of
/// `told`.
HostError errorOf(HRESULT result, EXCEPINFO& told, const std::string& member);

/// Reports the exception that is being handled, as guarded() does.
HRESULT tellException(EXCEPINFO* told) noexcept;

/// Returns the result code of `call`, and lets no C++ exception out: an exception becomes a result code, with
/// source and text in `told` if that is given (late-bound calls), else in the thread's error object.
HRESULT guarded(const auto& call, EXCEPINFO* told) noexcept {
    try {
        return call();
    } catch (...) {
        return tellException(told);
    }
}

}  // namespace tsln::com
