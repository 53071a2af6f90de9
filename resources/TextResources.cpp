#include "resources/TextResources.h"

#include "automation/EmbeddedFile.h"
#include "automation/Object.h"

namespace tsln::resources {

std::span<const EmbeddedFile> embeddedFiles();

std::optional<std::string_view> text(std::string_view name) {
    for (const EmbeddedFile& file : embeddedFiles()) {
        if (sameName(file.name.substr(0, file.name.rfind('.')), name)) return file.text;
    }
    return std::nullopt;
}

}  // namespace tsln::resources
