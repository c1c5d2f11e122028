// Picture decoding through stb_image, kept private to this file (static functions, no exported symbols).
#include "ImageDecoder.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "Log.h"
#include "text/ClientPath.h"

#define STB_IMAGE_STATIC
#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_BMP
#define STBI_ONLY_JPEG
#define STBI_ONLY_PNG
#define STBI_NO_STDIO
#include <stb/stb_image.h>

namespace gfx {
namespace {
constexpr int RGBA_CHANNELS = 4;

constexpr std::uint8_t PNG_SIGNATURE[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr std::size_t PNG_LENGTH_BYTES = 4;
constexpr std::size_t PNG_TYPE_BYTES = 4;
constexpr std::size_t PNG_CRC_BYTES = 4;
constexpr char PNG_DATA_TYPE[] = "IDAT";

std::optional<Image> Refuse(std::string* error, std::string what) {
    if (error) *error = std::move(what);
    return std::nullopt;
}

std::uint32_t ReadBigEndian32(const std::uint8_t* p) {
    return (std::uint32_t{p[0]} << 24) | (std::uint32_t{p[1]} << 16) | (std::uint32_t{p[2]} << 8) | p[3];
}

// A PNG picture without its empty data chunks, when it has any (they add nothing to the picture). NOTE: stb
// copies each data chunk into a buffer it allocates only for bytes to come, so an empty first one is a copy
// of nothing to a null pointer, which is undefined behaviour. The chunks are walked as far as they are whole.
std::optional<std::vector<std::uint8_t>> WithoutEmptyPngData(const std::vector<std::uint8_t>& bytes) {
    if (bytes.size() < sizeof PNG_SIGNATURE ||
        std::memcmp(bytes.data(), PNG_SIGNATURE, sizeof PNG_SIGNATURE) != 0)
        return std::nullopt;
    constexpr std::size_t HEADER = PNG_LENGTH_BYTES + PNG_TYPE_BYTES;
    std::optional<std::vector<std::uint8_t>> kept;
    std::size_t pos = sizeof PNG_SIGNATURE;
    std::size_t copiedTo = 0; // bytes before this are in kept already
    while (bytes.size() - pos >= HEADER + PNG_CRC_BYTES) {
        const std::uint32_t length = ReadBigEndian32(&bytes[pos]);
        if (length > bytes.size() - pos - HEADER - PNG_CRC_BYTES) break;
        const std::size_t next = pos + HEADER + length + PNG_CRC_BYTES;
        if (length == 0 && std::memcmp(&bytes[pos + PNG_LENGTH_BYTES], PNG_DATA_TYPE, PNG_TYPE_BYTES) == 0) {
            if (!kept) kept.emplace().reserve(bytes.size());
            kept->insert(kept->end(), bytes.begin() + static_cast<std::ptrdiff_t>(copiedTo),
                         bytes.begin() + static_cast<std::ptrdiff_t>(pos));
            copiedTo = next;
        }
        pos = next;
    }
    if (kept) kept->insert(kept->end(), bytes.begin() + static_cast<std::ptrdiff_t>(copiedTo), bytes.end());
    return kept;
}
} // namespace

std::optional<Image> ImageDecoder::Decode(const std::vector<std::uint8_t>& original, std::string* error) {
    const auto cleaned = WithoutEmptyPngData(original);
    const std::vector<std::uint8_t>& bytes = cleaned ? *cleaned : original;
    if (bytes.empty()) return Refuse(error, "empty file");
    if (bytes.size() > static_cast<std::size_t>(INT_MAX)) return Refuse(error, "file too large");
    const auto* data = reinterpret_cast<const stbi_uc*>(bytes.data());
    const int length = static_cast<int>(bytes.size());
    int width = 0, height = 0, channels = 0;
    if (!stbi_info_from_memory(data, length, &width, &height, &channels))
        return Refuse(error, "not a BMP, JPEG or PNG picture");
    if (width <= 0 || height <= 0 || width > MAX_SIDE || height > MAX_SIDE)
        return Refuse(error, "size " + std::to_string(width) + "x" + std::to_string(height) + " refused");
    stbi_uc* pixels = stbi_load_from_memory(data, length, &width, &height, &channels, RGBA_CHANNELS);
    if (!pixels) return Refuse(error, std::string("damaged: ") + stbi_failure_reason());
    Image image;
    image.width = width;
    image.height = height;
    const std::size_t count =
        static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * RGBA_CHANNELS;
    image.rgba.assign(pixels, pixels + count);
    stbi_image_free(pixels);
    return image;
}

std::optional<Image> ImageDecoder::DecodeClientFile(std::string_view name) {
    const std::string path = txt::ClientPath::Resolve(name);
    if (path.empty()) return std::nullopt;
    std::string error;
    std::optional<Image> image;
    std::error_code code;
    const std::uintmax_t size = std::filesystem::file_size(path, code);
    if (code || size > MAX_FILE_BYTES) {
        error = code ? "cannot be read" : "file larger than " + std::to_string(MAX_FILE_BYTES) + " bytes";
    } else {
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
        std::ifstream in(path, std::ios::binary);
        if (in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size())))
            image = Decode(bytes, &error);
        else
            error = "cannot be read";
    }
    if (!image)
        LogMsg("picture %.*s cannot be decoded: %s", static_cast<int>(name.size()), name.data(),
               error.c_str());
    return image;
}

} // namespace gfx
