// Glyphs of the one font face the graphics library draws with, rendered by FreeType and cached per size, and
// the cell widths every text is measured and placed by.
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <string_view>
#include <utility>
#include <vector>

struct FT_LibraryRec_;
struct FT_FaceRec_;

namespace gfx {

/// One rendered glyph: 8-bit coverage, its offset from the pen position on the baseline, and its advance.
struct Glyph {
    int width = 0;
    int rows = 0;
    int left = 0;    ///< pixels right of the pen
    int top = 0;     ///< pixels above the baseline
    int advance = 0; ///< the face's own advance in pixels
    std::vector<std::uint8_t> coverage;
};

/// The font used for every text. Texts are measured and placed by cells, exactly as the auto text lays them
/// out: a character below U+0080 (one byte in UTF-8) is half the font size wide, every other character the
/// full size. The face (Noto Sans Mono CJK, whose Latin advance is half the em and CJK advance the full em)
/// is scaled to those cells, and each glyph is drawn at the start of its cell, so a drawn text never drifts
/// from its layout. Without a readable font file, texts are measured the same way and drawn as nothing.
class FontRenderer {
public:
    static FontRenderer& Instance();
    ~FontRenderer();
    FontRenderer(const FontRenderer&) = delete;
    FontRenderer& operator=(const FontRenderer&) = delete;

    bool HasFace() const { return m_face != nullptr; }
    /// Pixel sizes are clamped to this range.
    static int ClampSize(int size);
    /// Width of the cell of c at that size: half the size below U+0080, else the full size.
    static int CellWidth(char32_t c, int size) { return c < 0x80 ? size / 2 : size; }
    /// Width of the widest line of the text (lines end at line feeds), by cells.
    static int Measure(std::u32string_view text, int size);
    /// The same for a UTF-8 text, decoded as Utf8::ToUtf32 decodes it, without a UTF-32 copy.
    static int MeasureUtf8(std::string_view text, int size);
    /// Height of the text: one font size per line plus the line gap between lines.
    static int MeasureHeight(std::u32string_view text, int size);
    static int MeasureHeightUtf8(std::string_view text, int size);
    /// Extra pixels between two lines of one text.
    static constexpr int LINE_GAP = 2;

    /// The glyph of c at that size; null without a face. Valid until the next call on this renderer.
    const Glyph* GetGlyph(char32_t c, int size);
    /// A copy of the glyph of c at that size, safe from any thread; false without a face.
    bool CopyGlyph(char32_t c, int size, Glyph& out);
    /// Pixels from the top of a line to its baseline: the face's ideographic em box fills the line's height.
    int Ascender(int size) const;

private:
    FontRenderer();
    /// Opens the face of the family of the font file, or its first face; false when the file cannot be read.
    bool OpenFace(const char* path);
    bool UseFace(::FT_FaceRec_* face);
    bool SelectSize(int size);
    /// Renders c at that size into glyph; the caller holds m_mutex.
    bool RenderGlyph(char32_t c, int size, Glyph& glyph);

    ::FT_LibraryRec_* m_library = nullptr;
    ::FT_FaceRec_* m_face = nullptr;
    /// Share of the em above the baseline, in thousandths.
    int m_ascentPerMille = 880;
    int m_selectedSize = 0;
    std::map<std::pair<int, char32_t>, Glyph> m_glyphs;
    std::mutex m_mutex;
};

} // namespace gfx
