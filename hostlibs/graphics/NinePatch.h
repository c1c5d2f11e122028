// Nine-patch backgrounds: corners kept, edges and centre stretched over any rectangle.
#pragma once

#include <array>

#include "AniHandle.h"
#include "Canvas.h"

namespace gfx {

class NinePatch {
public:
    /// The 3 x 3 parts of area, row by row (top-left, top, top-right, left, centre, right, bottom-left ...),
    /// for corner columns left, right and corner rows top, bottom; corners larger than the area shrink in
    /// proportion.
    static std::array<Rect, 9> Split(const Rect& area, int left, int top, int right, int bottom);
    /// Draws the animation as a nine-patch over dst; false when nothing could be drawn.
    static bool Draw(ICanvas& canvas, const AniHandle& ani, const Rect& dst, int alpha);

private:
    static bool DrawNineFrames(ICanvas& canvas, const AniHandle& ani, const Rect& dst, int alpha);
    static bool DrawBorderedFrame(ICanvas& canvas, const AniHandle& ani, const Rect& dst, int alpha);
};

} // namespace gfx
