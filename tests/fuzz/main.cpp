// Runs a fuzzed program on files instead of the fuzzer's inputs: those that are named, and all in folders that are.

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/fuzz/Fuzz.h"

namespace {

void run(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    std::cout << file.filename().string() << std::endl;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int count, char** arguments) {
    int files = 0;
    for (int i = 1; i < count; ++i) {
        if (!std::filesystem::is_directory(arguments[i])) {
            run(arguments[i]);
            ++files;
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
            run(entry.path());
            ++files;
        }
    }
    std::cout << files << " inputs read alike in both ways\n";
    return files > 0 ? 0 : 1;
}
