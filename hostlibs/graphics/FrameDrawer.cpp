// Frames: pictures come from the cache, placeholders are filled boxes with an outline and a centred label.
#include "FrameDrawer.h"

#include <algorithm>

#include "AniCache.h"
#include "FontRenderer.h"
#include "text/Utf8.h"

namespace gfx {
namespace {
// The colour with its alpha scaled by the extra opacity.
DWORD WithOpacity(DWORD colour, int alpha) {
    const DWORD scaled = ((colour >> 24) * static_cast<DWORD>(std::clamp(alpha, 0, 255)) + 127) / 255;
    return (colour & 0x00FFFFFF) | (scaled << 24);
}
} // namespace

SIZE FrameDrawer::NaturalSize(const AniFrame& frame) {
    switch (frame.kind) {
    case AniFrame::Kind::Box:
        return {frame.width, frame.height};
    case AniFrame::Kind::Image:
        if (auto picture = AniCache::Instance().Picture(frame.path)) return {picture->width, picture->height};
        return {0, 0};
    case AniFrame::Kind::Empty:
        break;
    }
    return {0, 0};
}

void FrameDrawer::DrawBox(ICanvas& canvas, const AniFrame& frame, const Rect& dst, int alpha) {
    if (frame.fill) canvas.FillRect(dst, WithOpacity(*frame.fill, alpha));
    if (frame.outline) canvas.OutlineRect(dst, WithOpacity(*frame.outline, alpha));
    if (frame.label.empty() || dst.h < MIN_LABEL_SIZE) return;
    const int size = std::min(LABEL_SIZE, dst.h);
    // Measured and handed over as UTF-8: a recording canvas keeps it as it is, inside a compound not at all.
    const int width = FontRenderer::MeasureUtf8(frame.label, size);
    const Rect previous = canvas.Clip();
    canvas.SetClip(previous.Intersect(dst));
    TextStyle style;
    style.colour = WithOpacity(frame.labelColour, alpha);
    style.size = size;
    canvas.TextUtf8(dst.x + (dst.w - width) / 2, dst.y + (dst.h - size) / 2, frame.label, style);
    canvas.SetClip(previous);
}

bool FrameDrawer::Draw(ICanvas& canvas, const AniFrame& frame, const Rect& dst, int alpha) {
    const SIZE natural = NaturalSize(frame);
    return DrawPart(canvas, frame, {0, 0, natural.cx, natural.cy}, dst, alpha);
}

bool FrameDrawer::DrawPart(ICanvas& canvas, const AniFrame& frame, const Rect& src, const Rect& dst,
                           int alpha) {
    if (dst.Empty()) return false;
    switch (frame.kind) {
    case AniFrame::Kind::Box:
        DrawBox(canvas, frame, dst, alpha);
        return true;
    case AniFrame::Kind::Image: {
        const auto picture = AniCache::Instance().Picture(frame.path);
        if (!picture || src.Empty()) return false;
        canvas.DrawImage(*picture, src, dst, alpha);
        return true;
    }
    case AniFrame::Kind::Empty:
        break;
    }
    return false;
}

} // namespace gfx
