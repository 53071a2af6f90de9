#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "automation/Variant.h"

/// What an edit changed in a record, told field by field: the row is taken down before and after, the two are
/// compared, and the differences become lines for the activity history. Nothing here throws or keeps an edit
/// from being done: what cannot be found out is not told.
namespace tsln::modSharedRecordHistory {

/// A document with the root "RecordContents" and a "Field" element a column. Null is "nothing".
///
/// In a snapshot a field has its column as "Name" and its value as text; in a comparison the name, and the
/// value as "Before" and "After". Line ends in values are "&#13;" and "&#10;" texts.
using Document = std::unique_ptr<pugi::xml_document>;

/// The row as it stands in the table. `connection` is the company's open connection; nothing, a row that is
/// not there and one that cannot be read give nothing.
Document takeSnapshot(std::string_view table, std::int32_t ID, const ObjectPtr& connection) noexcept;

/// The fields that differ; nothing when either snapshot is.
Document compare(const Document& before, const Document& after) noexcept;

/// A line a changed field, such as "Contact: Ivo to Edda", with a carriage return and line feed between;
/// empty when there is nothing to tell. Bookkeeping columns are left out, some columns and values have a
/// display form. `sharedCode` is the host, asked for the names of other records; it may be nothing.
std::string describeChanges(const Document& comparison, std::string_view table,
                            const ObjectPtr& sharedCode) noexcept;

}  // namespace tsln::modSharedRecordHistory
