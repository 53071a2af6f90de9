#include "workbench/host/PackageSourceFile.h"

#include <filesystem>

#include "automation/FilePath.h"
#include "automation/HostError.h"
#include "workbench/company/PackageSource.h"

namespace tsln::workbench {

std::string writePackageSourceFor(const Company& company) {
    namespace fs = std::filesystem;
    try {
        // An absolute path: the processor may run in another folder.
        const fs::path file = fs::absolute(pathOf(company.path()));
        const PackageSource source{utf8Of(file)};
        std::string beside = source.company + ".psd";
        try {
            writePackageSource(beside, source);
            return beside;
        } catch (const PackageSourceError&) {
            // A separate file for each company, because several may be open.
            const std::string name = "tessaline-" + std::to_string(fs::hash_value(file)) + ".psd";
            std::string elsewhere = utf8Of(fs::temp_directory_path() / name);
            writePackageSource(elsewhere, source);
            return elsewhere;
        }
    } catch (const std::exception& error) {  // includes errors of the file system
        throw HostError(code::fail, "SharedCode", error.what());
    }
}

}  // namespace tsln::workbench
