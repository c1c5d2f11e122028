// Nine-patch drawing from nine frames or from one picture cut by the title's border insets.
#include "NinePatch.h"

#include <algorithm>

#include "FrameDrawer.h"

namespace gfx {
namespace {
constexpr int PIECES = 9;

// Shrinks two corner lengths in proportion so that together they fit into the available length.
void FitCorners(int available, int& first, int& second) {
    first = std::max(first, 0);
    second = std::max(second, 0);
    const long long sum = static_cast<long long>(first) + second;
    if (sum <= available) return;
    first = available <= 0 ? 0 : static_cast<int>(static_cast<long long>(available) * first / sum);
    second = std::max(available, 0) - first;
}
} // namespace

std::array<Rect, 9> NinePatch::Split(const Rect& area, int left, int top, int right, int bottom) {
    FitCorners(area.w, left, right);
    FitCorners(area.h, top, bottom);
    const int xs[3] = {area.x, area.x + left, area.Right() - right};
    const int ws[3] = {left, area.w - left - right, right};
    const int ys[3] = {area.y, area.y + top, area.Bottom() - bottom};
    const int hs[3] = {top, area.h - top - bottom, bottom};
    std::array<Rect, 9> parts;
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col)
            parts[static_cast<std::size_t>(row * 3 + col)] = {xs[col], ys[row], ws[col], hs[row]};
    }
    return parts;
}

bool NinePatch::DrawNineFrames(ICanvas& canvas, const AniHandle& ani, const Rect& dst, int alpha) {
    const SIZE topLeft = ani.GetSize(0);
    const SIZE topRight = ani.GetSize(2);
    const SIZE bottomLeft = ani.GetSize(6);
    const auto parts = Split(dst, topLeft.cx, topLeft.cy, topRight.cx, bottomLeft.cy);
    bool drawn = false;
    for (int i = 0; i < PIECES; ++i) {
        const Rect& part = parts[static_cast<std::size_t>(i)];
        if (!part.Empty()) drawn = FrameDrawer::Draw(canvas, *ani.Frame(i), part, alpha) || drawn;
    }
    return drawn;
}

bool NinePatch::DrawBorderedFrame(ICanvas& canvas, const AniHandle& ani, const Rect& dst, int alpha) {
    const AniFrame& frame = *ani.Frame(0);
    const AniBorder& border = ani.Title().border;
    if (frame.kind != AniFrame::Kind::Image || !border.Any())
        return FrameDrawer::Draw(canvas, frame, dst, alpha);
    const SIZE natural = FrameDrawer::NaturalSize(frame);
    const auto sources =
        Split({0, 0, natural.cx, natural.cy}, border.left, border.top, border.right, border.bottom);
    const auto targets = Split(dst, border.left, border.top, border.right, border.bottom);
    bool drawn = false;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        if (sources[i].Empty() || targets[i].Empty()) continue;
        drawn = FrameDrawer::DrawPart(canvas, frame, sources[i], targets[i], alpha) || drawn;
    }
    return drawn;
}

bool NinePatch::Draw(ICanvas& canvas, const AniHandle& ani, const Rect& dst, int alpha) {
    if (dst.Empty()) return false;
    if (ani.GetFrameAmount() >= PIECES) return DrawNineFrames(canvas, ani, dst, alpha);
    return DrawBorderedFrame(canvas, ani, dst, alpha);
}

} // namespace gfx
