#pragma once

#include <functional>
#include <stdexcept>
#include <string>

#include <pugixml.hpp>

#include "workbench/company/Company.h"
#include "workbench/host/ReferencedRows.h"

namespace tsln::workbench {

/// A section that cannot be imported. what() is a sentence for the event log.
class ImportError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What an import has written.
struct ImportedRecords {
    std::size_t added = 0, updated = 0;
    bool cancelled = false;

    std::size_t count() const noexcept { return added + updated; }
};

/// How a section is imported.
struct ImportManner {
    /// For an upgrade from version 4.2: receives the rows, and resolves references to rows of earlier sections.
    UpgradedRows* upgrade = nullptr;
    /// Called after each record with the number of those done. False ends the import.
    std::function<bool(std::size_t done)> goOn{};
};

/// Writes the records of one section to the table of its list: a row with the same name is updated, other records are
/// inserted. The last of several records with one name counts, unless the list allows equal names. A referenced name
/// must exist in this company.
///
/// Identifiers and dates of change are never imported. A new row gets the identity in the file unless another row has
/// it.
///
/// In an upgrade, a record belongs to the row with its identity, or else to one with its name whose identity does not
/// occur in the file. Dates of change are imported into tables that have them.
///
/// Must be called within a transaction. Throws ImportError or SqlError.
ImportedRecords importSection(Company& company, pugi::xml_node section, const ImportManner& manner = {});

}  // namespace tsln::workbench
