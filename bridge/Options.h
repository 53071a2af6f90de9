#pragma once

#include <string_view>

#include "bridge/HostPart.h"

namespace tsln {

/// The options of the company and of the user. `section` may be empty.
class Options : HostPart {
  public:
    explicit Options(Library& library) : HostPart(library, "Options") {}
    Variant GetCompanyOption(std::string_view name, std::string_view section, const Variant& otherwise) const;
    void SetCompanyOption(std::string_view name, std::string_view section, const Variant& value) const;
    Variant GetUserOption(std::string_view name, std::string_view section, const Variant& otherwise) const;
    /// Reads an option without a section.
    Variant GetUserOption(std::string_view name, const Variant& otherwise) const;
    /// Returns the full path of a program that is registered with the host by name; empty when there is none.
    std::string ExternalProgram(std::string_view name) const;
    /// The folder of a kind of files, such as "Reports". It may not exist.
    std::string UserFileLocation(std::string_view kind) const;
    void SetUserOption(std::string_view name, std::string_view section, const Variant& value) const;
};

}  // namespace tsln
