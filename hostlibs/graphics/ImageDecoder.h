// Decoding of BMP, JPEG and PNG pictures into RGBA images.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Canvas.h"

namespace gfx {

class ImageDecoder {
public:
    /// Pictures larger than this on either side are refused.
    static constexpr int kMaxSide = 16384;
    /// Files larger than this are refused unread.
    static constexpr std::uintmax_t kMaxFileBytes = 256u * 1024u * 1024u;

    /// Decodes the picture in memory; nothing for an unknown format, a damaged file or a refused size.
    static std::optional<Image> Decode(const std::vector<std::uint8_t>& bytes);
    /// Reads and decodes the file at an absolute path.
    static std::optional<Image> DecodeFile(const std::string& path);
};

} // namespace gfx
