#include "migration/ExportFile.h"

#include <cerrno>
#include <filesystem>
#include <random>
#include <system_error>

#include "automation/FilePath.h"

namespace tsln::migration {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view rootName = "Sections", rootAttributes = " source=\"42upgrade\"";

fs::path newName() {
    std::random_device random;
    return fs::temp_directory_path() /
           ("tsln" + std::to_string(random()) + "-" + std::to_string(random()) + ".xml");
}

}  // namespace

ExportFile::ExportFile() {
    const fs::path path = newName();
    path_ = utf8Of(path);
    errno = 0;
    file_.open(path, std::ios::binary | std::ios::trunc);
    check();
    std::error_code ignored;  // a system without such permissions protects the folder instead
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write, ignored);
    try {
        write("<");
        write(rootName);
        write(rootAttributes);
    } catch (...) {
        remove();
        throw;
    }
}

ExportFile::~ExportFile() {
    remove();
}

void ExportFile::add(std::string_view record) {
    if (section_ != next_) {
        write(section_.empty() ? ">" : "</" + section_ + ">");
        section_ = next_;
        write("<" + section_ + ">");
    }
    write(record);
}

std::uintmax_t ExportFile::finish() {
    if (section_.empty()) {
        write("/>\r\n");
    } else {
        write("</" + section_ + "></");
        write(rootName);
        write(">\r\n");
    }
    errno = 0;
    file_.close();
    check();
    return fs::file_size(pathOf(path_));
}

void ExportFile::write(std::string_view text) {
    errno = 0;
    file_.write(text.data(), static_cast<std::streamsize>(text.size()));
    check();
}

void ExportFile::check() {
    if (file_) return;
    throw std::system_error(errno != 0 ? errno : EIO, std::generic_category(),
                            "The temporary file '" + path_ + "' cannot be written");
}

void ExportFile::remove() {
    if (file_.is_open()) file_.close();
    std::error_code ignored;
    fs::remove(pathOf(path_), ignored);
}

}  // namespace tsln::migration
