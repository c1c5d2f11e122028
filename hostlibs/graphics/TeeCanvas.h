// A canvas that hands everything it receives to two canvases: the one the host sees and one that checks.
#pragma once

#include "Canvas.h"

namespace gfx {

/// Forwards every call to the primary canvas and to the second one; answers size and clip from the primary.
/// Both keep their own clip, set through this canvas, so they always agree.
class TeeCanvas final : public ICanvas {
public:
    TeeCanvas(ICanvas& primary, ICanvas& second) : m_primary(primary), m_second(second) {}

    void Begin(int width, int height, DWORD clearColour) override;
    int Width() const override { return m_primary.Width(); }
    int Height() const override { return m_primary.Height(); }
    void SetClip(const Rect& clip) override;
    Rect Clip() const override { return m_primary.Clip(); }

    void FillRect(const Rect& rc, DWORD colour) override;
    void OutlineRect(const Rect& rc, DWORD colour) override;
    void Line(int x1, int y1, int x2, int y2, DWORD colour) override;
    void Text(int x, int y, const std::u32string& text, const TextStyle& style) override;
    void TextUtf8(int x, int y, std::string_view text, const TextStyle& style) override;
    void DrawImage(const Image& image, const Rect& src, const Rect& dst, int alpha) override;
    void BeginCompound(const host::DrawOp& op) override;
    void EndCompound() override;
    void BeginWindow(const WindowTag& window) override;
    void EndWindow() override;

private:
    ICanvas& m_primary;
    ICanvas& m_second;
};

} // namespace gfx
