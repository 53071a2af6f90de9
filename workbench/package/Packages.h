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
    using Fields = std::vector<Field>;
    /// A row of another table that belongs to a record.
    struct Part {
        std::string table;
        std::string ownerColumn;  ///< gets the key of the record
        Fields fields;
    };
    struct Record {
        Fields fields;
        std::vector<Part> parts;
    };

    std::string key;    ///< for example "TSLN50_Terms"
    std::string title;  ///< in messages: "terms"
    std::string table;
    std::string nameColumn;  ///< the column that identifies a record
    std::vector<Record> records;
};

/// Returns the sets built into the program, ordered by key.
std::vector<Package> loadPackages();

/// Finds a set by its key, without letter case. Returns null when there is none.
const Package* findPackage(const std::vector<Package>& packages, std::string_view key);

struct InstallResult {
    int added = 0, skipped = 0;
};

/// Adds the set's records whose names the list lacks, with their parts, and an entry in the event log, in one transaction. `progress`
/// is called after each record with the number of processed records. Throws SqlError; the company is unchanged then.
InstallResult installPackage(Company& company, const Package& package,
                             const std::function<void(int)>& progress);

}  // namespace tsln::workbench
