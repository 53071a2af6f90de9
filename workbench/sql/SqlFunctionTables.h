#pragma once

#include <span>

struct sqlite3_context;
struct sqlite3_value;

namespace tsln::workbench {

/// A function to register with SQLite: a scalar one has `function`, an aggregate has `step` and `final`.
struct SqlFunctionEntry {
    const char* name;
    int arguments;  ///< -1 for any number
    void (*function)(sqlite3_context*, int, sqlite3_value**) = nullptr;
    void (*step)(sqlite3_context*, int, sqlite3_value**) = nullptr;
    void (*final)(sqlite3_context*) = nullptr;
    bool deterministic = true;
};

/// Arithmetic and conversions to numbers.
std::span<const SqlFunctionEntry> sqlNumberFunctions();
/// Text functions and the conversion to text.
std::span<const SqlFunctionEntry> sqlTextFunctions();
/// Date arithmetic and the conversions to dates.
std::span<const SqlFunctionEntry> sqlDateFunctions();

}  // namespace tsln::workbench
