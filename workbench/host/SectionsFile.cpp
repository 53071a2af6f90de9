#include "workbench/host/SectionsFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <string_view>
#include <vector>

#include "automation/FilePath.h"

namespace tsln::workbench {
namespace {

namespace fs = std::filesystem;

/// In bytes. An export's root element begins within it.
constexpr std::size_t beginningSize = std::size_t{64} * 1024;

[[noreturn]] void refuse(const std::string& path, const std::string& why) {
    throw SectionsFileError("The file '" + path + "' " + why);
}

/// Returns the name of the root element in the document's beginning; empty when there is none.
std::string rootName(std::string_view text) {
    const auto skip = [&](std::string_view begin, std::string_view end) {
        if (!text.starts_with(begin)) return false;
        const std::size_t at = text.find(end, begin.size());
        text.remove_prefix(at == text.npos ? text.size() : at + end.size());
        return true;
    };
    while (!text.empty()) {
        text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
        if (skip("<?", "?>") || skip("<!--", "-->") || skip("<!", ">")) continue;
        if (!text.starts_with("<")) return {};
        return std::string(text.substr(1, text.find_first_of(" \t\r\n/>", 1) - 1));
    }
    return {};
}

/// Reduces UTF-16 to the characters that tags consist of; removes the byte order mark of UTF-8.
std::string readableBeginning(std::string text) {
    if (text.starts_with("\xEF\xBB\xBF")) return text.substr(3);
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        text.erase(0, 2);
        std::erase(text, '\0');
    }
    return text;
}

std::string randomSuffix() {
    std::random_device random;
    return ".new-" + std::to_string(random()) + std::to_string(random());
}

}  // namespace

void readSectionsFile(const std::string& path, pugi::xml_document& document) {
    std::error_code error;
    const fs::path file = pathOf(path);
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found) refuse(path, "does not exist.");
    if (status.type() == fs::file_type::directory) refuse(path, "is a folder.");
    if (status.type() != fs::file_type::regular) refuse(path, "is no file that can be read.");
    std::ifstream stream(file, std::ios::binary);
    if (!stream) refuse(path, std::string("cannot be opened: ") + std::strerror(errno) + ".");

    std::string text(beginningSize, '\0');
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(stream.gcount()));
    if (text.empty()) refuse(path, "is empty.");
    const std::string root = rootName(readableBeginning(text));
    if (root != sectionsRoot) {
        refuse(path, root.empty() ? "is no export of lists: it does not begin as XML."
                                  : "is no export of lists: its root is '" + root.substr(0, 100) +
                                        "', not 'Sections'.");
    }

    stream.clear();
    stream.seekg(0);
    const auto result = document.load(stream, pugi::parse_default | pugi::parse_ws_pcdata_single);
    if (!result) {
        refuse(path, std::string("is damaged: ") + result.description() + " (byte " +
                         std::to_string(result.offset) + ").");
    }
}

void writeSectionsFile(const std::string& path, const pugi::xml_document& document) {
    const fs::path file = pathOf(path);
    fs::path temporary = file;
    temporary += randomSuffix();
    std::error_code error;
    try {
        std::ofstream stream(temporary, std::ios::binary | std::ios::trunc);
        if (!stream) refuse(path, std::string("cannot be written: ") + std::strerror(errno) + ".");
        document.save(stream, "  ", pugi::format_default, pugi::encoding_utf8);
        stream.close();
        if (!stream) refuse(path, std::string("cannot be written: ") + std::strerror(errno) + ".");
        fs::rename(temporary, file, error);
        if (error) refuse(path, "cannot be replaced: " + error.message() + ".");
    } catch (...) {
        fs::remove(temporary, error);
        throw;
    }
}

}  // namespace tsln::workbench
