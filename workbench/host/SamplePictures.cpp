#include "workbench/host/SamplePictures.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace tsln::workbench {
namespace {

struct Color {
    std::uint8_t red, green, blue;
};

std::string bigEndian(std::uint32_t number) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(number >> shift & 0xFFU);
    return bytes;
}

std::uint32_t crc32(std::string_view bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        crc ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

std::uint32_t adler32(std::string_view bytes) {
    constexpr std::uint32_t base = 65521;
    std::uint32_t low = 1, high = 0;
    for (const char byte : bytes) {
        low = (low + static_cast<std::uint8_t>(byte)) % base;
        high = (high + low) % base;
    }
    return high << 16U | low;
}

std::string chunk(std::string_view kind, const std::string& data) {
    const std::string body = std::string(kind) + data;
    return bigEndian(static_cast<std::uint32_t>(data.size())) + body + bigEndian(crc32(body));
}

/// The bytes in the form of a compressed stream, without compression.
std::string stored(std::string_view bytes) {
    constexpr std::size_t mostInBlock = 65535;
    std::string stream = "\x78\x01";
    for (std::size_t at = 0; at < bytes.size(); at += mostInBlock) {
        const std::string_view block = bytes.substr(at, mostInBlock);
        const auto size = static_cast<std::uint16_t>(block.size());
        stream += at + block.size() == bytes.size() ? '\1' : '\0';
        for (const std::uint16_t number : {size, static_cast<std::uint16_t>(~size)}) {
            stream += static_cast<char>(number & 0xFFU);
            stream += static_cast<char>(number >> 8U);
        }
        stream += block;
    }
    return stream + bigEndian(adler32(bytes));
}

/// A PNG file; `colorAt` gives the color of each pixel.
template <class ColorAt>
std::string png(int width, int height, const ColorAt& colorAt) {
    std::string pixels;
    for (int y = 0; y < height; ++y) {
        pixels += '\0';  // the row is not filtered
        for (int x = 0; x < width; ++x) {
            const Color color = colorAt(x, y);
            for (const std::uint8_t part : {color.red, color.green, color.blue})
                pixels += static_cast<char>(part);
        }
    }
    std::string header =
        bigEndian(static_cast<std::uint32_t>(width)) + bigEndian(static_cast<std::uint32_t>(height));
    header += std::string("\x08\x02\0\0\0", 5);  // 8 bits for each of red, green and blue
    return std::string("\x89PNG\r\n\x1A\n") + chunk("IHDR", header) + chunk("IDAT", stored(pixels)) +
           chunk("IEND", "");
}

/// A row of windows with blinds, each let down a little further than the one before.
std::string blinds(int windows, int side, Color frame, Color slat, Color light) {
    return png(windows * side, side, [=](int x, int y) {
        const int margin = side / 8;
        const int inX = x % side, window = x / side;
        const bool outside = inX < margin || inX >= side - margin || y < margin || y >= side - margin;
        if (outside) return Color{255, 255, 255};
        const int border = std::max(side / 24, 1);
        const bool onFrame = inX < margin + border || inX >= side - margin - border || y < margin + border ||
                             y >= side - margin - border;
        if (onFrame) return frame;
        const int low = margin + (side - 2 * margin) * (window + 1) / (windows + 1);
        const bool onSlat = y < low && (y - margin) % (border * 3) < border * 2;
        return onSlat ? slat : light;
    });
}

}  // namespace

void writeSamplePictures(const std::filesystem::path& folder) {
    constexpr Color walnut{94, 62, 38}, oak{196, 154, 98}, sky{206, 228, 244}, gray{222, 222, 222},
        pale{240, 240, 240};
    const std::pair<const char*, std::string> pictures[] = {
        {"Lanternlight small.png", blinds(1, 48, walnut, oak, sky)},
        {"Lanternlight large.png", blinds(4, 96, walnut, oak, sky)},
        {"Lanternlight watermark.png", blinds(3, 120, gray, gray, pale)},
    };
    for (const auto& [name, bytes] : pictures) {
        std::error_code ignored;
        if (std::filesystem::exists(folder / name, ignored)) continue;
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
}

}  // namespace tsln::workbench
