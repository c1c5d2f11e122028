// JPEG pictures through libjpeg-turbo's decompressor, its errors turned into a refusal with the message.
#include "JpegDecoder.h"

#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

namespace gfx {
namespace {
constexpr std::uint8_t JPEG_MARKER = 0xFF;
constexpr std::uint8_t JPEG_START_OF_IMAGE = 0xD8;
constexpr int RGBA_CHANNELS = 4;
constexpr int CMYK_CHANNELS = 4;
constexpr unsigned OPAQUE = 0xFF;

struct SErrorManager {
    jpeg_error_mgr pub; // first, so that the library's pointer to it is a pointer to the whole
    std::jmp_buf jump;
    char message[JMSG_LENGTH_MAX];
};

[[noreturn]] void OnError(j_common_ptr cinfo) {
    auto* err = reinterpret_cast<SErrorManager*>(cinfo->err);
    (*cinfo->err->format_message)(cinfo, err->message);
    std::longjmp(err->jump, 1);
}

// Warnings (extraneous bytes, data ending early) are what a damaged file gives; decoding goes on quietly.
void OnMessage(j_common_ptr, int) {
}

// Adobe's CMYK is stored inverted: a byte is 255 minus the ink, so the colour is the product with the black.
std::uint8_t InvertedInk(std::uint8_t value, std::uint8_t black) {
    return static_cast<std::uint8_t>((static_cast<unsigned>(value) * black + 127) / 255);
}

void CmykRowToRgba(const std::uint8_t* cmyk, std::uint8_t* rgba, JDIMENSION width) {
    for (JDIMENSION x = 0; x < width; ++x, cmyk += CMYK_CHANNELS, rgba += RGBA_CHANNELS) {
        rgba[0] = InvertedInk(cmyk[0], cmyk[3]);
        rgba[1] = InvertedInk(cmyk[1], cmyk[3]);
        rgba[2] = InvertedInk(cmyk[2], cmyk[3]);
        rgba[3] = OPAQUE;
    }
}

// The decompression proper. NOTE: the library's errors jump back to the setjmp here, so no object created
// after it may need a destructor: the output and the row buffer belong to the caller.
bool Decompress(jpeg_decompress_struct& cinfo, SErrorManager& err, const std::vector<std::uint8_t>& bytes,
                int maxSide, std::vector<std::uint8_t>& rgba, std::vector<std::uint8_t>& row, Image& image,
                std::string& error) {
    if (setjmp(err.jump)) {
        error = std::string("damaged: ") + err.message;
        return false;
    }
    jpeg_create_decompress(&cinfo);
    jpeg_mem_src(&cinfo, bytes.data(), static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&cinfo, TRUE);
    const JDIMENSION width = cinfo.image_width;
    const JDIMENSION height = cinfo.image_height;
    if (cinfo.arith_code) {
        error = "arithmetic coding not supported";
        return false;
    }
    if (width == 0 || height == 0 || width > static_cast<JDIMENSION>(maxSide) ||
        height > static_cast<JDIMENSION>(maxSide)) {
        error = "size " + std::to_string(width) + "x" + std::to_string(height) + " refused";
        return false;
    }
    const std::size_t pixels = static_cast<std::size_t>(width) * height;
    if (pixels / JpegDecoder::MAX_PIXELS_PER_BYTE > bytes.size()) {
        error =
            "damaged: size " + std::to_string(width) + "x" + std::to_string(height) + " larger than its data";
        return false;
    }
    const bool cmyk = cinfo.jpeg_color_space == JCS_CMYK || cinfo.jpeg_color_space == JCS_YCCK;
    cinfo.out_color_space = cmyk ? JCS_CMYK : JCS_EXT_RGBA;
    rgba.resize(pixels * RGBA_CHANNELS);
    if (cmyk) row.resize(static_cast<std::size_t>(width) * CMYK_CHANNELS);
    jpeg_start_decompress(&cinfo);
    while (cinfo.output_scanline < cinfo.output_height) {
        std::uint8_t* target = &rgba[static_cast<std::size_t>(cinfo.output_scanline) * width * RGBA_CHANNELS];
        JSAMPROW rows[1] = {cmyk ? row.data() : target};
        jpeg_read_scanlines(&cinfo, rows, 1);
        if (cmyk) CmykRowToRgba(row.data(), target, width);
    }
    jpeg_finish_decompress(&cinfo);
    image.width = static_cast<int>(width);
    image.height = static_cast<int>(height);
    return true;
}
} // namespace

bool JpegDecoder::IsJpeg(const std::vector<std::uint8_t>& bytes) {
    std::size_t pos = 0;
    if (bytes.empty() || bytes[0] != JPEG_MARKER) return false;
    while (pos < bytes.size() && bytes[pos] == JPEG_MARKER) ++pos;
    return pos < bytes.size() && bytes[pos] == JPEG_START_OF_IMAGE;
}

std::optional<Image> JpegDecoder::Decode(const std::vector<std::uint8_t>& bytes, int maxSide,
                                         std::string& error) {
    jpeg_decompress_struct cinfo{};
    SErrorManager err{};
    cinfo.err = jpeg_std_error(&err.pub);
    err.pub.error_exit = OnError;
    err.pub.emit_message = OnMessage;
    Image image;
    std::vector<std::uint8_t> row;
    const bool decoded = Decompress(cinfo, err, bytes, maxSide, image.rgba, row, image, error);
    jpeg_destroy_decompress(&cinfo);
    if (!decoded) return std::nullopt;
    return image;
}

} // namespace gfx
