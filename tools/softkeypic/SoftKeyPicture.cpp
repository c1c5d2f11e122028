// Draws the sample on-screen keyboard picture that the demo's login service serves: 13 x 4 cells of 30
// pixels, one character each, written as a JPEG (scripts/make-softkey-picture).
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb/stb_easy_font.h>
#include <stb/stb_image_write.h>

namespace {

constexpr int CELL = 30;
constexpr int COLUMNS = 13;
constexpr int ROWS = 4;
constexpr int WIDTH = CELL * COLUMNS;
constexpr int HEIGHT = CELL * ROWS;
constexpr int GLYPH_SCALE = 2;
constexpr int JPEG_QUALITY = 95;

// The characters of the cells, row by row; the login service, not the client, gives them their meaning.
constexpr std::array<const char*, ROWS> ROW_TEXTS = {"1234567890-=`", "qwertyuiop[]\\", "asdfghjkl;',.",
                                                     "zxcvbnm/!@#$%"};

struct Rgb {
    unsigned char r, g, b;
};
constexpr Rgb BACKGROUND{0x1E, 0x2A, 0x38};
constexpr Rgb CELL_FACE{0x26, 0x38, 0x4C};
constexpr Rgb BORDER{0x5F, 0x87, 0xAB};
constexpr Rgb INK{0xF0, 0xF4, 0xFF};

class Picture {
public:
    Picture() : m_pixels(static_cast<std::size_t>(WIDTH * HEIGHT * 3)) {
        Fill(0, 0, WIDTH, HEIGHT, BACKGROUND);
    }

    void Fill(int x0, int y0, int x1, int y1, Rgb colour) {
        for (int y = std::max(0, y0); y < std::min(HEIGHT, y1); ++y)
            for (int x = std::max(0, x0); x < std::min(WIDTH, x1); ++x) {
                unsigned char* p = &m_pixels[static_cast<std::size_t>((y * WIDTH + x) * 3)];
                p[0] = colour.r;
                p[1] = colour.g;
                p[2] = colour.b;
            }
    }

    // One character centred in its cell, from stb_easy_font's quads scaled up.
    void Glyph(int nCol, int nRow, char c) {
        char text[2] = {c, 0};
        std::vector<float> quads(4 * 4 * 64); // x, y, z, colour per vertex
        const int nQuads = stb_easy_font_print(0, 0, text, nullptr, quads.data(),
                                               static_cast<int>(quads.size() * sizeof(float)));
        float fRight = 0, fBottom = 0;
        for (int q = 0; q < nQuads; ++q)
            for (int v = 0; v < 4; ++v) {
                fRight = std::max(fRight, quads[static_cast<std::size_t>((q * 4 + v) * 4)]);
                fBottom = std::max(fBottom, quads[static_cast<std::size_t>((q * 4 + v) * 4 + 1)]);
            }
        const int x0 = nCol * CELL + (CELL - static_cast<int>(fRight) * GLYPH_SCALE) / 2;
        const int y0 = nRow * CELL + (CELL - static_cast<int>(fBottom) * GLYPH_SCALE) / 2;
        for (int q = 0; q < nQuads; ++q) {
            const float* a = &quads[static_cast<std::size_t>(q * 16)];
            const float* c2 = &quads[static_cast<std::size_t>(q * 16 + 8)];
            Fill(x0 + static_cast<int>(a[0]) * GLYPH_SCALE, y0 + static_cast<int>(a[1]) * GLYPH_SCALE,
                 x0 + static_cast<int>(c2[0]) * GLYPH_SCALE, y0 + static_cast<int>(c2[1]) * GLYPH_SCALE, INK);
        }
    }

    bool WriteJpeg(const char* szPath) const {
        return stbi_write_jpg(szPath, WIDTH, HEIGHT, 3, m_pixels.data(), JPEG_QUALITY) != 0;
    }

private:
    std::vector<unsigned char> m_pixels;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT.jpg\n", argv[0]);
        return 2;
    }
    Picture picture;
    for (int row = 0; row < ROWS; ++row)
        for (int col = 0; col < COLUMNS; ++col) {
            const int x = col * CELL, y = row * CELL;
            picture.Fill(x, y, x + CELL, y + CELL, BORDER);
            picture.Fill(x + 1, y + 1, x + CELL - 1, y + CELL - 1, CELL_FACE);
            picture.Glyph(col, row, ROW_TEXTS[static_cast<std::size_t>(row)][col]);
        }
    if (!picture.WriteJpeg(argv[1])) {
        std::fprintf(stderr, "cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
