// Bitmap objects: drawn as one "bitmap" operation, filled from 32-bit BGRA buffers (the browser's pixel
// format). An empty bitmap keeps BGRA, so that filling it is a copy; the raster canvas reads either order.
#include "BitmapObject.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "GraphicsState.h"
#include "ImageDecoder.h"

// NOTE: the AVX2 clone is chosen by an IFUNC resolver while the dynamic loader relocates the library, before
// ThreadSanitizer's runtime is up; a ThreadSanitizer build crashes there, so it keeps the plain version.
#if defined(__SANITIZE_THREAD__)
#define ROW_COPY_CLONES
#else
#define ROW_COPY_CLONES __attribute__((target_clones("avx2", "default")))
#endif

namespace gfx {
namespace {
constexpr int BYTES_PER_PIXEL = 4;

// One row from BGRA to RGBA: each pixel as one 32-bit word with its first and third bytes exchanged, which
// the compiler turns into vector shuffles (a copy runs close to memcpy's speed).
ROW_COPY_CLONES void SwapRedBlue(const std::uint8_t* __restrict from, std::uint8_t* __restrict to,
                                 std::size_t nPixels) {
    for (std::size_t i = 0; i < nPixels; ++i) {
        std::uint32_t v;
        std::memcpy(&v, from + i * BYTES_PER_PIXEL, sizeof v);
        v = (v & 0xFF00FF00u) | ((v >> 16) & 0xFFu) | ((v & 0xFFu) << 16);
        std::memcpy(to + i * BYTES_PER_PIXEL, &v, sizeof v);
    }
}

// The opacity a colour argument asks for: 0 means unchanged.
int OpacityOf(DWORD colour) {
    return colour == 0 ? 255 : static_cast<int>((colour >> 24) & 0xFF);
}
} // namespace

BitmapObject::BitmapObject(std::string name, Image image)
    : m_op(OpBuilder("bitmap", {}).File(std::move(name)).Take()), m_image(std::move(image)) {
}

void BitmapObject::Show(int x, int y, DWORD dwColor, int nWidth, int nHeight) {
    if (m_image.Empty()) return;
    const Rect dst{x, y, nWidth > 0 ? nWidth : m_image.width, nHeight > 0 ? nHeight : m_image.height};
    const int alpha = OpacityOf(dwColor);
    ICanvas& canvas = GraphicsState::Instance().Canvas();
    m_op.x = dst.x;
    m_op.y = dst.y;
    m_op.w = dst.w;
    m_op.h = dst.h;
    m_op.colour = static_cast<DWORD>(alpha);
    const CompoundScope scope(canvas, m_op);
    canvas.DrawImage(m_image, {0, 0, m_image.width, m_image.height}, dst, alpha);
}

void BitmapObject::UpdatePixels(const void* pBGRA, int nSrcWidth, int nSrcHeight, const RECT& rcRegion) {
    if (!pBGRA || nSrcWidth <= 0 || nSrcHeight <= 0) return;
    const Rect region = Rect::FromRECT(rcRegion)
                            .Intersect({0, 0, nSrcWidth, nSrcHeight})
                            .Intersect({0, 0, m_image.width, m_image.height});
    if (region.Right() <= region.x || region.Bottom() <= region.y) return;
    const auto* source = static_cast<const std::uint8_t*>(pBGRA);
    const std::size_t rowPixels = static_cast<std::size_t>(region.Right() - region.x);
    const std::size_t sourcePitch = static_cast<std::size_t>(nSrcWidth) * BYTES_PER_PIXEL;
    const std::size_t targetPitch = static_cast<std::size_t>(m_image.width) * BYTES_PER_PIXEL;
    const std::uint8_t* from = source + static_cast<std::size_t>(region.y) * sourcePitch +
                               static_cast<std::size_t>(region.x) * BYTES_PER_PIXEL;
    std::uint8_t* to = m_image.rgba.data() + static_cast<std::size_t>(region.y) * targetPitch +
                       static_cast<std::size_t>(region.x) * BYTES_PER_PIXEL;
    const bool bSameOrder = m_image.order == PixelOrder::Bgra;
    for (int y = region.y; y < region.Bottom(); ++y, from += sourcePitch, to += targetPitch) {
        if (bSameOrder)
            std::memcpy(to, from, rowPixels * BYTES_PER_PIXEL);
        else
            SwapRedBlue(from, to, rowPixels);
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
    image.order = gfx::PixelOrder::Bgra;
    return new gfx::BitmapObject({}, std::move(image));
}
