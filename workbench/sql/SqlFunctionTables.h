#pragma once

#include <span>

struct sqlite3_context;
struct sqlite3_value;

namespace tsln::workbench {

/// A function as SQLite is told of it: a plain one with `function`, an aggregate with `step` and `final`.
struct SqlFunctionEntry {
    const char* name;
    int arguments;  ///< -1 for any number
    void (*function)(sqlite3_context*, int, sqlite3_value**) = nullptr;
    void (*step)(sqlite3_context*, int, sqlite3_value**) = nullptr;
    void (*final)(sqlite3_context*) = nullptr;
    bool deterministic = true;
};

/// Arithmetic, and conversions to numbers.
std::span<const SqlFunctionEntry> sqlNumberFunctions();
/// Functions that give texts or look into them, and the conversion to text.
std::span<const SqlFunctionEntry> sqlTextFunctions();
/// Calculating with dates, and the conversions to them.
std::span<const SqlFunctionEntry> sqlDateFunctions();

}  // namespace tsln::workbench
