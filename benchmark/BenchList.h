#pragma once

#include <string>

#include "maintenance/ListScreen.h"

namespace tsln::bench {

/// A list screen whose steps can be called and timed.
class BenchList : public ListScreen {
  public:
    using ListScreen::ListScreen;
    using ListScreen::loadList;

    /// Replaces the list's own statement; empty: the list's own.
    std::string statement;
    std::string loadStatement() const override {
        return statement.empty() ? ListScreen::loadStatement() : statement;
    }
};

}  // namespace tsln::bench
