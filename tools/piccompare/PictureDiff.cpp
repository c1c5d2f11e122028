// Pixel-by-pixel comparison with a tolerance per channel and a budget of differing pixels.
#include "PictureDiff.h"

#include <algorithm>
#include <cstdlib>

namespace {
constexpr int CHANNELS = 4;
constexpr std::uint8_t MARK_RED[CHANNELS] = {255, 0, 0, 255};
} // namespace

PictureDiff::PictureDiff(const RgbaPicture& golden, const RgbaPicture& actual)
    : m_golden(golden), m_actual(actual) {
    m_sameSize = golden.width == actual.width && golden.height == actual.height;
    if (!m_sameSize) return;
    const long long pixels = static_cast<long long>(golden.width) * golden.height;
    m_mask.assign(static_cast<std::size_t>(pixels), false);
    for (int y = 0; y < golden.height; ++y) {
        for (int x = 0; x < golden.width; ++x) {
            const std::size_t i = static_cast<std::size_t>(y) * golden.width + x;
            bool differs = false;
            for (int c = 0; c < CHANNELS; ++c)
                differs = differs || std::abs(golden.rgba[i * CHANNELS + c] - actual.rgba[i * CHANNELS + c]) >
                                         CHANNEL_TOLERANCE;
            if (!differs) continue;
            m_mask[i] = true;
            if (m_differing++ == 0) {
                m_left = m_right = x;
                m_top = m_bottom = y;
            }
            m_left = std::min(m_left, x);
            m_right = std::max(m_right, x);
            m_top = std::min(m_top, y);
            m_bottom = std::max(m_bottom, y);
        }
    }
}

std::string PictureDiff::Summary() const {
    if (!m_sameSize) {
        return "size " + std::to_string(m_actual.width) + "x" + std::to_string(m_actual.height) +
               ", golden " + std::to_string(m_golden.width) + "x" + std::to_string(m_golden.height);
    }
    if (m_differing == 0) return "same";
    return std::to_string(m_differing) + " pixels differ (at most " + std::to_string(ALLOWED_PIXELS) +
           " may), within " + std::to_string(m_left) + "," + std::to_string(m_top) + " to " +
           std::to_string(m_right) + "," + std::to_string(m_bottom);
}

RgbaPicture PictureDiff::Marked() const {
    RgbaPicture marked = m_actual;
    if (!m_sameSize) return marked;
    for (std::size_t i = 0; i < m_mask.size(); ++i) {
        std::uint8_t* p = &marked.rgba[i * CHANNELS];
        if (m_mask[i]) {
            std::copy_n(MARK_RED, CHANNELS, p);
            continue;
        }
        for (int c = 0; c < 3; ++c) p[c] = static_cast<std::uint8_t>(p[c] / 3);
    }
    return marked;
}
