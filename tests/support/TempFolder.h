#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace tsln::test {

/// A folder of a test's own, gone with the test. Its name has a blank in it unless the test wants another.
class TempFolder {
  public:
    explicit TempFolder(const std::string& begin = "tessaline test ") {
        // Tests run side by side: a name of its own is one that could be made.
        const std::filesystem::path base = std::filesystem::temp_directory_path();
        std::random_device random;
        do {
            path_ = (base / (begin + std::to_string(random()))).string();
        } while (!std::filesystem::create_directory(path_));
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& path() const noexcept { return path_; }
    std::string file(const std::string& name) const { return (std::filesystem::path(path_) / name).string(); }

  private:
    std::string path_;
};

}  // namespace tsln::test
