#pragma once

#include "automation/Object.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {

/// The rows of a statement as the platform's database objects show them, read whole: "EOF", "BOF",
/// "MoveFirst", "MoveNext", "MovePrevious", "MoveLast", "RecordCount", "State" (1 open, 0 closed), "Close"
/// and "Fields" with "Count", "Item" (name or index from 0); a field has "Name" and "Value", which follows
/// the row the recordset stands on. Texts, numbers and Null only: a date is its text.
///
/// A statement that gives no rows makes a closed recordset. Misuse raises HostError with the platform's
/// numbers: 3021 no current row, 3265 no such field, 3704 closed.
ObjectPtr makeRecordset(SqlResult result);

}  // namespace tsln::workbench
