#include "tests/sweep/CompanyFiles.h"

#include <fstream>
#include <sstream>

#include <SQLiteCpp/SQLiteCpp.h>

#include "doubles/TempFolder.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {

std::string contentOf(const std::string& path) {
    std::string content(std::filesystem::file_size(path), '\0');
    std::ifstream(path, std::ios::binary).read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
}

void write(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::filesystem::path fastFolder() {
    const std::filesystem::path memory = "/dev/shm";
    return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

const std::string& demonstrationFile() {
    static const std::string content = [] {
        const test::TempFolder folder("tessaline sweep ", fastFolder());
        { Company company(folder.file("test.company")); }
        return contentOf(folder.file("test.company"));
    }();
    return content;
}

void prepare(const std::string& path, std::string_view statements) {
    if (statements.empty()) return;
    Company company(path);
    std::istringstream lines{std::string(statements)};
    for (std::string statement; std::getline(lines, statement, ';');)
        company.execute(statement);
}

std::string faultsOf(const std::string& path) {
    std::string faults;
    SQLite::Database database(path, SQLite::OPEN_READONLY);
    for (const char* check : {"PRAGMA integrity_check", "PRAGMA foreign_key_check"}) {
        SQLite::Statement rows(database, check);
        while (rows.executeStep())
            if (rows.getColumn(0).getString() != "ok") faults += rows.getColumn(0).getString() + "; ";
    }
    return faults;
}

}  // namespace tsln::workbench
