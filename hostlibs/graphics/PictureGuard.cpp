// Checks of picture bytes for the faults of the stb_image version the system builds with.
#include "PictureGuard.h"

#include <cstddef>
#include <cstring>

namespace gfx {
namespace {
constexpr std::uint8_t PNG_SIGNATURE[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr std::size_t PNG_LENGTH_BYTES = 4;
constexpr std::size_t PNG_TYPE_BYTES = 4;
constexpr std::size_t PNG_CRC_BYTES = 4;
constexpr std::size_t PNG_CHUNK_FRAME = PNG_LENGTH_BYTES + PNG_TYPE_BYTES + PNG_CRC_BYTES;
constexpr char PNG_DATA_TYPE[] = "IDAT";
constexpr char BMP_SIGNATURE[] = "BM";
constexpr std::size_t BMP_SIGNATURE_BYTES = 2;
constexpr std::size_t BMP_DENSEST_PIXELS_PER_BYTE = 8;

std::uint32_t ReadBigEndian32(const std::uint8_t* p) {
    return (std::uint32_t{p[0]} << 24) | (std::uint32_t{p[1]} << 16) | (std::uint32_t{p[2]} << 8) | p[3];
}

bool IsPng(const std::vector<std::uint8_t>& bytes) {
    return bytes.size() >= sizeof PNG_SIGNATURE &&
           std::memcmp(bytes.data(), PNG_SIGNATURE, sizeof PNG_SIGNATURE) == 0;
}

bool IsDataChunk(const std::uint8_t* type) {
    return std::memcmp(type, PNG_DATA_TYPE, PNG_TYPE_BYTES) == 0;
}

// Calls fn(pos, length, type) for each chunk of a PNG picture that lies whole within the bytes, in order;
// returns the position of the first whose length and type are there but not the rest, or the size.
template <class Fn> std::size_t ForEachPngChunk(const std::vector<std::uint8_t>& bytes, Fn fn) {
    std::size_t pos = sizeof PNG_SIGNATURE;
    while (bytes.size() - pos >= PNG_LENGTH_BYTES + PNG_TYPE_BYTES) {
        const std::uint32_t length = ReadBigEndian32(&bytes[pos]);
        if (bytes.size() - pos < PNG_CHUNK_FRAME || length > bytes.size() - pos - PNG_CHUNK_FRAME) return pos;
        fn(pos, length, &bytes[pos + PNG_LENGTH_BYTES]);
        pos += PNG_CHUNK_FRAME + length;
    }
    return bytes.size();
}
} // namespace

std::optional<std::vector<std::uint8_t>>
PictureGuard::WithoutEmptyPngData(const std::vector<std::uint8_t>& bytes) {
    // NOTE: stb copies each data chunk into a buffer it allocates only for bytes to come, so an empty first
    // one is a copy of nothing to a null pointer, which is undefined behaviour.
    if (!IsPng(bytes)) return std::nullopt;
    std::optional<std::vector<std::uint8_t>> kept;
    std::size_t copiedTo = 0; // bytes before this are in kept already
    ForEachPngChunk(bytes, [&](std::size_t pos, std::uint32_t length, const std::uint8_t* type) {
        if (length != 0 || !IsDataChunk(type)) return;
        if (!kept) kept.emplace().reserve(bytes.size());
        kept->insert(kept->end(), bytes.begin() + static_cast<std::ptrdiff_t>(copiedTo),
                     bytes.begin() + static_cast<std::ptrdiff_t>(pos));
        copiedTo = pos + PNG_CHUNK_FRAME;
    });
    if (kept) kept->insert(kept->end(), bytes.begin() + static_cast<std::ptrdiff_t>(copiedTo), bytes.end());
    return kept;
}

std::optional<std::string> PictureGuard::UnsafeForDecoder(const std::vector<std::uint8_t>& bytes) {
    // NOTE: stb grows its buffer to the length a data chunk claims before it reads the chunk, so a few bytes
    // could make it allocate gigabytes. Past the first chunk that runs over the end it reads nothing more.
    if (!IsPng(bytes)) return std::nullopt;
    const std::size_t overrun =
        ForEachPngChunk(bytes, [](std::size_t, std::uint32_t, const std::uint8_t*) {});
    if (bytes.size() - overrun >= PNG_LENGTH_BYTES + PNG_TYPE_BYTES &&
        IsDataChunk(&bytes[overrun + PNG_LENGTH_BYTES]))
        return "data chunk longer than the file";
    return std::nullopt;
}

bool PictureGuard::BmpLargerThanItsData(const std::vector<std::uint8_t>& bytes, int width, int height) {
    if (bytes.size() < BMP_SIGNATURE_BYTES ||
        std::memcmp(bytes.data(), BMP_SIGNATURE, BMP_SIGNATURE_BYTES) != 0)
        return false;
    if (width <= 0 || height <= 0) return false;
    const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return pixels / BMP_DENSEST_PIXELS_PER_BYTE > bytes.size();
}

} // namespace gfx
