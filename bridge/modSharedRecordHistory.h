#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "automation/Variant.h"

/// Describes what an edit changed in a record: snapshots of the row before and after the edit are compared, and the
/// differences become lines for the activity history. Nothing here throws or prevents an edit; a difference that
/// cannot be determined is left out.
namespace tsln::modSharedRecordHistory {

/// A document with the root "RecordContents" and one "Field" element per column. Null means "nothing".
///
/// In a snapshot a field has its column's name as "Name" and the value as text; in a comparison, the column's name as
/// "Name" and the values as "Before" and "After". Line ends in values are the texts "&#13;" and "&#10;".
using Document = std::unique_ptr<pugi::xml_document>;

/// Returns the current row of the table. `connection` is the company's open connection. Returns null for a null
/// connection, a missing row and a row that cannot be read.
Document takeSnapshot(std::string_view table, std::int32_t ID, const ObjectPtr& connection) noexcept;

/// Returns the fields that differ; null when either snapshot is null.
Document compare(const Document& before, const Document& after) noexcept;

/// Returns one line per changed field, such as "Contact: Ivo to Edda", separated by carriage return and line feed;
/// empty when nothing changed. Bookkeeping columns are left out; some columns and values have a display form.
/// `sharedCode` is the host, asked for the names of other records; it may be null.
std::string describeChanges(const Document& comparison, std::string_view table,
                            const ObjectPtr& sharedCode) noexcept;

}  // namespace tsln::modSharedRecordHistory
