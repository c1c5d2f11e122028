// Drawing of one animation frame (a picture or a drawn placeholder) onto a canvas.
#pragma once

#include "AniIndex.h"
#include "Canvas.h"

namespace gfx {

class FrameDrawer {
public:
    /// Natural size of the frame; 0 x 0 for an empty frame or a missing picture.
    static SIZE NaturalSize(const AniFrame& frame);
    /// Draws the frame stretched over dst with the extra opacity alpha; false when nothing could be drawn.
    static bool Draw(ICanvas& canvas, const AniFrame& frame, const Rect& dst, int alpha);
    /// Draws the part src (in natural-size pixels) of a picture frame onto dst; placeholders ignore src and
    /// fill dst.
    static bool DrawPart(ICanvas& canvas, const AniFrame& frame, const Rect& src, const Rect& dst, int alpha);

    /// Placeholder labels use at most this font size, and are left out in boxes lower than MIN_LABEL_SIZE.
    static constexpr int LABEL_SIZE = 12;
    static constexpr int MIN_LABEL_SIZE = 6;

private:
    static void DrawBox(ICanvas& canvas, const AniFrame& frame, const Rect& dst, int alpha);
};

} // namespace gfx
