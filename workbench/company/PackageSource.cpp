#include "workbench/company/PackageSource.h"

#include <pugixml.hpp>

#include "automation/FilePath.h"

namespace tsln::workbench {

PackageSource readPackageSource(const std::string& path) {
    std::string file = "The package source file '" + path + "'";
    pugi::xml_document document;
    pugi::xml_parse_result result = document.load_file(pathOf(path).c_str());
    if (result.status == pugi::status_file_not_found) throw PackageSourceError(file + " does not exist.");
    if (!result) throw PackageSourceError(file + " cannot be read: " + result.description() + ".");
    pugi::xml_attribute company = document.child("PackageSource").attribute("company");
    if (!*company.value()) throw PackageSourceError(file + " names no company.");
    return {company.value()};
}

void writePackageSource(const std::string& path, const PackageSource& source) {
    pugi::xml_document document;
    document.append_child("PackageSource").append_attribute("company") = source.company.c_str();
    if (!document.save_file(pathOf(path).c_str())) {
        throw PackageSourceError("The package source file '" + path + "' cannot be written.");
    }
}

}  // namespace tsln::workbench
