#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "benchmark/BenchList.h"
#include "desktop/ReportGrid.h"
#include "lists/Lists.h"

namespace tsln::bench {

/// The terms list in a real window. It records when each step was reached, and closes itself.
class WatchedList : public BenchList {
  public:
    using Clock = std::chrono::steady_clock;
    struct Moments {
        Clock::time_point started, building, built, activated, loading, loaded, drawn;
        double seconds(Clock::time_point from, Clock::time_point to) const {
            return std::chrono::duration<double>(to - from).count();
        }
        double total() const { return seconds(started, drawn); }
        double data() const { return seconds(loading, loaded); }
    };

    /// Only rows with an `ID` up to `mostID` are read.
    WatchedList(Library& library, std::optional<std::size_t> mostID) : BenchList(library, lists::termsList) {
        if (mostID)
            statement = "SELECT * FROM Terms WHERE ID <= " + std::to_string(*mostID) + " ORDER BY Terms";
    }

    /// Opens the list, calls `whileOpen` once its rows are drawn, and closes it.
    static Moments open(Library& library, std::optional<std::size_t> mostID,
                        const std::function<void(desktop::ReportGrid&)>& whileOpen = nullptr);

    Layout layout() override;

  protected:
    void Form_Activate() override;
    std::string loadStatement() const override;
    void listLoaded() override;
    void welcome() override {}  // no user is there to answer

  private:
    mutable Moments moments_;
    bool loaded_ = false;
};

}  // namespace tsln::bench
