#include "workbench/package/Packages.h"

#include <algorithm>
#include <stdexcept>

#include <pugixml.hpp>

#include "automation/EmbeddedFile.h"
#include "workbench/sql/SqlText.h"
#include "workbench/sql/TextOrder.h"

namespace tsln::workbench {

std::span<const EmbeddedFile> packageFiles();

namespace {

/// Each row holds its fields as attributes.
void readParts(pugi::xml_node parts, Package::Record& record) {
    for (pugi::xml_node row : parts.children("Row")) {
        Package::Part& part = record.parts.emplace_back(parts.attribute("table").value(),
                                                        parts.attribute("owner").value(), Package::Fields());
        for (pugi::xml_attribute field : row.attributes())
            part.fields.push_back({field.name(), field.value()});
    }
}

Package readPackage(std::string_view text) {
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size())) throw std::logic_error("A package cannot be read.");
    pugi::xml_node root = document.child("Package");
    Package package{root.attribute("key").value(),
                    root.attribute("title").value(),
                    root.attribute("table").value(),
                    root.attribute("name").value(),
                    {}};
    for (pugi::xml_node row : root.children("Record")) {
        Package::Record record;
        for (pugi::xml_node field : row.children()) {
            if (std::string_view(field.name()) == "Parts") {
                readParts(field, record);
            } else {
                record.fields.push_back({field.name(), field.child_value()});
            }
        }
        package.records.push_back(std::move(record));
    }
    return package;
}

bool exists(Company& company, const Package& package, const Package::Record& record) {
    auto name = std::ranges::find(record.fields, package.nameColumn, &Package::Field::column);
    if (name == record.fields.end()) throw std::logic_error("A record of " + package.key + " has no name.");
    Variant count = company.scalar("SELECT COUNT(*) AS theCount FROM " + bracketed(package.table) +
                                   " WHERE " + bracketed(package.nameColumn) + " = " + literal(name->value));
    return count != Variant(std::int32_t(0));
}

void insert(Company& company, std::string_view table, const Package::Fields& fields) {
    std::string columns, values;
    for (const auto& [column, value] : fields) {
        columns += (columns.empty() ? "" : ", ") + bracketed(column);
        values += (values.empty() ? "" : ", ") + literal(value);
    }
    company.execute("INSERT INTO " + bracketed(table) + " (" + columns + ") VALUES (" + values + ")");
}

void insert(Company& company, const Package& package, const Package::Record& record) {
    insert(company, package.table, record.fields);
    const std::string owner = std::to_string(company.lastInsertId());
    for (Package::Part part : record.parts) {
        part.fields.push_back({part.ownerColumn, owner});
        insert(company, part.table, part.fields);
    }
}

}  // namespace

std::vector<Package> loadPackages() {
    std::vector<Package> packages;
    for (const EmbeddedFile& file : packageFiles())
        packages.push_back(readPackage(file.text));
    std::ranges::sort(packages, {}, &Package::key);
    return packages;
}

const Package* findPackage(const std::vector<Package>& packages, std::string_view key) {
    auto found =
        std::ranges::find_if(packages, [&](const Package& p) { return compareText(p.key, key) == 0; });
    return found == packages.end() ? nullptr : &*found;
}

InstallResult installPackage(Company& company, const Package& package,
                             const std::function<void(int)>& progress) {
    InstallResult result;
    company.transaction([&] {
        for (const Package::Record& record : package.records) {
            if (exists(company, package, record)) {
                ++result.skipped;
            } else {
                insert(company, package, record);
                ++result.added;
            }
            progress(result.added + result.skipped);
        }
        company.execute("INSERT INTO EventLog (EventType, EventText, Source) VALUES (2, " +
                        literal("Default " + package.title + " installed (" + package.key +
                                "): " + std::to_string(result.added) + " added, " +
                                std::to_string(result.skipped) + " already there.") +
                        ", 'Package processor')");
    });
    return result;
}

}  // namespace tsln::workbench
