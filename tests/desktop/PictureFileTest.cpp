#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "automation/FilePath.h"
#include "desktop/PictureFile.h"
#include "doubles/TempFolder.h"

namespace tsln::desktop::test {
namespace {

/// A picture of one red pixel.
constexpr unsigned char redGif[] = {'G', 'I',  'F', '8', '9', 'a', 1, 0, 1, 0, 0x80, 0, 0, 255,  0, 0, 0,   0,
                                    0,   0x2C, 0,   0,   0,   0,   1, 0, 1, 0, 0,    2, 2, 0x44, 1, 0, 0x3B};

TEST(PictureFile, APictureIsReadAndAnythingElseSaysWhatItIs) {
    const tsln::test::TempFolder folder("Größe ");
    const auto write = [&](const char* name, const std::string& bytes) {
        std::ofstream(pathOf(folder.file(name)), std::ios::binary) << bytes;
        return folder.file(name);
    };
    const std::string red(reinterpret_cast<const char*>(redGif), sizeof redGif);
    std::filesystem::create_directory(pathOf(folder.file("folder.png")));
    constexpr std::size_t large = 50'000'000;
    const struct {
        std::string file;
        const char* problem;
    } cases[] = {
        {write("red.gif", red), ""},
        {write("a gif by another name.png", red), ""},
        {write("cut.gif", red.substr(0, 9)), "Not a picture."},
        {write("text.jpg", "no picture at all"), "Not a picture."},
        {write("empty.png", ""), "Not a picture."},
        {write("large.png", std::string(large, 'x')), "Too large to be shown."},
        {folder.file("folder.png"), "There is no such file."},
        {folder.file("missing.png"), "There is no such file."},
        {"", ""},
    };
    for (const auto& c : cases) {
        const LoadedPicture loaded = loadPicture(c.file);
        EXPECT_EQ(loaded.problem, c.problem) << c.file;
        EXPECT_EQ(loaded.picture.IsOk(), !c.file.empty() && std::string(c.problem).empty()) << c.file;
        if (loaded.picture.IsOk()) {
            EXPECT_EQ(loaded.picture.GetRed(0, 0), 255);
        }
    }
}

}  // namespace
}  // namespace tsln::desktop::test
