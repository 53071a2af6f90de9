#pragma once

#include <functional>
#include <string>

#include "doubles/TempFolder.h"
#include "workbench/host/CompanySession.h"

namespace tsln::bench {

/// Inserts rows into a table with its columns, "Terms (Terms, DueDays)". `row` returns the values of each row, from 0, as SQL
/// text.
void insertRows(workbench::Company& company, const std::string& into, std::size_t rows,
                const std::function<std::string(std::size_t)>& row);

/// A company file of the workbench with many rows, in a memory file system where there is one, and a session for the
/// module's library. The destructor deletes the file.
class BenchCompany {
  public:
    /// Replaces the demonstration's terms and customers by so many rows.
    BenchCompany(std::size_t terms, std::size_t customers);

    const std::string& file() const noexcept { return file_; }
    workbench::CompanySession& session() noexcept { return session_; }

  private:
    /// Answers every message, questions with Yes.
    class Ui : public workbench::HostUi {
        workbench::Reply showMessage(const workbench::Message& message) override {
            return {.answer =
                        message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok};
        }
    };
    Ui ui_;
    test::TempFolder folder_;
    std::string file_ = folder_.file("bench.company");
    workbench::CompanySession session_{file_, "admin", ui_};
};

}  // namespace tsln::bench
