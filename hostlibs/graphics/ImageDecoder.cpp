// Picture decoding through stb_image, kept private to this file (static functions, no exported symbols).
#include "ImageDecoder.h"

#include <climits>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#define STB_IMAGE_STATIC
#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_BMP
#define STBI_ONLY_JPEG
#define STBI_ONLY_PNG
#define STBI_NO_STDIO
#include <stb/stb_image.h>

namespace gfx {

std::optional<Image> ImageDecoder::Decode(const std::vector<std::uint8_t>& bytes) {
    if (bytes.empty() || bytes.size() > static_cast<std::size_t>(INT_MAX)) return std::nullopt;
    const auto* data = reinterpret_cast<const stbi_uc*>(bytes.data());
    const int length = static_cast<int>(bytes.size());
    int width = 0, height = 0, channels = 0;
    if (!stbi_info_from_memory(data, length, &width, &height, &channels)) return std::nullopt;
    // NOTE: stb reports a top-down bitmap's height as stored, negative; the picture itself loads upright.
    if (height < 0 && height != INT_MIN) height = -height;
    if (width <= 0 || height <= 0 || width > kMaxSide || height > kMaxSide) return std::nullopt;
    constexpr int kRgba = 4;
    stbi_uc* pixels = stbi_load_from_memory(data, length, &width, &height, &channels, kRgba);
    if (!pixels) return std::nullopt;
    Image image;
    image.width = width;
    image.height = height;
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * kRgba;
    image.rgba.assign(pixels, pixels + count);
    stbi_image_free(pixels);
    return image;
}

std::optional<Image> ImageDecoder::DecodeFile(const std::string& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size == 0 || size > kMaxFileBytes) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (!in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()))) {
        return std::nullopt;
    }
    return Decode(bytes);
}

} // namespace gfx
