// Forwarding of every canvas call to two canvases.
#include "TeeCanvas.h"

namespace gfx {

void TeeCanvas::Begin(int width, int height, DWORD clearColour) {
    m_primary.Begin(width, height, clearColour);
    m_second.Begin(width, height, clearColour);
}

void TeeCanvas::SetClip(const Rect& clip) {
    m_primary.SetClip(clip);
    m_second.SetClip(m_primary.Clip());
}

void TeeCanvas::FillRect(const Rect& rc, DWORD colour) {
    m_primary.FillRect(rc, colour);
    m_second.FillRect(rc, colour);
}

void TeeCanvas::OutlineRect(const Rect& rc, DWORD colour) {
    m_primary.OutlineRect(rc, colour);
    m_second.OutlineRect(rc, colour);
}

void TeeCanvas::Line(int x1, int y1, int x2, int y2, DWORD colour) {
    m_primary.Line(x1, y1, x2, y2, colour);
    m_second.Line(x1, y1, x2, y2, colour);
}

void TeeCanvas::Text(int x, int y, const std::u32string& text, const TextStyle& style) {
    m_primary.Text(x, y, text, style);
    m_second.Text(x, y, text, style);
}

void TeeCanvas::TextUtf8(int x, int y, std::string_view text, const TextStyle& style) {
    m_primary.TextUtf8(x, y, text, style);
    m_second.TextUtf8(x, y, text, style);
}

void TeeCanvas::DrawImage(const Image& image, const Rect& src, const Rect& dst, int alpha) {
    m_primary.DrawImage(image, src, dst, alpha);
    m_second.DrawImage(image, src, dst, alpha);
}

void TeeCanvas::BeginCompound(const host::DrawOp& op) {
    m_primary.BeginCompound(op);
    m_second.BeginCompound(op);
}

void TeeCanvas::EndCompound() {
    m_primary.EndCompound();
    m_second.EndCompound();
}

void TeeCanvas::BeginWindow(const WindowTag& window) {
    m_primary.BeginWindow(window);
    m_second.BeginWindow(window);
}

void TeeCanvas::EndWindow() {
    m_primary.EndWindow();
    m_second.EndWindow();
}

} // namespace gfx
