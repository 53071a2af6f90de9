#pragma once

#include "automation/HostError.h"
#include "com/edge/Platform.h"

namespace tsln::com {

/// The platform's own words for a result code, or its number where it has none.
std::string textOf(HRESULT result);

/// What an object told of the error that ended a call; takes the texts over and leaves `told` empty.
HostError errorOf(HRESULT result, EXCEPINFO& told, const std::string& member);

/// Tells the running exception, as guarded() does.
HRESULT tellException(EXCEPINFO* told) noexcept;

/// Runs `call`, which answers a result code, and lets no C++ exception out: a failure is told to the caller
/// by `told` where that is given (late-bound calls), else by the thread's error object.
HRESULT guarded(const auto& call, EXCEPINFO* told) noexcept {
    try {
        return call();
    } catch (...) {
        return tellException(told);
    }
}

}  // namespace tsln::com
