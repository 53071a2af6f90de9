#include "workbench/host/FileManager.h"

#include <filesystem>

#include "automation/FilePath.h"
#include "shared/Markup.h"
#include "workbench/host/FileLocations.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

namespace fs = std::filesystem;

/// Moves a folder, also to another disk. Throws fs::filesystem_error; the folder stays where it is then.
void moveFolder(const fs::path& from, const fs::path& to) {
    if (fs::exists(to) && !fs::is_empty(to))
        throw fs::filesystem_error("The folder holds files", to,
                                   std::make_error_code(std::errc::file_exists));
    fs::create_directories(to.parent_path());
    std::error_code otherDisk;
    fs::rename(from, to, otherDisk);
    if (!otherDisk) return;
    fs::copy(from, to, fs::copy_options::recursive);
    std::error_code ignored;  // a copy that remains does no harm
    fs::remove_all(from, ignored);
}

}  // namespace

std::string FileManager::folderOf(std::string_view location) const {
    return textOf(sharedCode().get("Options").object().call("UserFileLocation", location));
}

void FileManager::show() {
    std::string list;
    for (const FileLocation& location : fileLocations) {
        list += list.empty() ? "" : "<LineBreak/>";
        list += "<Bold>" + std::string(location.name) + "</Bold>: " + asMarkupText(folderOf(location.name));
    }
    context().ui.showMessage({.text = "File locations", .advice = list});
}

void FileManager::move() {
    const auto chosen = context().ui.chooseFolder("Move Files");
    if (!chosen) return;
    std::string failures;
    for (const FileLocation& location : fileLocations) {
        if (!*location.folder) continue;
        const fs::path from = pathOf(folderOf(location.name));
        const fs::path to = pathOf(*chosen) / location.folder;
        try {
            if (from == to) continue;
            moveFolder(from, to);
            context().options.set({}, {location.name, fileLocationSection}, utf8Of(to));
        } catch (const fs::filesystem_error& error) {
            failures += std::string(failures.empty() ? "" : "\n") + error.what();
        }
    }
    const bool moved = failures.empty();
    context().ui.showMessage({.style = moved ? MessageStyle::Style1 : MessageStyle::Error,
                              .text = moved ? "The files have been moved." : "Not all files could be moved.",
                              .advice = moved ? asMarkupText(*chosen) : std::string(),
                              .detail = failures});
}

Variant FileManager::invokeOwn(std::string_view member, Access access, Arguments arguments) {
    using Self = FileManager;
    static constexpr Member<Self> members[] = {
        {"ShowFileManager",
         [](Self& self, Arguments a) {
             a.require(0, 0);
             self.show();
             return Variant();
         }},
        {"ShowMoveFileLocations",
         [](Self& self, Arguments a) {
             a.require(0, 0);
             self.move();
             return Variant();
         }},
    };
    return answer(*this, "Library", members, member, access, arguments);
}

}  // namespace tsln::workbench
