#include "entities/LogoFiles.h"

#include <algorithm>
#include <filesystem>

#include "automation/FilePath.h"
#include "shared/modSharedStrings.h"

namespace tsln::entities::logoFiles {
namespace {

namespace fs = std::filesystem;

bool isPicture(const fs::path& file) {
    constexpr std::string_view endings[] = {".jpg", ".png", ".gif"};
    return std::ranges::find(endings, modSharedStrings::toLower(utf8Of(file.extension()))) !=
           std::end(endings);
}

}  // namespace

std::vector<std::string> list(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code failure;
    fs::directory_iterator entry(pathOf(folder), failure);
    for (const fs::directory_iterator end; !failure && entry != end; entry.increment(failure)) {
        std::error_code ignored;
        if (isPicture(entry->path()) && entry->is_regular_file(ignored))
            names.push_back(utf8Of(entry->path().filename()));
    }
    std::ranges::sort(names, [](const std::string& a, const std::string& b) {
        return modSharedStrings::compareNoCase(a, b) < 0;
    });
    return names;
}

bool exists(const std::string& path) {
    std::error_code ignored;
    return fs::exists(pathOf(path), ignored);
}

std::string nameOf(const std::string& path) {
    return utf8Of(pathOf(path).filename());
}

std::string within(const std::string& folder, const std::string& name) {
    return utf8Of(pathOf(folder) / pathOf(name));
}

bool copy(const std::string& from, const std::string& to) {
    std::error_code failure;
    const fs::path source = pathOf(from), target = pathOf(to);
    if (fs::equivalent(source, target, failure)) return true;
    // The copy gets the file's name only when it is complete: a full disk must not destroy the file that exists.
    fs::path part = target;
    part += ".part";
    std::error_code ignored;
    if (fs::is_regular_file(source, failure) && !fs::is_directory(target, ignored) &&
        fs::copy_file(source, part, fs::copy_options::overwrite_existing, failure)) {
        fs::rename(part, target, failure);
        if (!failure) return true;
    }
    fs::remove(part, ignored);
    return false;
}

}  // namespace tsln::entities::logoFiles
