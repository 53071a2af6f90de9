#include "workbench/host/OptionStore.h"

#include "workbench/sql/SqlText.h"

namespace tsln::workbench {
namespace {

const char* table(OptionStore::Owner owner) {
    return owner.employee == 0 ? "CompanyOptions" : "UserOptions";
}

std::string ofOwner(OptionStore::Owner owner) {
    return owner.employee == 0 ? "" : "EmployeeID = " + std::to_string(owner.employee) + " AND ";
}

std::string condition(OptionStore::Owner owner, OptionStore::Key key) {
    const std::string name = literal(key.name);
    if (key.section.empty()) return ofOwner(owner) + "OptionName = " + name;
    const std::string section = literal(key.section);
    return ofOwner(owner) + "((OptionName = " + name + " AND Section = " + section +
           ") OR (OptionName = " + section + " AND Section = " + name + "))";
}

}  // namespace

std::optional<std::string> OptionStore::get(Owner owner, Key key) {
    const Variant value = company_.scalar("SELECT TOP 1 OptionValue FROM " + std::string(table(owner)) +
                                          " WHERE " + condition(owner, key) + " ORDER BY ID");
    if (value.isEmpty() || value.isNull()) return std::nullopt;
    return value.toText();
}

void OptionStore::set(Owner owner, Key key, std::string_view value) {
    const std::string options = table(owner);
    if (company_.execute("UPDATE " + options + " SET OptionValue = " + literal(value) + " WHERE " +
                         condition(owner, key)) > 0) {
        return;
    }
    const bool user = owner.employee != 0;
    company_.execute("INSERT INTO " + options + " (" + (user ? "EmployeeID," : "") +
                     "OptionName,Section,OptionValue) VALUES(" +
                     (user ? std::to_string(owner.employee) + ", " : "") + literal(key.name) + ", " +
                     literal(key.section) + ", " + literal(value) + ")");
}

}  // namespace tsln::workbench
