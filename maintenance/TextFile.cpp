#include "maintenance/TextFile.h"

#include <filesystem>
#include <fstream>
#include <vector>

#include "automation/FilePath.h"
#include "screens/Screen.h"

namespace tsln {
namespace {

const FileFilter fileFilters[] = {{"Text Files", "*.txt"}, {"All Files (*.*)", "*.*"}};
constexpr std::size_t bufferSize = 256 * 1024;

}  // namespace

void saveTextFile(Screen& screen, const std::function<void(std::ostream& file)>& write) {
    const auto path = screen.desktop().saveFile(screen, "Save As", fileFilters);
    if (!path || path->empty()) return;
    std::vector<char> buffer(bufferSize);
    std::ofstream file;
    file.rdbuf()->pubsetbuf(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    file.open(pathOf(*path), std::ios::binary);
    if (file) write(file);
    file.close();
    if (!file.fail()) return;
    screen.desktop().messageBox(&screen, "Unable to write the file. (1472)", MessageButtons::Ok,
                                MessageIcon::Critical);
}

}  // namespace tsln
