#pragma once

#include <string>

#include "maintenance/ListScreen.h"

namespace tsln::bench {

/// A list screen whose work can be called and timed.
class BenchList : public ListScreen {
  public:
    using ListScreen::ListScreen;
    using ListScreen::loadList;

    /// What is read in place of the list's own statement; empty: that one.
    std::string statement;
    std::string loadStatement() const override {
        return statement.empty() ? ListScreen::loadStatement() : statement;
    }
};

}  // namespace tsln::bench
