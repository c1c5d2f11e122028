// Software rasterising into RGBA bytes with "source over" blending.
#include "RasterCanvas.h"

#include <algorithm>
#include <cstdlib>

#include "FontRenderer.h"

namespace gfx {
namespace {
constexpr unsigned FULL_ALPHA = 255;
constexpr unsigned HARD_EDGE_THRESHOLD = 128;

unsigned AlphaOf(DWORD colour) {
    return (colour >> 24) & 0xFF;
}
std::uint8_t Channel(DWORD colour, int shift) {
    return static_cast<std::uint8_t>((colour >> shift) & 0xFF);
}
unsigned Scale(unsigned a, unsigned b) {
    return (a * b + 127) / 255;
}
std::uint8_t Mix(unsigned source, unsigned target, unsigned alpha) {
    return static_cast<std::uint8_t>((source * alpha + target * (FULL_ALPHA - alpha) + 127) / 255);
}
} // namespace

void RasterCanvas::Begin(int width, int height, DWORD clearColour) {
    m_width = std::max(width, 0);
    m_height = std::max(height, 0);
    m_clip = {0, 0, m_width, m_height};
    m_pixels.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height) * 4);
    const std::uint8_t rgba[4] = {Channel(clearColour, 16), Channel(clearColour, 8), Channel(clearColour, 0),
                                  Channel(clearColour, 24)};
    for (std::size_t i = 0; i < m_pixels.size(); i += 4) std::copy_n(rgba, 4, m_pixels.begin() + i);
}

void RasterCanvas::SetClip(const Rect& clip) {
    m_clip = clip.Intersect({0, 0, m_width, m_height});
}

DWORD RasterCanvas::PixelAt(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) return 0;
    const std::uint8_t* p = &m_pixels[(static_cast<std::size_t>(y) * m_width + x) * 4];
    return (DWORD{p[3]} << 24) | (DWORD{p[0]} << 16) | (DWORD{p[1]} << 8) | DWORD{p[2]};
}

void RasterCanvas::BlendPixel(int x, int y, DWORD colour, unsigned alpha) {
    if (alpha == 0 || !m_clip.Contains(x, y)) return;
    std::uint8_t* p = &m_pixels[(static_cast<std::size_t>(y) * m_width + x) * 4];
    if (alpha >= FULL_ALPHA) {
        p[0] = Channel(colour, 16);
        p[1] = Channel(colour, 8);
        p[2] = Channel(colour, 0);
        p[3] = 255;
        return;
    }
    p[0] = Mix(Channel(colour, 16), p[0], alpha);
    p[1] = Mix(Channel(colour, 8), p[1], alpha);
    p[2] = Mix(Channel(colour, 0), p[2], alpha);
    p[3] = static_cast<std::uint8_t>(alpha + Scale(p[3], FULL_ALPHA - alpha));
}

void RasterCanvas::FillRect(const Rect& rc, DWORD colour) {
    const Rect area = rc.Intersect(m_clip);
    const unsigned alpha = AlphaOf(colour);
    for (int y = area.y; y < area.Bottom(); ++y) {
        for (int x = area.x; x < area.Right(); ++x) BlendPixel(x, y, colour, alpha);
    }
}

void RasterCanvas::OutlineRect(const Rect& rc, DWORD colour) {
    if (rc.Empty()) return;
    FillRect({rc.x, rc.y, rc.w, 1}, colour);
    if (rc.h > 1) FillRect({rc.x, rc.Bottom() - 1, rc.w, 1}, colour);
    if (rc.h > 2) {
        FillRect({rc.x, rc.y + 1, 1, rc.h - 2}, colour);
        if (rc.w > 1) FillRect({rc.Right() - 1, rc.y + 1, 1, rc.h - 2}, colour);
    }
}

