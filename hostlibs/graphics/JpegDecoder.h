// Decoding of JPEG pictures through libjpeg-turbo, which is hardened against damaged files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Canvas.h"

namespace gfx {

class JpegDecoder {
public:
    /// Huffman-coded JPEG data takes at least one bit for each 8 x 8 block: a picture claiming more pixels
    /// per byte of its file is damaged (and would cost the host memory and time out of all proportion).
    static constexpr std::size_t MAX_PIXELS_PER_BYTE = 8 * 8 * 8;

    /// Whether the bytes start as a JPEG picture does (start-of-image marker, fill bytes allowed).
    static bool IsJpeg(const std::vector<std::uint8_t>& bytes);
    /// Decodes a baseline or progressive Huffman-coded JPEG picture into RGBA; nothing, with what was wrong
    /// in error ("damaged: ..." for a damaged file), when it is damaged, arithmetic-coded, or larger than
    /// maxSide on either side. Data that ends early decodes as far as it goes (the rest is grey), as the
    /// decoder the system shipped with did.
    static std::optional<Image> Decode(const std::vector<std::uint8_t>& bytes, int maxSide,
                                       std::string& error);
};

} // namespace gfx
