#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "workbench/company/Company.h"

namespace tsln::workbench {

/// The company's log of events, the table EventLog.
class EventLog {
  public:
    enum Type : std::int32_t { Error = 1, Notice = 2, Warning = 3 };

    /// `company` must outlive the log; `userName` is who the events are put down to.
    EventLog(Company& company, std::string userName) : company_(company), userName_(std::move(userName)) {}

    /// Writes an entry. One that cannot be written now, because the company is in use or only readable, is
    /// kept and written before the next; the latest hundred are. Never throws for the database's sake.
    void record(std::int32_t type, std::string_view text, std::string_view source = {});

    /// How many entries still wait to be written.
    std::size_t waiting() const noexcept { return waiting_.size(); }

  private:
    Company& company_;
    std::string userName_;
    std::deque<std::string> waiting_;  // their statements
};

}  // namespace tsln::workbench
