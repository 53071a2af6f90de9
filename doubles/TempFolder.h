#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "automation/FilePath.h"

namespace tsln::test {

/// A temporary folder, deleted with this object. Its name contains a blank unless `begin` has none.
class TempFolder {
  public:
    explicit TempFolder(const std::string& begin = "tessaline test ",
                        const std::filesystem::path& base = std::filesystem::temp_directory_path()) {
        // Tests run in parallel: a name is free when its folder can be created.
        std::random_device random;
        do {
            path_ = utf8Of(base / pathOf(begin + std::to_string(random())));
        } while (!std::filesystem::create_directory(pathOf(path_)));
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(pathOf(path_), ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& path() const noexcept { return path_; }
    std::string file(const std::string& name) const { return utf8Of(pathOf(path_) / pathOf(name)); }
    /// Writes a file into this folder and returns its path.
    std::string write(const std::string& name, std::string_view text) const {
        std::ofstream(pathOf(file(name)), std::ios::binary) << text;
        return file(name);
    }
    std::string textOf(const std::string& name) const {
        std::ifstream stream(pathOf(file(name)), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

  private:
    std::string path_;
};

}  // namespace tsln::test
