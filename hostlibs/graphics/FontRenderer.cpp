// FreeType rendering of the DejaVu Sans face, with a bounded cache of rendered glyphs.
#include "FontRenderer.h"

#include <algorithm>
#include <cstdlib>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace gfx {
namespace {
constexpr const char* FONT_PATH = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
// Lets a machine without the font package point at another face.
constexpr const char* FONT_PATH_VARIABLE = "FLASHSIM_FONT";
constexpr int MIN_SIZE = 4;
constexpr int MAX_SIZE = 256;
constexpr std::size_t MAX_CACHED_GLYPHS = 20000;

const char* FontPath() {
    const char* overridden = std::getenv(FONT_PATH_VARIABLE);
    return overridden && *overridden ? overridden : FONT_PATH;
}
} // namespace

FontRenderer& FontRenderer::Instance() {
    static FontRenderer renderer;
    return renderer;
}

FontRenderer::FontRenderer() {
    if (FT_Init_FreeType(&m_library) != 0) {
        m_library = nullptr;
        return;
    }
    if (FT_New_Face(m_library, FontPath(), 0, &m_face) != 0) m_face = nullptr;
}

FontRenderer::~FontRenderer() {
    if (m_face) FT_Done_Face(m_face);
    if (m_library) FT_Done_FreeType(m_library);
}

int FontRenderer::ClampSize(int size) {
    return std::clamp(size, MIN_SIZE, MAX_SIZE);
}

bool FontRenderer::SelectSize(int size) {
    if (m_selectedSize == size) return true;
    if (FT_Set_Pixel_Sizes(m_face, 0, static_cast<FT_UInt>(size)) != 0) return false;
    m_selectedSize = size;
    return true;
}

const Glyph* FontRenderer::GetGlyph(char32_t c, int size) {
    if (!m_face) return nullptr;
    size = ClampSize(size);
    std::lock_guard lock(m_mutex);
    const auto key = std::make_pair(size, c);
    if (auto it = m_glyphs.find(key); it != m_glyphs.end()) return &it->second;
    if (m_glyphs.size() >= MAX_CACHED_GLYPHS) m_glyphs.clear();
    if (!SelectSize(size) || FT_Load_Char(m_face, c, FT_LOAD_RENDER) != 0) return nullptr;
    const FT_GlyphSlot slot = m_face->glyph;
    Glyph glyph;
    glyph.width = static_cast<int>(slot->bitmap.width);
    glyph.rows = static_cast<int>(slot->bitmap.rows);
    glyph.left = slot->bitmap_left;
    glyph.top = slot->bitmap_top;
    glyph.advance = static_cast<int>((slot->advance.x + 32) >> 6);
    glyph.coverage.resize(static_cast<std::size_t>(glyph.width) * static_cast<std::size_t>(glyph.rows));
    for (int row = 0; row < glyph.rows; ++row) {
        const unsigned char* source =
            slot->bitmap.buffer + static_cast<std::ptrdiff_t>(row) * slot->bitmap.pitch;
        std::copy_n(source, glyph.width,
                    glyph.coverage.begin() + static_cast<std::ptrdiff_t>(row) * glyph.width);
    }
    return &m_glyphs.emplace(key, std::move(glyph)).first->second;
}

int FontRenderer::Ascender(int size) {
    size = ClampSize(size);
    if (!m_face) return size;
    std::lock_guard lock(m_mutex);
    if (!SelectSize(size)) return size;
    return static_cast<int>((m_face->size->metrics.ascender + 32) >> 6);
}

int FontRenderer::Measure(std::u32string_view text, int size) {
    size = ClampSize(size);
    std::lock_guard lock(m_advanceMutex);
    auto [it, inserted] = m_asciiAdvances.try_emplace(size);
    std::array<int, 128>& ascii = it->second;
    if (inserted) ascii.fill(-1);
    auto advanceOf = [&](char32_t c) {
        if (c < 128 && ascii[c] >= 0) return ascii[c];
        const Glyph* glyph = GetGlyph(c, size);
        const int advance = glyph ? glyph->advance : size / 2;
        if (c < 128) ascii[c] = advance;
        return advance;
    };
    int widest = 0;
    int line = 0;
    for (char32_t c : text) {
        if (c == U'\n') {
            widest = std::max(widest, line);
            line = 0;
            continue;
        }
        line += advanceOf(c);
    }
    return std::max(widest, line);
}

int FontRenderer::MeasureHeight(std::u32string_view text, int size) {
    if (text.empty()) return 0;
    size = ClampSize(size);
    const auto lines = static_cast<int>(std::count(text.begin(), text.end(), U'\n')) + 1;
    return lines * size + (lines - 1) * LINE_GAP;
}

} // namespace gfx
