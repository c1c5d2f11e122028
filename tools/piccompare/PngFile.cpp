// libpng's simplified interface, which converts any PNG to the format asked for.
#include "PngFile.h"

#include <png.h>

bool PngFile::Read(const std::string& path, RgbaPicture& picture, std::string& error) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, path.c_str())) {
        error = image.message;
        return false;
    }
    image.format = PNG_FORMAT_RGBA;
    picture.width = static_cast<int>(image.width);
    picture.height = static_cast<int>(image.height);
    picture.rgba.resize(PNG_IMAGE_SIZE(image));
    if (!png_image_finish_read(&image, nullptr, picture.rgba.data(), 0, nullptr)) {
        error = image.message;
        png_image_free(&image);
        return false;
    }
    return true;
}

bool PngFile::Write(const std::string& path, const RgbaPicture& picture, std::string& error) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGBA;
    if (!png_image_write_to_file(&image, path.c_str(), 0, picture.rgba.data(), 0, nullptr)) {
        error = image.message;
        return false;
    }
    return true;
}
