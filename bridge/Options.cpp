#include "bridge/Options.h"

namespace tsln {

Variant Options::GetCompanyOption(std::string_view name, std::string_view section,
                                  const Variant& otherwise) const {
    return call("GetCompanyOption", name, section, otherwise);
}

void Options::SetCompanyOption(std::string_view name, std::string_view section, const Variant& value) const {
    call("SetCompanyOption", name, section, value);
}

Variant Options::GetUserOption(std::string_view name, std::string_view section,
                               const Variant& otherwise) const {
    return call("GetUserOption", name, section, otherwise);
}

Variant Options::GetUserOption(std::string_view name, const Variant& otherwise) const {
    return call("GetUserOption", name, otherwise);
}

std::string Options::ExternalProgram(std::string_view name) const {
    return textOf(call("ExternalProgram", name), "ExternalProgram");
}

std::string Options::UserFileLocation(std::string_view kind) const {
    return textOf(call("UserFileLocation", kind), "UserFileLocation");
}

void Options::SetUserOption(std::string_view name, std::string_view section, const Variant& value) const {
    call("SetUserOption", name, section, value);
}

}  // namespace tsln
