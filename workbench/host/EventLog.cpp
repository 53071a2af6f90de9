#include "workbench/host/EventLog.h"

#include "workbench/sql/SqlText.h"
#include "workbench/host/HostDate.h"

namespace tsln::workbench {
namespace {

constexpr std::size_t mostWaiting = 100;

}  // namespace

void EventLog::record(std::int32_t type, std::string_view text, std::string_view source) {
    waiting_.push_back("INSERT INTO EventLog (EventDate,EventType,EventText,Source,UserName) VALUES('" +
                       sqlDateText(nowUtc()) + "', " + std::to_string(type) + ", " + literal(text) + ", " +
                       literal(source) + ", " + literal(userName_) + ")");
    if (waiting_.size() > mostWaiting) waiting_.pop_front();
    try {
        while (!waiting_.empty()) {
            company_.execute(waiting_.front());
            waiting_.pop_front();
        }
    } catch (const SqlError&) {
        // The entries are kept until the company can be written.
    }
}

}  // namespace tsln::workbench
