#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/company/Company.h"

namespace tsln::workbench {

/// A set of default records for one list.
struct Package {
    struct Field {
        std::string column, value;
    };
    using Record = std::vector<Field>;

    std::string key;    ///< such as "TSLN50_Terms"
    std::string title;  ///< for messages: "terms"
    std::string table;
    std::string nameColumn;  ///< what tells one record from another
    std::vector<Record> records;
};

/// The sets that came with the program, in order of their keys.
std::vector<Package> loadPackages();

/// The set of this key, whose letter case does not matter; null when there is none.
const Package* findPackage(const std::vector<Package>& packages, std::string_view key);

struct InstallResult {
    int added = 0, skipped = 0;
};

/// Adds the set's records whose names the list does not have yet, and a line to the event log, in one
/// transaction. `progress` is called after each record with the number done. Throws SqlError, with the
/// company as it was.
InstallResult installPackage(Company& company, const Package& package,
                             const std::function<void(int)>& progress);

}  // namespace tsln::workbench
