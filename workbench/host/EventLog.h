#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "workbench/company/Company.h"

namespace tsln::workbench {

/// The company's event log, the table EventLog.
class EventLog {
  public:
    enum Type : std::int32_t { Error = 1, Notice = 2, Warning = 3 };

    /// `company` must outlive the log. `userName` is written to every entry.
    EventLog(Company& company, std::string userName) : company_(company), userName_(std::move(userName)) {}

    /// Writes an entry. When the company is locked or read-only, the entry is kept, up to the latest hundred, and
    /// written before the next one. Throws no database errors.
    void record(std::int32_t type, std::string_view text, std::string_view source = {});

    /// The number of entries that are not written yet.
    std::size_t waiting() const noexcept { return waiting_.size(); }

  private:
    Company& company_;
    std::string userName_;
    std::deque<std::string> waiting_;  // INSERT statements
};

}  // namespace tsln::workbench
