#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "bridge/Library.h"
#include "lists/ListScreen.h"
#include "lists/Lists.h"
#include "tests/support/QuietDesktop.h"
#include "workbench/host/CompanySession.h"

namespace tsln::bench {

/// A company file of the workbench with many rows, in memory where the machine has files there, and the
/// session that the module's library works with. It goes with the object.
class BenchCompany {
  public:
    /// Fills the terms and the customers with so many rows each, in place of the demonstration's.
    BenchCompany(std::size_t terms, std::size_t customers);
    ~BenchCompany();

    const std::string& file() const noexcept { return file_; }
    workbench::CompanySession& session() noexcept { return *session_; }

  private:
    /// Answers every message.
    class Ui : public workbench::HostUi {
        workbench::Reply showMessage(const workbench::Message&) override { return {}; }
    };
    Ui ui_;
    std::filesystem::path folder_;
    std::string file_;
    std::unique_ptr<workbench::CompanySession> session_;
};

/// A list screen whose work can be called and timed.
class BenchList : public lists::ListScreen {
  public:
    using lists::ListScreen::ListScreen;
    using lists::ListScreen::loadList;

    /// What is read in place of the list's own statement; empty: that one.
    std::string statement;
    std::string loadStatement() const override {
        return statement.empty() ? ListScreen::loadStatement() : statement;
    }
};

}  // namespace tsln::bench
