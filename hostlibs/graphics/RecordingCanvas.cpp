// Recording of draw operations: compounds hide their parts so that a transcript reads as the caller drew.
#include "RecordingCanvas.h"

#include <algorithm>
#include <cstdlib>

#include "FontRenderer.h"
#include "TextCodec.h"

namespace gfx {
namespace {
// The pixels an operation may touch; lines and zero-sized operations count one pixel wide.
Rect Bounds(const host::DrawOp& op) {
    if (op.kind == "line") {
        const int left = std::min(op.x, SaturatedAdd(op.x, op.w));
        const int top = std::min(op.y, SaturatedAdd(op.y, op.h));
        return {left, top, SaturatedAdd(std::llabs(op.w), 1), SaturatedAdd(std::llabs(op.h), 1)};
    }
    return {op.x, op.y, std::max(op.w, 1), std::max(op.h, 1)};
}

bool Inside(const Rect& inner, const Rect& outer) {
    return inner.x >= outer.x && inner.y >= outer.y && inner.Right() <= outer.Right() &&
           inner.Bottom() <= outer.Bottom();
}

// Shapes (fills, outlines, lines: selections, carets, bars) are the toolkit's own marks; what a window must
// keep inside itself is its texts and pictures.
bool IsTextOrPicture(const std::string& kind) {
    return kind != "block" && kind != "rect" && kind != "line";
}
} // namespace

void RecordingCanvas::Begin(int width, int height, DWORD) {
    m_width = width;
    m_height = height;
    m_clip = {0, 0, width, height};
    m_compoundDepth = 0;
    m_ops.clear();
    m_dropped = 0;
    m_windows.clear();
    m_overflows.clear();
}

void RecordingCanvas::Record(host::DrawOp op) {
    if (m_compoundDepth > 0) return;
    CheckInsideWindow(op);
    if (Bounds(op).Intersect(m_clip).Empty()) return;
    if (m_ops.size() >= host::kMaxRecordedOps) {
        ++m_dropped;
        return;
    }
    m_ops.push_back(std::move(op));
}

void RecordingCanvas::FillRect(const Rect& rc, DWORD colour) {
    if (rc.Empty()) return;
    Record(OpBuilder("block", rc).Colour(colour));
}

void RecordingCanvas::OutlineRect(const Rect& rc, DWORD colour) {
    if (rc.Empty()) return;
    Record(OpBuilder("rect", rc).Colour(colour));
}

void RecordingCanvas::Line(int x1, int y1, int x2, int y2, DWORD colour) {
    Record(OpBuilder("line", {x1, y1, SaturatedAdd(x2, -static_cast<long long>(x1)),
                              SaturatedAdd(y2, -static_cast<long long>(y1))})
               .Colour(colour));
}

void RecordingCanvas::Text(int x, int y, const std::u32string& text, const TextStyle& style) {
    if (text.empty()) return;
    const int size = FontRenderer::ClampSize(style.size);
    Record(
        OpBuilder("text", {x, y, FontRenderer::Measure(text, size), FontRenderer::MeasureHeight(text, size)})
            .Colour(style.colour)
            .Size(size)
            .Text(TextCodec::Utf32ToUtf8(text)));
}

void RecordingCanvas::DrawImage(const Image&, const Rect&, const Rect& dst, int alpha) {
    if (dst.Empty()) return;
    Record(OpBuilder("image", dst).Colour(static_cast<DWORD>(alpha)));
}

void RecordingCanvas::BeginCompound(const host::DrawOp& op) {
    Record(op);
    ++m_compoundDepth;
}

void RecordingCanvas::EndCompound() {
    if (m_compoundDepth > 0) --m_compoundDepth;
}

void RecordingCanvas::BeginWindow(const WindowTag& window) {
    m_windows.push_back(window);
}

void RecordingCanvas::EndWindow() {
    if (!m_windows.empty()) m_windows.pop_back();
}

void RecordingCanvas::CheckInsideWindow(const host::DrawOp& op) {
    if (m_windows.empty() || !IsTextOrPicture(op.kind) || m_overflows.size() >= host::kMaxRecordedOps) return;
    const WindowTag& window = m_windows.back();
    const Rect bounds = Bounds(op);
    if (Inside(bounds, window.rect)) return;
    const Rect seen = bounds.Intersect(m_clip);
    host::DrawOverflow overflow;
    overflow.op = op;
    overflow.dialog = window.dialog;
    overflow.control = window.control;
    overflow.window = window.rect.ToRECT();
    overflow.clipped = seen.Empty() || Inside(seen, window.rect);
    m_overflows.push_back(std::move(overflow));
}

} // namespace gfx
