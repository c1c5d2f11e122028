// PNG output through libpng; errors jump back to a plain C frame, so no C++ object lives across setjmp.
#include "PngWriter.h"

#include <csetjmp>
#include <cstdio>

#include <png.h>

namespace gfx {
namespace {
// Runs libpng over an open file; returns false on any libpng error.
bool WriteRows(std::FILE* file, int width, int height, const std::uint8_t* rgba) {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    if (!png) return false;
    png_infop info = png_create_info_struct(png);
    if (!info) {
        png_destroy_write_struct(&png, nullptr);
        return false;
    }
    if (setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, &info);
        return false;
    }
    png_init_io(png, file);
    png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8,
                 PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    const std::size_t stride = static_cast<std::size_t>(width) * 4;
    for (int row = 0; row < height; ++row) {
        png_write_row(png, const_cast<png_bytep>(rgba + stride * static_cast<std::size_t>(row)));
    }
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return true;
}
} // namespace

bool PngWriter::Write(const std::string& path, int width, int height, const std::vector<std::uint8_t>& rgba) {
    if (width <= 0 || height <= 0) return false;
    if (rgba.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4) return false;
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) return false;
    const bool written = WriteRows(file, width, height, rgba.data());
    const bool closed = std::fclose(file) == 0;
    return written && closed;
}

} // namespace gfx
