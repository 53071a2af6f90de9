#include "maintenance/TextFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "automation/FilePath.h"
#include "screens/Screen.h"

namespace tsln {

std::string fileName(std::string_view caption, std::string_view ending) {
    std::string name(caption);
    std::ranges::replace_if(
        name, [](char c) { return std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos; }, '-');
    return name += ending;
}
namespace {

const FileFilter fileFilters[] = {{"Text Files", "*.txt"}, {"All Files (*.*)", "*.*"}};

}  // namespace

void saveTextFile(Screen& screen, std::string& path, const std::function<void(std::ostream& file)>& write) {
    const auto chosen = screen.desktop().saveFile(screen, "Save As", fileFilters, path);
    if (!chosen || chosen->empty()) return;
    path = *chosen;
    std::ofstream file(pathOf(path), std::ios::binary);
    if (file) write(file);
    file.close();
    if (!file.fail()) return;
    screen.desktop().messageBox(&screen, "Unable to write the file. (1472)", MessageButtons::Ok,
                                MessageIcon::Critical);
}

}  // namespace tsln
