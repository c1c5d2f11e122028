// Decoding of BMP, JPEG and PNG pictures into RGBA images.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Canvas.h"

namespace gfx {

class ImageDecoder {
public:
    /// Pictures larger than this on either side are refused.
    static constexpr int MAX_SIDE = 16384;
    /// Files larger than this are refused unread.
    static constexpr std::uintmax_t MAX_FILE_BYTES = 256u * 1024u * 1024u;

    /// Decodes the picture in memory; nothing for an unknown format, a damaged file or a refused size, with
    /// what was wrong in error when given.
    static std::optional<Image> Decode(const std::vector<std::uint8_t>& bytes, std::string* error = nullptr);
    /// Reads and decodes a client file (ClientPath). A missing file gives nothing quietly (missing art draws
    /// nothing); a file that cannot be decoded is reported with LogMsg, once per call.
    static std::optional<Image> DecodeClientFile(std::string_view name);
};

} // namespace gfx
