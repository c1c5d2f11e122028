// Glyphs of the one font face the graphics library draws with, rendered by FreeType and cached per size.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
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
    int advance = 0; ///< pixels to the next pen position
    std::vector<std::uint8_t> coverage;
};

/// The font used for every text. Without a readable font file, texts are measured as half the size per
/// character and drawn as nothing.
class FontRenderer {
public:
    static FontRenderer& Instance();
    ~FontRenderer();
    FontRenderer(const FontRenderer&) = delete;
    FontRenderer& operator=(const FontRenderer&) = delete;

    bool HasFace() const { return m_face != nullptr; }
    /// Pixel sizes are clamped to this range.
    static int ClampSize(int size);
    /// The glyph of c at that size; null without a face. Valid until the next call on this renderer.
    const Glyph* GetGlyph(char32_t c, int size);
    /// Pixels from the top of a line to its baseline.
    int Ascender(int size);
    /// Width of the widest line of the text (lines end at line feeds).
    int Measure(std::u32string_view text, int size);
    /// Height of the text: one font size per line plus the line gap between lines.
    static int MeasureHeight(std::u32string_view text, int size);
    /// Extra pixels between two lines of one text.
    static constexpr int LINE_GAP = 2;

private:
    FontRenderer();
    bool SelectSize(int size);

    ::FT_LibraryRec_* m_library = nullptr;
    ::FT_FaceRec_* m_face = nullptr;
    int m_selectedSize = 0;
    std::map<std::pair<int, char32_t>, Glyph> m_glyphs;
    std::mutex m_mutex;
    /// ASCII advances per font size (-1: not known yet), so that measuring a label takes one look-up per
    /// text instead of one locked glyph look-up per character.
    std::unordered_map<int, std::array<int, 128>> m_asciiAdvances;
    std::mutex m_advanceMutex;
};

} // namespace gfx