void RasterCanvas::Line(int x1, int y1, int x2, int y2, DWORD colour) {
    // Bresenham. Ends far outside the screen are pulled in so that a wild coordinate cannot make the walk
    // endless.
    constexpr int LINE_END_LIMIT = 1 << 20;
    x1 = std::clamp(x1, -LINE_END_LIMIT, LINE_END_LIMIT);
    x2 = std::clamp(x2, -LINE_END_LIMIT, LINE_END_LIMIT);
    y1 = std::clamp(y1, -LINE_END_LIMIT, LINE_END_LIMIT);
    y2 = std::clamp(y2, -LINE_END_LIMIT, LINE_END_LIMIT);
    const unsigned alpha = AlphaOf(colour);
    const int dx = std::abs(x2 - x1), sx = x1 < x2 ? 1 : -1;
    const int dy = -std::abs(y2 - y1), sy = y1 < y2 ? 1 : -1;
    int error = dx + dy;
    for (;;) {
        BlendPixel(x1, y1, colour, alpha);
        if (x1 == x2 && y1 == y2) break;
        const int doubled = 2 * error;
        if (doubled >= dy) {
            error += dy;
            x1 += sx;
        }
        if (doubled <= dx) {
            error += dx;
            y1 += sy;
        }
    }
}

void RasterCanvas::DrawTextRun(int x, int y, const std::u32string& text, int size, DWORD colour,
                               bool antialias) {
    FontRenderer& font = FontRenderer::Instance();
    const unsigned colourAlpha = AlphaOf(colour);
    const int baselineOffset = font.Ascender(size);
    int penX = x;
    int lineTop = y;
    for (char32_t c : text) {
        if (c == U'\n') {
            penX = x;
            lineTop += size + FontRenderer::LINE_GAP;
            continue;
        }
        // Each glyph starts at its own cell, whatever the face's advance, so runs and lines land where the
        // layout put them.
        const int cellX = penX;
        penX += FontRenderer::CellWidth(c, size);
        const Glyph* glyph = font.GetGlyph(c, size);
        if (!glyph) continue;
        DrawGlyph(*glyph, cellX + glyph->left, lineTop + baselineOffset - glyph->top, colour, colourAlpha,
                  antialias);
    }
}

void RasterCanvas::DrawGlyph(const Glyph& glyph, int left, int top, DWORD colour, unsigned colourAlpha,
                             bool antialias) {
    const Rect box = Rect{left, top, glyph.width, glyph.rows}.Intersect(m_clip);
    for (int row = box.y; row < box.Bottom(); ++row) {
        const std::uint8_t* coverage = &glyph.coverage[static_cast<std::size_t>(row - top) * glyph.width];
        for (int col = box.x; col < box.Right(); ++col) {
            unsigned value = coverage[col - left];
            if (!antialias) value = value >= HARD_EDGE_THRESHOLD ? FULL_ALPHA : 0;
            BlendPixel(col, row, colour, Scale(value, colourAlpha));
        }
    }
}

void RasterCanvas::Text(int x, int y, const std::u32string& text, const TextStyle& style) {
    if (text.empty()) return;
    const int size = FontRenderer::ClampSize(style.size);
    if (style.effect == TEXT_EFFECT_SHADOW) {
        DrawTextRun(x + 1, y + 1, text, size, style.effectColour, style.antialias);
    } else if (style.effect == TEXT_EFFECT_OUTLINE) {
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                if (dx != 0 || dy != 0)
                    DrawTextRun(x + dx, y + dy, text, size, style.effectColour, style.antialias);
            }
        }
    }
    DrawTextRun(x, y, text, size, style.colour, style.antialias);
}

void RasterCanvas::DrawImage(const Image& image, const Rect& src, const Rect& dst, int alpha) {
    const Rect source = src.Intersect({0, 0, image.width, image.height});
    if (source.Empty() || dst.Empty() || alpha <= 0) return;
    const unsigned extra = static_cast<unsigned>(std::min(alpha, 255));
    const Rect area = dst.Intersect(m_clip);
    const std::size_t red = image.order == PixelOrder::Bgra ? 2 : 0;
    const std::size_t blue = 2 - red;
    for (int y = area.y; y < area.Bottom(); ++y) {
        // Nearest source pixel of each target pixel's centre.
        const long long sy =
            source.y + (static_cast<long long>(y - dst.y) * 2 + 1) * source.h / (2LL * dst.h);
        for (int x = area.x; x < area.Right(); ++x) {
            const long long sx =
                source.x + (static_cast<long long>(x - dst.x) * 2 + 1) * source.w / (2LL * dst.w);
            const std::uint8_t* p = &image.rgba[(static_cast<std::size_t>(sy) * image.width + sx) * 4];
            const DWORD colour = (DWORD{p[red]} << 16) | (DWORD{p[1]} << 8) | DWORD{p[blue]};
            BlendPixel(x, y, colour, Scale(p[3], extra));
        }
    }
}

} // namespace gfx
