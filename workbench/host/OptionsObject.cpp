#include "workbench/host/OptionsObject.h"

#include <filesystem>

#include "automation/FilePath.h"
#include "workbench/host/FileLocations.h"
#include "workbench/host/SamplePictures.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

namespace fs = std::filesystem;

}  // namespace

/// Arguments: option, section and default; without a section: option and default.
Variant OptionsObject::get(OptionStore::Owner owner, Arguments a) {
    a.require(1, 3);
    const bool withSection = a.count() == 3;
    const std::string name = textOf(a[0]), section = withSection ? textOf(a[1]) : "";
    if (const auto value = context().options.get(owner, {name, section})) return *value;
    return a.valueOr(withSection ? 2 : 1, "");
}

Variant OptionsObject::set(OptionStore::Owner owner, Arguments a) {
    a.require(3, 3);
    const std::string name = textOf(a[0]), section = textOf(a[1]);
    context().options.set(owner, {name, section}, textOf(a[2]));
    return {};
}

/// Returns the folder beside the company file, unless the company has set another one. Creates it if possible.
Variant OptionsObject::UserFileLocation(Arguments a) {
    a.require(1, 1);
    const std::string kind = textOf(a[0]);
    if (const auto own = context().options.get({}, {kind, fileLocationSection})) return *own;
    for (const FileLocation& location : fileLocations) {
        if (!sameName(location.name, kind)) continue;
        std::error_code ignored;
        fs::path folder = fs::absolute(pathOf(context().company.path()), ignored).parent_path();
        if (*location.folder) folder /= location.folder;
        const bool isNew = fs::create_directories(folder, ignored);
        if (isNew && location.name == "Reports") writeSamplePictures(folder);
        return utf8Of(folder);
    }
    throw HostError(code::badIndex, "Options", "There is no file location '" + kind + "'.");
}

Variant OptionsObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = OptionsObject;
    static constexpr Member<Self> members[] = {
        {"GetCompanyOption", [](Self& self, Arguments a) { return self.get(self.company(), a); }},
        {"SetCompanyOption", [](Self& self, Arguments a) { return self.set(self.company(), a); }},
        {"GetUserOption", [](Self& self, Arguments a) { return self.get(self.user(), a); }},
        {"SetUserOption", [](Self& self, Arguments a) { return self.set(self.user(), a); }},
        {"UserFileLocation", [](Self& self, Arguments a) { return self.UserFileLocation(a); }},
        // Empty when no such program is registered.
        {"ExternalProgram",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             const std::string kind = textOf(a[0]);
             if (const auto own = self.context().options.get({}, {kind, "External Programs"}))
                 return Variant(*own);
             const auto program = self.context().programs.find(kind);
             return Variant(program == self.context().programs.end() ? std::string() : program->second);
         }},
    };
    return answer(*this, "Options", members, member, access, arguments);
}

}  // namespace tsln::workbench
