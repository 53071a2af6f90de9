#pragma once

#include <string>

#include "doubles/TempFolder.h"
#include "workbench/host/CompanySession.h"

namespace tsln::bench {

/// A company file of the workbench with many rows, in memory where the machine has files there, and the
/// session that the module's library works with. It goes with the object.
class BenchCompany {
  public:
    /// Fills the terms and the customers with so many rows each, in place of the demonstration's.
    BenchCompany(std::size_t terms, std::size_t customers);

    const std::string& file() const noexcept { return file_; }
    workbench::CompanySession& session() noexcept { return session_; }

  private:
    /// Answers every message.
    class Ui : public workbench::HostUi {
        workbench::Reply showMessage(const workbench::Message&) override { return {}; }
    };
    Ui ui_;
    test::TempFolder folder_;
    std::string file_ = folder_.file("bench.company");
    workbench::CompanySession session_{file_, "admin", ui_};
};

}  // namespace tsln::bench
