#include "workbench/sql/SqlFunctions.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "workbench/sql/SqlFunctionTables.h"
#include "workbench/sql/TextOrder.h"

namespace tsln::workbench {

namespace {

int collate(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return compareText({static_cast<const char*>(left), std::size_t(leftSize)},
                       {static_cast<const char*>(right), std::size_t(rightSize)});
}

}  // namespace

void addSqlFunctions(SQLite::Database& database) {
    for (const auto& table : {sqlNumberFunctions(), sqlTextFunctions(), sqlDateFunctions()}) {
        for (const SqlFunctionEntry& entry : table) {
            database.createFunction(entry.name, entry.arguments, entry.deterministic, nullptr, entry.function,
                                    entry.step, entry.final);
        }
    }
    int result =
        sqlite3_create_collation_v2(database.getHandle(), "NOCASE", SQLITE_UTF8, nullptr, collate, nullptr);
    if (result != SQLITE_OK) throw SQLite::Exception(database.getHandle(), result);
}

}  // namespace tsln::workbench
