// FreeType rendering of the Noto Sans Mono CJK face scaled to the layout's cells, with a bounded cache of
// rendered glyphs.
#include "FontRenderer.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

#include "text/Utf8.h"

namespace gfx {
namespace {
// Debian's fonts-noto-cjk: one collection file holding the proportional and the monospaced faces.
constexpr const char* FONT_PATH = "/usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc";
constexpr const char* FAMILY = "Noto Sans Mono CJK SC";
constexpr FT_Long FAMILY_INDEX = 7; // its place in Debian's collection
// Lets a machine without the font package point at another file; its face named FAMILY is used, else its
// first face.
constexpr const char* FONT_PATH_VARIABLE = "FLASHSIM_FONT";
constexpr int MIN_SIZE = 4;
constexpr int MAX_SIZE = 256;
constexpr std::size_t MAX_CACHED_GLYPHS = 20000;
constexpr int PER_MILLE = 1000;

const char* FontPath() {
    const char* overridden = std::getenv(FONT_PATH_VARIABLE);
    return overridden && *overridden ? overridden : FONT_PATH;
}

// The share of the em above the baseline that puts the face's ideographic em box (its typographic ascender
// and descender) exactly on the line's height, so that CJK and Latin glyphs sit inside the size the layout
// gives a line.
int AscentPerMille(FT_Face face) {
    long ascender = face->ascender;
    long descender = face->descender;
    if (const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
        os2 && os2->sTypoAscender > 0 && os2->sTypoDescender <= 0) {
        ascender = os2->sTypoAscender;
        descender = os2->sTypoDescender;
    }
    const long height = ascender - descender;
    return height > 0 ? static_cast<int>(ascender * PER_MILLE / height) : PER_MILLE;
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
    OpenFace(FontPath());
}

FontRenderer::~FontRenderer() {
    if (m_face) FT_Done_Face(m_face);
    if (m_library) FT_Done_FreeType(m_library);
}

bool FontRenderer::OpenFace(const char* path) {
    auto isWanted = [](FT_Face face) {
        return face->family_name && std::strcmp(face->family_name, FAMILY) == 0;
    };
    // Opening a face of the collection reads its tables: the known place of the face is tried first.
    FT_Face face = nullptr;
    if (FT_New_Face(m_library, path, FAMILY_INDEX, &face) == 0) {
        if (isWanted(face)) return UseFace(face);
        FT_Done_Face(face);
    }
    if (FT_New_Face(m_library, path, 0, &face) != 0) return false;
    const FT_Long faces = face->num_faces;
    for (FT_Long i = 1; i < faces && !isWanted(face); ++i) {
        FT_Face next = nullptr;
        if (FT_New_Face(m_library, path, i, &next) != 0) continue;
        if (!isWanted(next)) {
            FT_Done_Face(next);
            continue;
        }
        FT_Done_Face(face);
        face = next;
    }
    return UseFace(face); // without a face of that family, the file's first face
}

bool FontRenderer::UseFace(FT_FaceRec_* face) {
    m_face = face;
    m_ascentPerMille = AscentPerMille(face);
    return true;
}

int FontRenderer::ClampSize(int size) {
    return std::clamp(size, MIN_SIZE, MAX_SIZE);
}

int FontRenderer::Measure(std::u32string_view text, int size) {
    size = ClampSize(size);
    int widest = 0;
    int line = 0;
    for (char32_t c : text) {
        if (c == U'\n') {
            widest = std::max(widest, line);
            line = 0;
            continue;
        }
        line += CellWidth(c, size);
    }
    return std::max(widest, line);
}

int FontRenderer::MeasureUtf8(std::string_view text, int size) {
    size = ClampSize(size);
    // Most texts are one line of ASCII: every cell is half the size.
    if (text.find('\n') == std::string_view::npos && txt::Utf8::IsAscii(text))
        return static_cast<int>(text.size()) * CellWidth(U'a', size);
    int widest = 0;
    int line = 0;
    for (std::size_t pos = 0; pos < text.size();) {
        const auto c = static_cast<unsigned char>(text[pos]);
        if (c == '\n') {
            widest = std::max(widest, line);
            line = 0;
            ++pos;
            continue;
        }
        if (c < 0x80) {
            line += CellWidth(c, size);
            ++pos;
            continue;
        }
        line += CellWidth(txt::Utf8::Decode(text, pos), size);
    }
    return std::max(widest, line);
}

int FontRenderer::MeasureHeight(std::u32string_view text, int size) {
    if (text.empty()) return 0;
    size = ClampSize(size);
    const auto lines = static_cast<int>(std::count(text.begin(), text.end(), U'\n')) + 1;
    return lines * size + (lines - 1) * LINE_GAP;
}

int FontRenderer::MeasureHeightUtf8(std::string_view text, int size) {
    // NOTE: a line feed byte is always a line feed: UTF-8 never uses bytes below 0x80 inside a character.
    if (text.empty()) return 0;
    size = ClampSize(size);
    if (text.find('\n') == std::string_view::npos) return size;
    const auto lines = static_cast<int>(std::count(text.begin(), text.end(), '\n')) + 1;
    return lines * size + (lines - 1) * LINE_GAP;
}

bool FontRenderer::SelectSize(int size) {
    if (m_selectedSize == size) return true;
    // NOTE: the horizontal scale makes half the em exactly the half cell (size / 2) also for odd sizes, where
    // the full em is then one pixel narrower than the full cell; a monospaced face never passes its cell.
    const auto width = static_cast<FT_UInt>(CellWidth(U'a', size) * 2);
    if (FT_Set_Pixel_Sizes(m_face, width, static_cast<FT_UInt>(size)) != 0) return false;
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
    Glyph glyph;
    if (!RenderGlyph(c, size, glyph)) return nullptr;
    return &m_glyphs.emplace(key, std::move(glyph)).first->second;
}

bool FontRenderer::CopyGlyph(char32_t c, int size, Glyph& out) {
    if (!m_face) return false;
    size = ClampSize(size);
    std::lock_guard lock(m_mutex);
    if (auto it = m_glyphs.find(std::make_pair(size, c)); it != m_glyphs.end()) {
        out = it->second;
        return true;
    }
    // NOTE: rendered without entering the cache: another thread may hold a pointer that GetGlyph handed out,
    // which a cache cleared for room would leave dangling.
    return RenderGlyph(c, size, out);
}

bool FontRenderer::RenderGlyph(char32_t c, int size, Glyph& glyph) {
    if (!SelectSize(size) || FT_Load_Char(m_face, c, FT_LOAD_RENDER) != 0) return false;
    const FT_GlyphSlot slot = m_face->glyph;
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
    return true;
}

int FontRenderer::Ascender(int size) const {
    size = ClampSize(size);
    return (size * m_ascentPerMille + PER_MILLE / 2) / PER_MILLE;
}

} // namespace gfx
