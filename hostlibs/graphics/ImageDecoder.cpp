// Picture decoding: JPEG through libjpeg-turbo, BMP and PNG through stb_image, kept private to this file
// (static functions, no exported symbols).
#include "ImageDecoder.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "JpegDecoder.h"
#include "Log.h"
#include "PictureGuard.h"
#include "hostlibs/HostMisses.h"
#include "text/ClientPath.h"

#define STB_IMAGE_STATIC
#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_BMP
#define STBI_ONLY_PNG
#define STBI_NO_STDIO
#include <stb/stb_image.h>

namespace gfx {
namespace {
constexpr int RGBA_CHANNELS = 4;

std::optional<Image> Refuse(std::string* error, std::string what) {
    if (error) *error = std::move(what);
    return std::nullopt;
}
} // namespace

std::optional<Image> ImageDecoder::Decode(const std::vector<std::uint8_t>& original, std::string* error) {
    const auto cleaned = PictureGuard::WithoutEmptyPngData(original);
    const std::vector<std::uint8_t>& bytes = cleaned ? *cleaned : original;
    if (bytes.empty()) return Refuse(error, "empty file");
    if (const auto fault = PictureGuard::UnsafeForDecoder(bytes)) return Refuse(error, "damaged: " + *fault);
    if (bytes.size() > static_cast<std::size_t>(INT_MAX)) return Refuse(error, "file too large");
    if (JpegDecoder::IsJpeg(bytes)) {
        std::string what;
        auto image = JpegDecoder::Decode(bytes, MAX_SIDE, what);
        return image ? image : Refuse(error, std::move(what));
    }
    const auto* data = reinterpret_cast<const stbi_uc*>(bytes.data());
    const int length = static_cast<int>(bytes.size());
    int width = 0, height = 0, channels = 0;
    if (!stbi_info_from_memory(data, length, &width, &height, &channels))
        return Refuse(error, "not a BMP, JPEG or PNG picture");
    // NOTE: stb gives a top-down BMP's height as the file has it, negative; decoding makes it positive.
    if (height < 0 && height != INT_MIN) height = -height;
    if (width <= 0 || height <= 0 || width > MAX_SIDE || height > MAX_SIDE)
        return Refuse(error, "size " + std::to_string(width) + "x" + std::to_string(height) + " refused");
    if (PictureGuard::BmpLargerThanItsData(bytes, width, height))
        return Refuse(error, "damaged: size " + std::to_string(width) + "x" + std::to_string(height) +
                                 " larger than its data");
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
    if (path.empty()) {
        host::NoteMiss("picture", name);
        return std::nullopt;
    }
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
