// The differences between a picture and its golden picture, pixel by pixel.
#pragma once

#include "PngFile.h"

/// Counts the pixels of two pictures of one size that differ by more than a channel tolerance, and where.
class PictureDiff {
public:
    /// A pixel differs when one of its four channels differs by more than this: small changes of a glyph's
    /// antialiasing pass, a moved, missing or other glyph does not.
    static constexpr int CHANNEL_TOLERANCE = 48;
    /// A picture matches while at most this many pixels differ: fewer than one changed character of the
    /// smallest text on the sample screens (a "0/0" that became "11/15" changes 109).
    static constexpr int ALLOWED_PIXELS = 16;

    PictureDiff(const RgbaPicture& golden, const RgbaPicture& actual);

    bool SameSize() const { return m_sameSize; }
    int DifferingPixels() const { return m_differing; }
    bool Matches() const { return m_sameSize && m_differing <= ALLOWED_PIXELS; }
    /// "same", or the count, the limit and the rectangle that holds the differences.
    std::string Summary() const;
    /// The actual picture dimmed, with the differing pixels in red.
    RgbaPicture Marked() const;

private:
    const RgbaPicture& m_golden;
    const RgbaPicture& m_actual;
    bool m_sameSize = false;
    int m_differing = 0;
    int m_left = 0, m_top = 0, m_right = -1, m_bottom = -1;
    std::vector<bool> m_mask;
};
