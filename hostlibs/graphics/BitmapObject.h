// A bitmap object of the graphics library (CMyBitmap): a picture read from a file or an empty one to paint
// into.
#pragma once

#include <string>

#include "Canvas.h"
#include "Graphics.h"

namespace gfx {

class BitmapObject final : public CMyBitmap {
public:
    /// Largest side of an empty bitmap.
    static constexpr int MAX_SIDE = 8192;

    /// name is what a recording shows (the file as the caller gave it; empty for an empty bitmap).
    BitmapObject(std::string name, Image image);

    void Show(int x, int y, DWORD dwColor, int nWidth, int nHeight) override;
    int GetWidth() const override { return m_image.width; }
    int GetHeight() const override { return m_image.height; }
    void UpdatePixels(const void* pBGRA, int nSrcWidth, int nSrcHeight, const RECT& rcRegion) override;
    void Release() override { delete this; }

    const Image& Picture() const { return m_image; }

private:
    ~BitmapObject() override = default;

    // The recorded operation, kept with its kind and file: a bitmap is shown every frame, and only its place
    // and opacity change.
    host::DrawOp m_op;
    Image m_image;
};

} // namespace gfx
