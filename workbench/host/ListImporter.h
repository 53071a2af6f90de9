#pragma once

#include <stdexcept>
#include <string>

#include <pugixml.hpp>

#include "workbench/company/Company.h"

namespace tsln::workbench {

/// A section that cannot be imported. what() is a sentence for the event log.
class ImportError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Writes the records of one section to the table of its list: a row with the same name is updated, other records are
/// inserted. The last of several records with one name counts, unless the list allows equal names. A referenced name
/// must exist in this company.
///
/// Identifiers and dates of change are never imported. A new row gets the identity in the file unless another row has
/// it. Must be called within a transaction. Returns the number of records. Throws ImportError or SqlError.
std::size_t importSection(Company& company, pugi::xml_node section);

}  // namespace tsln::workbench
