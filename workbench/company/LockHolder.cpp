#include "workbench/company/LockHolder.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "automation/FilePath.h"

#ifdef __linux__
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tsln::workbench {
namespace {

constexpr const char* anyProgram = "another program";

#ifdef __linux__
/// The process that holds a lock of the file, one to write before one to read; 0 when there is none but this one.
///
/// The list of all locks is read, because closing a file that was opened to ask for its locks would drop those that the
/// database has on it.
long holderOf(const std::string& path) {
    struct stat file {};
    if (stat(path.c_str(), &file) != 0) return 0;
    const std::string inode = ":" + std::to_string(file.st_ino);
    std::ifstream locks("/proc/locks");
    long reader = 0;
    for (std::string line; std::getline(locks, line);) {
        // "3: POSIX  ADVISORY  WRITE 4711 08:01:131084 1073741825 1073741825"; waiting ones have "->" behind the number.
        std::istringstream words(line);
        std::string number, kind, strength, access, place;
        long process = 0;
        if (!(words >> number >> kind >> strength >> access >> process >> place)) continue;
        if (!place.ends_with(inode) || process <= 0 || process == getpid()) continue;
        if (access == "WRITE") return process;
        reader = process;
    }
    return reader;
}

std::string nameOf(long process) {
    std::error_code error;
    const std::string folder = "/proc/" + std::to_string(process);
    const auto program = std::filesystem::read_symlink(folder + "/exe", error);
    if (!error) return utf8Of(program.filename());
    std::string name;
    std::getline(std::ifstream(folder + "/comm"), name);
    return name;
}
#endif

}  // namespace

std::string lockHolder([[maybe_unused]] const std::string& path) {
#ifdef __linux__
    if (const long process = holderOf(path)) {
        const std::string name = nameOf(process);
        return std::string(anyProgram) + " (" + name + (name.empty() ? "" : ", ") + "process " +
               std::to_string(process) + ")";
    }
#endif
    return anyProgram;
}

}  // namespace tsln::workbench
