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

/// Writes the records of one section into the table of its list: a row of the same name is updated, others
/// are inserted; of a name that stands twice, the last counts, unless the list's rows may be alike. What a
/// column names must stand in this company.
///
/// Identifiers and dates of change are never taken over; the identity across companies is, for a new row, as
/// long as no other row has it. To be called within a transaction. Returns the number of records. Throws
/// ImportError, SqlError.
std::size_t importSection(Company& company, pugi::xml_node section);

}  // namespace tsln::workbench
