#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "doubles/TempFolder.h"

namespace tsln::test {

/// While it exists, the system's folder for temporary files is an empty one of its own.
class TempDirectory {
  public:
    TempDirectory() { set(folder_.path()); }
    ~TempDirectory() { set(before_); }
    TempDirectory(const TempDirectory&) = delete;
    TempDirectory& operator=(const TempDirectory&) = delete;

    /// Uses another folder, which need not exist.
    void replace(const std::string& path) { set(path); }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(pathOf(folder_.path())))
            names.push_back(utf8Of(entry.path().filename()));
        return names;
    }

  private:
    static void set(const std::string& path) {
#ifdef _WIN32
        _putenv_s("TMP", path.c_str());
#else
        setenv("TMPDIR", path.c_str(), 1);
#endif
    }

    std::string before_ = utf8Of(std::filesystem::temp_directory_path());
    TempFolder folder_;
};

}  // namespace tsln::test
