#ifndef _WIN32
#include "desktop/TextResource.h"
#include "resources/TextResources.h"

namespace tsln::desktop {

std::optional<std::string> findTextResource(std::string_view name) {
    const auto text = resources::text(name);
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

}  // namespace tsln::desktop
#endif
