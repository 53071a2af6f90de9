#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tsln::test {

/// A folder of a test's own, gone with the test. Its name has a blank in it unless the test wants another.
class TempFolder {
  public:
    explicit TempFolder(const std::string& begin = "tessaline test ") {
        std::string name = (std::filesystem::temp_directory_path() / (begin + "XXXXXX")).string();
        path_ = mkdtemp(name.data());
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& path() const noexcept { return path_; }
    std::string file(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

}  // namespace tsln::test
