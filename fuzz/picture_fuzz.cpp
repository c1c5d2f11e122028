// Fuzzes picture decoding (BMP, JPEG, PNG) with arbitrary bytes: a decoded picture is within the size bounds
// and holds exactly its pixels.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "graphics/ImageDecoder.h"

namespace {
constexpr std::size_t RGBA_BYTES = 4;
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::uint8_t> bytes(data, data + size);
    std::string error;
    const auto image = gfx::ImageDecoder::Decode(bytes, &error);
    if (!image) {
        if (error.empty()) __builtin_trap();
        return 0;
    }
    using gfx::ImageDecoder;
    if (image->width <= 0 || image->height <= 0 || image->width > ImageDecoder::MAX_SIDE ||
        image->height > ImageDecoder::MAX_SIDE)
        __builtin_trap();
    const std::size_t pixels =
        static_cast<std::size_t>(image->width) * static_cast<std::size_t>(image->height);
    if (image->rgba.size() != pixels * RGBA_BYTES) __builtin_trap();
    return 0;
}
