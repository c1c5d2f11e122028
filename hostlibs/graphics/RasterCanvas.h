// A canvas of RGBA pixels: blended shapes, FreeType text and scaled pictures, limited to the clip rectangle.
#pragma once

#include <cstdint>
#include <vector>

#include "Canvas.h"

namespace gfx {

struct Glyph;

class RasterCanvas final : public ICanvas {
public:
    void Begin(int width, int height, DWORD clearColour) override;
    int Width() const override { return m_width; }
    int Height() const override { return m_height; }
    Rect Clip() const override { return m_clip; }
    void SetClip(const Rect& clip) override;

    void FillRect(const Rect& rc, DWORD colour) override;
    void OutlineRect(const Rect& rc, DWORD colour) override;
    void Line(int x1, int y1, int x2, int y2, DWORD colour) override;
    void Text(int x, int y, const std::u32string& text, const TextStyle& style) override;
    void DrawImage(const Image& image, const Rect& src, const Rect& dst, int alpha) override;
    void BeginCompound(const host::DrawOp&) override {}
    void EndCompound() override {}
    void BeginWindow(const WindowTag&) override {}
    void EndWindow() override {}

    const std::vector<std::uint8_t>& Pixels() const { return m_pixels; }
    /// 0xAARRGGBB of one pixel (0 outside the frame).
    DWORD PixelAt(int x, int y) const;

private:
    /// Blends an ARGB colour whose alpha has already been scaled (0..255) into one pixel inside the clip.
    void BlendPixel(int x, int y, DWORD colour, unsigned alpha);
    void DrawTextRun(int x, int y, const std::u32string& text, int size, DWORD colour, bool antialias);
    /// Blends one glyph's coverage with its bitmap's top-left corner at (left, top).
    void DrawGlyph(const Glyph& glyph, int left, int top, DWORD colour, unsigned colourAlpha, bool antialias);

    int m_width = 0;
    int m_height = 0;
    Rect m_clip;
    std::vector<std::uint8_t> m_pixels;
};

} // namespace gfx
