#pragma once

#include <stdexcept>
#include <string>

namespace tsln::workbench {

/// The file that names the company for the package processor: `<PackageSource company="/path/file.company"/>`.
struct PackageSource {
    std::string company;
};

/// The file cannot be read or written. what() is a sentence for the user.
class PackageSourceError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Throws PackageSourceError.
PackageSource readPackageSource(const std::string& path);
/// Replaces the file. Throws PackageSourceError.
void writePackageSource(const std::string& path, const PackageSource& source);

}  // namespace tsln::workbench
