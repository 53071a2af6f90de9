#include "migration/ReportFiles.h"

#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "automation/FilePath.h"
#include "shared/modSharedStrings.h"

namespace tsln::migration {
namespace {

namespace fs = std::filesystem;
using modSharedStrings::equalNoCase;

constexpr std::string_view companies = "companies", reports = "reports";
constexpr std::string_view endings[] = {".jpg", ".png", ".txt", ".rtf"};  // in the order of copying

bool isFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

/// The folder of that path, whose last name may differ in letter case.
std::optional<fs::path> findFolder(const fs::path& path) {
    if (isFolder(path)) return path;
    std::error_code ignored;
    for (fs::directory_iterator at(path.parent_path(), ignored), end; at != end; at.increment(ignored)) {
        if (equalNoCase(utf8Of(at->path().filename()), utf8Of(path.filename())) && isFolder(at->path()))
            return at->path();
    }
    return std::nullopt;
}

/// The rule: of a path whose last ten characters are "\companies", these are replaced by "reports"; where no folder has
/// that name, by "\reports", the folder beside. Letter case does not count, and "/" is as good as "\", so that it also
/// holds where names are case-sensitive and paths are written with "/". Any other path has no reports folder.
std::optional<fs::path> oldReportsFolder(std::string_view company) {
    if (company.size() <= companies.size() + 1) return std::nullopt;
    const std::string_view before = company.substr(0, company.size() - companies.size());
    const std::string_view separator = before.substr(before.size() - 1);
    if (!equalNoCase(company.substr(before.size()), companies) || (separator != "\\" && separator != "/"))
        return std::nullopt;
    const std::string base(before.substr(0, before.size() - 1));
    if (auto joined = findFolder(pathOf(base + std::string(reports)))) return joined;
    return findFolder(pathOf(base) / pathOf(reports));
}

}  // namespace

void copyReportFiles(const std::string& oldCompany, const std::string& folder,
                     const std::function<bool()>& goOn) {
    const auto from = oldReportsFolder(oldCompany);
    const fs::path to = pathOf(folder);
    if (!from || !isFolder(to)) return;
    std::error_code ignored;
    std::vector<fs::path> files;
    for (fs::directory_iterator at(*from, ignored), end; at != end; at.increment(ignored)) {
        if (at->is_regular_file(ignored)) files.push_back(at->path());
    }
    for (const std::string_view ending : endings) {
        for (const fs::path& file : files) {
            if (!equalNoCase(utf8Of(file.extension()), ending)) continue;
            if (!goOn()) return;
            fs::copy_file(file, to / file.filename(), fs::copy_options::overwrite_existing, ignored);
        }
    }
}

}  // namespace tsln::migration
