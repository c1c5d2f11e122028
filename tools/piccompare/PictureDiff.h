// The differences between a picture and its golden picture, pixel by pixel.
#pragma once

#include "PngFile.h"

/// Counts the pixels of two pictures of one size that differ by more than a channel tolerance, and where.
class PictureDiff {
public:
    /// A pixel differs when one of its four channels differs by more than this (antialiasing of another
    /// FreeType version stays below it; a moved or missing glyph does not).
    static constexpr int kChannelTolerance = 48;
    /// A picture matches while at most this share of its pixels, in thousandths, differs.
    static constexpr int kPixelsPerMille = 1;

    PictureDiff(const RgbaPicture& golden, const RgbaPicture& actual);

    bool SameSize() const { return m_sameSize; }
    int DifferingPixels() const { return m_differing; }
    /// The most pixels that may differ in a picture of this size.
    int AllowedPixels() const { return m_allowed; }
    bool Matches() const { return m_sameSize && m_differing <= m_allowed; }
    /// "same", or the count, the limit and the rectangle that holds the differences.
    std::string Summary() const;
    /// The actual picture dimmed, with the differing pixels in red.
    RgbaPicture Marked() const;

private:
    const RgbaPicture& m_golden;
    const RgbaPicture& m_actual;
    bool m_sameSize = false;
    int m_differing = 0;
    int m_allowed = 0;
    int m_left = 0, m_top = 0, m_right = -1, m_bottom = -1;
    std::vector<bool> m_mask;
};
