// Recording of draw operations: compounds hide their parts so that a transcript reads as the caller drew.
#include "RecordingCanvas.h"

#include <algorithm>
#include <cstdlib>

#include "FontRenderer.h"
#include "text/Utf8.h"

namespace gfx {
namespace {
// Zero-sized operations count one pixel wide.
Rect AtLeastOnePixel(const Rect& rc) {
    return {rc.x, rc.y, std::max(rc.w, 1), std::max(rc.h, 1)};
}

void FillText(host::DrawOp& op, const Rect& place, int size, DWORD colour, std::string_view text) {
    op.kind = "text";
    op.x = place.x;
    op.y = place.y;
    op.w = place.w;
    op.h = place.h;
    op.colour = colour;
    op.size = size;
    op.text.assign(text);
}

bool Inside(const Rect& inner, const Rect& outer) {
    return inner.x >= outer.x && inner.y >= outer.y && inner.Right() <= outer.Right() &&
           inner.Bottom() <= outer.Bottom();
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

// NOTE: the primitives return at once inside a compound: its parts are never recorded, so neither their
// operation nor a text's measure and UTF-8 form is worth building.

bool RecordingCanvas::Admit(const host::DrawOp& op, const Rect& bounds, Content content) {
    if (content == Content::TextOrPicture) CheckInsideWindow(op, bounds);
    return Kept(bounds);
}

bool RecordingCanvas::Kept(const Rect& bounds) {
    if (bounds.Intersect(m_clip).Empty()) return false;
    if (m_ops.size() >= host::MAX_RECORDED_OPS) {
        ++m_dropped;
        return false;
    }
    return true;
}

void RecordingCanvas::Record(const host::DrawOp& op, const Rect& bounds, Content content) {
    if (Admit(op, bounds, content)) m_ops.push_back(op);
}

void RecordingCanvas::Record(host::DrawOp&& op, const Rect& bounds, Content content) {
    if (Admit(op, bounds, content)) m_ops.push_back(std::move(op));
}

void RecordingCanvas::FillRect(const Rect& rc, DWORD colour) {
    if (rc.Empty() || m_compoundDepth > 0) return;
    Record(OpBuilder("block", rc).Colour(colour).Take(), rc, Content::Shape);
}

void RecordingCanvas::OutlineRect(const Rect& rc, DWORD colour) {
    if (rc.Empty() || m_compoundDepth > 0) return;
    Record(OpBuilder("rect", rc).Colour(colour).Take(), rc, Content::Shape);
}

void RecordingCanvas::Line(int x1, int y1, int x2, int y2, DWORD colour) {
    if (m_compoundDepth > 0) return;
    const int dx = SaturatedAdd(x2, -static_cast<long long>(x1));
    const int dy = SaturatedAdd(y2, -static_cast<long long>(y1));
    const Rect bounds{std::min(x1, x2), std::min(y1, y2), SaturatedAdd(std::llabs(dx), 1),
                      SaturatedAdd(std::llabs(dy), 1)};
    Record(OpBuilder("line", {x1, y1, dx, dy}).Colour(colour).Take(), bounds, Content::Shape);
}

void RecordingCanvas::Text(int x, int y, const std::u32string& text, const TextStyle& style) {
    if (text.empty() || m_compoundDepth > 0) return;
    const int size = FontRenderer::ClampSize(style.size);
    const Rect place{x, y, FontRenderer::Measure(text, size), FontRenderer::MeasureHeight(text, size)};
    Record(OpBuilder("text", place).Colour(style.colour).Size(size).Text(txt::Utf8::FromUtf32(text)).Take(),
           AtLeastOnePixel(place), Content::TextOrPicture);
}

void RecordingCanvas::TextUtf8(int x, int y, std::string_view text, const TextStyle& style) {
    if (text.empty() || m_compoundDepth > 0) return;
    // NOTE: only ASCII is recorded as given: any other text goes through its UTF-32 form, so that a broken
    // byte is recorded as the replacement character that is drawn.
    if (!txt::Utf8::IsAscii(text)) {
        Text(x, y, txt::Utf8::ToUtf32(text), style);
        return;
    }
    const int size = FontRenderer::ClampSize(style.size);
    const Rect place{x, y, FontRenderer::MeasureUtf8(text, size),
                     FontRenderer::MeasureHeightUtf8(text, size)};
    const Rect bounds = AtLeastOnePixel(place);
    // The operation is filled in where it is kept: a text is recorded per label per frame. Only one that
    // reaches past its window is built on its own as well, for the window check.
    if (!m_windows.empty() && !Inside(bounds, m_windows.back().rect)) {
        host::DrawOp op;
        FillText(op, place, size, style.colour, text);
        CheckInsideWindow(op, bounds);
    }
    if (Kept(bounds)) FillText(m_ops.emplace_back(), place, size, style.colour, text);
}

void RecordingCanvas::DrawImage(const Image&, const Rect&, const Rect& dst, int alpha) {
    if (dst.Empty() || m_compoundDepth > 0) return;
    Record(OpBuilder("image", dst).Colour(static_cast<DWORD>(alpha)).Take(), dst, Content::TextOrPicture);
}

void RecordingCanvas::BeginCompound(const host::DrawOp& op) {
    // Every compound is a picture or a text: animations, nine-patches, effects, bitmaps, string resources.
    if (m_compoundDepth == 0) Record(op, AtLeastOnePixel({op.x, op.y, op.w, op.h}), Content::TextOrPicture);
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

void RecordingCanvas::CheckInsideWindow(const host::DrawOp& op, const Rect& bounds) {
    if (m_windows.empty() || Inside(bounds, m_windows.back().rect) ||
        m_overflows.size() >= host::MAX_RECORDED_OPS)
        return;
    const WindowTag& window = m_windows.back();
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
