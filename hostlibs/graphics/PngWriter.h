// Writing RGBA pixels as PNG files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gfx {

class PngWriter {
public:
    /// Writes an 8-bit RGBA PNG; false when the size does not match the pixels or the file cannot be written.
    static bool Write(const std::string& path, int width, int height, const std::vector<std::uint8_t>& rgba);
};

} // namespace gfx
