#pragma once

#include "bridge/Host.h"

namespace tsln::entities {

/// Runs a statement on the company's connection. `make` returns it and may raise HostError. Returns false when that or
/// the statement failed.
template <class Make>
bool runOnConnection(const Host& host, Make make) {
    try {
        host.companyConnection().Execute(make());
        return true;
    } catch (const std::exception&) {
        return false;  // the caller reports it, once for a group of statements
    }
}

}  // namespace tsln::entities
