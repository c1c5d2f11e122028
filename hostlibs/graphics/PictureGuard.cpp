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
constexpr char PNG_DATA_TYPE[] = "IDAT";

constexpr std::uint8_t JPEG_MARKER = 0xFF;
constexpr std::uint8_t JPEG_START_OF_IMAGE = 0xD8;
constexpr std::uint8_t JPEG_HUFFMAN_TABLES = 0xC4;
constexpr std::size_t JPEG_LENGTH_BYTES = 2;
constexpr std::size_t JPEG_CODE_LENGTHS = 16;
constexpr std::size_t JPEG_MAX_HUFFMAN_CODES = 256;

std::uint32_t ReadBigEndian32(const std::uint8_t* p) {
    return (std::uint32_t{p[0]} << 24) | (std::uint32_t{p[1]} << 16) | (std::uint32_t{p[2]} << 8) | p[3];
}

// A byte of the picture as stb reads it: zero past the end.
std::uint8_t ByteAt(const std::vector<std::uint8_t>& bytes, std::size_t pos) {
    return pos < bytes.size() ? bytes[pos] : 0;
}

// Whether stb would read the bytes as a JPEG picture: a start-of-image marker first (fill bytes allowed).
bool LooksLikeJpeg(const std::vector<std::uint8_t>& bytes) {
    std::size_t pos = 0;
    if (ByteAt(bytes, pos) != JPEG_MARKER) return false;
    while (ByteAt(bytes, pos) == JPEG_MARKER) ++pos;
    return ByteAt(bytes, pos) == JPEG_START_OF_IMAGE;
}

// Whether the Huffman-table segment whose length starts at pos, read table by table as stb reads it, holds a
// table of more than 256 codes.
bool HasOversizedHuffmanTable(const std::vector<std::uint8_t>& bytes, std::size_t pos) {
    long remaining = static_cast<long>((ByteAt(bytes, pos) << 8) | ByteAt(bytes, pos + 1)) -
                     static_cast<long>(JPEG_LENGTH_BYTES);
    pos += JPEG_LENGTH_BYTES;
    while (remaining > 0 && pos < bytes.size()) {
        ++pos; // table class and number
        std::size_t codes = 0;
        for (std::size_t i = 0; i < JPEG_CODE_LENGTHS; ++i) codes += ByteAt(bytes, pos + i);
        if (codes > JPEG_MAX_HUFFMAN_CODES) return true;
        pos += JPEG_CODE_LENGTHS + codes;
        remaining -= static_cast<long>(1 + JPEG_CODE_LENGTHS + codes);
    }
    return false;
}
} // namespace

std::optional<std::vector<std::uint8_t>>
PictureGuard::WithoutEmptyPngData(const std::vector<std::uint8_t>& bytes) {
    // NOTE: stb copies each data chunk into a buffer it allocates only for bytes to come, so an empty first
    // one is a copy of nothing to a null pointer, which is undefined behaviour. The chunks are walked as far
    // as they are whole.
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

std::optional<std::string> PictureGuard::UnsafeForDecoder(const std::vector<std::uint8_t>& bytes) {
    // NOTE: stb builds a Huffman table from the code counts without checking that they fit the 256 entries it
    // has, and writes past them. Every place a table segment could start is checked, wherever stb's own
    // walk of the markers would find it (a table inside other segments' data may be checked needlessly).
    if (!LooksLikeJpeg(bytes)) return std::nullopt;
    for (std::size_t pos = 0; pos + 1 < bytes.size(); ++pos) {
        if (bytes[pos] != JPEG_MARKER || bytes[pos + 1] != JPEG_HUFFMAN_TABLES) continue;
        if (HasOversizedHuffmanTable(bytes, pos + 2)) return "Huffman table with more than 256 codes";
    }
    return std::nullopt;
}

} // namespace gfx
