// Bitmap objects: drawn as one "bitmap" operation, filled from 32-bit BGRA buffers (the browser's pixel
// format).
#include "BitmapObject.h"

#include <algorithm>

#include "GraphicsState.h"
#include "ImageDecoder.h"

namespace gfx {
namespace {
constexpr int BYTES_PER_PIXEL = 4;

// The opacity a colour argument asks for: 0 means unchanged.
int OpacityOf(DWORD colour) {
    return colour == 0 ? 255 : static_cast<int>((colour >> 24) & 0xFF);
}
} // namespace

BitmapObject::BitmapObject(std::string name, Image image)
    : m_name(std::move(name)), m_image(std::move(image)) {
}

void BitmapObject::Show(int x, int y, DWORD dwColor, int nWidth, int nHeight) {
    if (m_image.Empty()) return;
    const Rect dst{x, y, nWidth > 0 ? nWidth : m_image.width, nHeight > 0 ? nHeight : m_image.height};
    const int alpha = OpacityOf(dwColor);
    ICanvas& canvas = GraphicsState::Instance().Canvas();
    const CompoundScope scope(canvas,
                              OpBuilder("bitmap", dst).Colour(static_cast<DWORD>(alpha)).File(m_name));
    canvas.DrawImage(m_image, {0, 0, m_image.width, m_image.height}, dst, alpha);
}

void BitmapObject::UpdatePixels(const void* pBGRA, int nSrcWidth, int nSrcHeight, const RECT& rcRegion) {
    if (!pBGRA || nSrcWidth <= 0 || nSrcHeight <= 0) return;
    const Rect region = Rect::FromRECT(rcRegion)
                            .Intersect({0, 0, nSrcWidth, nSrcHeight})
                            .Intersect({0, 0, m_image.width, m_image.height});
    const auto* source = static_cast<const std::uint8_t*>(pBGRA);
    for (int y = region.y; y < region.Bottom(); ++y) {
        for (int x = region.x; x < region.Right(); ++x) {
            const std::uint8_t* from =
                source + (static_cast<std::size_t>(y) * nSrcWidth + x) * BYTES_PER_PIXEL;
            std::uint8_t* to =
                &m_image.rgba[(static_cast<std::size_t>(y) * m_image.width + x) * BYTES_PER_PIXEL];
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
            to[3] = from[3];
        }
    }
}

} // namespace gfx

CMyBitmap* MyBitmapCreate(const char* szFile) {
    if (!szFile) return nullptr;
    gfx::Image image;
    if (auto decoded = gfx::ImageDecoder::DecodeClientFile(szFile)) image = std::move(*decoded);
    return new gfx::BitmapObject(szFile, std::move(image));
}

CMyBitmap* MyBitmapCreateEmpty(int nWidth, int nHeight) {
    gfx::Image image;
    image.width = std::clamp(nWidth, 1, gfx::BitmapObject::MAX_SIDE);
    image.height = std::clamp(nHeight, 1, gfx::BitmapObject::MAX_SIDE);
    image.rgba.assign(static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height) * 4, 0);
    return new gfx::BitmapObject({}, std::move(image));
}
