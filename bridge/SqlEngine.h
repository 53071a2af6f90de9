#pragma once

#include "bridge/Host.h"

namespace tsln {

/// The host's SQL engine, an object of its own beside the database service. It is terminated at the end.
class SqlEngine {
  public:
    /// Raises HostError where the host has no SQL engine.
    explicit SqlEngine(const Host& host) : engine_(host.sharedCode()->get("TSLNSQL").toObject()) {
        if (!engine_) throw HostError(code::objectNotSet, "Library", "The host has no SQL engine.");
    }
    ~SqlEngine() {
        try {
            engine_->call("PreTerminate");
        } catch (const std::exception&) {
            // All values that were needed have been read.
        }
    }
    SqlEngine(const SqlEngine&) = delete;
    SqlEngine& operator=(const SqlEngine&) = delete;

    /// Returns the first column of the first row. May raise HostError.
    Variant ExecuteScaler(std::string_view sql) const { return engine_->call("ExecuteScaler", sql); }
    /// Returns true when the statement succeeded. May raise HostError.
    bool ExecuteNonQuery(std::string_view sql) const {
        return engine_->call("ExecuteNonQuery", sql).toBoolean();
    }

  private:
    ObjectPtr engine_;
};

}  // namespace tsln
