#include "workbench/host/PackageSourceFile.h"

#include <filesystem>

#include "automation/FilePath.h"
#include "automation/HostError.h"
#include "workbench/company/PackageSource.h"

namespace tsln::workbench {

std::string writePackageSourceFor(const Company& company) {
    namespace fs = std::filesystem;
    try {
        // In full: the processor may run in another folder.
        const fs::path file = fs::absolute(pathOf(company.path()));
        const PackageSource source{utf8Of(file)};
        std::string beside = source.company + ".psd";
        try {
            writePackageSource(beside, source);
            return beside;
        } catch (const PackageSourceError&) {
            // A name of its own for each company, or two that are open would share the file.
            const std::string name = "tessaline-" + std::to_string(fs::hash_value(file)) + ".psd";
            std::string elsewhere = utf8Of(fs::temp_directory_path() / name);
            writePackageSource(elsewhere, source);
            return elsewhere;
        }
    } catch (const std::exception& error) {  // the file system's too
        throw HostError(code::fail, "SharedCode", error.what());
    }
}

}  // namespace tsln::workbench
