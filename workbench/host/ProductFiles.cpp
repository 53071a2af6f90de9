#include "workbench/host/ProductFiles.h"

#include <filesystem>
#include <fstream>
#include <span>
#include <system_error>

#include "automation/EmbeddedFile.h"
#include "automation/FilePath.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {

std::span<const EmbeddedFile> demonstrationProducts();

namespace {

namespace fs = std::filesystem;

/// Creates the folder and writes the demonstration products into it. Returns false when it cannot be created.
bool makeFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::is_directory(folder, error)) return true;
    if (!fs::create_directory(folder, error)) return false;
    for (const EmbeddedFile& product : demonstrationProducts()) {
        std::ofstream(folder / pathOf(product.name), std::ios::binary)
            .write(product.text.data(), static_cast<std::streamsize>(product.text.size()));
    }
    return true;
}

fs::path folderOf(const Company& company) {
    std::error_code error;
    const fs::path file = fs::absolute(pathOf(company.path()), error);
    fs::path beside = file;
    beside += ".products";
    if (makeFolder(beside)) return beside;
    // A folder for each company, because several may be open.
    const std::string name = "tessaline-" + std::to_string(fs::hash_value(file)) + ".products";
    fs::path elsewhere = fs::temp_directory_path(error) / name;
    makeFolder(elsewhere);
    return elsewhere;
}

}  // namespace

std::string productFile(Company& company, std::int32_t productID) {
    const std::string name =
        textOf(company.scalar("SELECT ProductFile FROM Products WHERE ID = " + std::to_string(productID)));
    if (name.empty()) return {};
    fs::path file = pathOf(name);
    if (!file.is_absolute()) {
        file = folderOf(company) / file;
        file += ".xml";
    }
    std::error_code error;
    return fs::is_regular_file(file, error) ? utf8Of(file) : std::string();
}

}  // namespace tsln::workbench
