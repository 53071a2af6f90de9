#pragma once

#include "automation/Object.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {

/// Creates a recordset of a statement's rows, with the members of the platform's database objects: "EOF", "BOF",
/// "MoveFirst", "MoveNext", "MovePrevious", "MoveLast", "RecordCount", "State" (1 open, 0 closed), "Close" and
/// "Fields" with "Count" and "Item" (name or index from 0). A field has "Name" and "Value", the value in the current
/// row: a text, a number or Null; a date is a text. All rows are in memory.
///
/// A statement without rows creates a closed recordset. Misuse raises HostError with the platform's codes: 3021 no
/// current row, 3265 no such field, 3704 closed.
ObjectPtr makeRecordset(SqlResult result);

}  // namespace tsln::workbench
