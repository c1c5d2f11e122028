// Reading and writing 8-bit RGBA PNG files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A picture as RGBA bytes, row by row.
struct RgbaPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;
};

class PngFile {
public:
    /// Any PNG the library reads, converted to RGBA; false (with the reason in error) when it cannot be read.
    static bool Read(const std::string& path, RgbaPicture& picture, std::string& error);
    static bool Write(const std::string& path, const RgbaPicture& picture, std::string& error);
};
