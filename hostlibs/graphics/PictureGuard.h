// What the system's stb_image decoder cannot be trusted with, found in a picture's bytes before it sees them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace gfx {

class PictureGuard {
public:
    /// A PNG picture without its empty data chunks, when it has any (they add nothing to the picture).
    static std::optional<std::vector<std::uint8_t>>
    WithoutEmptyPngData(const std::vector<std::uint8_t>& bytes);
    /// What is wrong with a picture that stb would answer with an allocation out of all proportion to the
    /// file; nothing when the bytes are safe to hand over.
    static std::optional<std::string> UnsafeForDecoder(const std::vector<std::uint8_t>& bytes);
    /// Whether a BMP picture of these sides holds more pixels than its bytes could, even at one bit a pixel:
    /// stb fills in what is missing, so a few bytes could cost the host a picture of any size.
    static bool BmpLargerThanItsData(const std::vector<std::uint8_t>& bytes, int width, int height);
};

} // namespace gfx
