// The graphics library's static operations (CMyBitmap): text, shapes, screen metrics, clip, camera and light.
#include <algorithm>
#include <cstring>

#include "FontRenderer.h"
#include "Graphics.h"
#include "GraphicsState.h"
#include "hostlibs/HostEnv.h"
#include "text/Utf8.h"

namespace {
constexpr int DEFAULT_FONT_SIZE = 14;
constexpr const char* DEFAULT_FONT_NAME = "Noto Sans Mono CJK SC";
// Longest text drawn or measured at once; longer texts are cut.
constexpr std::size_t MAX_TEXT_LENGTH = 64 * 1024;
constexpr DWORD OPAQUE_ALPHA = 0xFF000000;

int FontSizeOr(int size) {
    return size > 0 ? size : DEFAULT_FONT_SIZE;
}

// Widget colours often carry no alpha; for text and lines such a colour means opaque.
DWORD OpaqueIfNoAlpha(DWORD colour) {
    return (colour & OPAQUE_ALPHA) == 0 ? colour | OPAQUE_ALPHA : colour;
}

std::string_view Utf8View(const char* text) {
    return text ? std::string_view(text, strnlen(text, MAX_TEXT_LENGTH)) : std::string_view();
}

std::u32string FromUtf16(const char16_t* text) {
    return txt::Utf8::Utf16ToUtf32(std::u16string_view(text, txt::Utf8::Utf16Length(text, MAX_TEXT_LENGTH)));
}

gfx::TextStyle MakeTextStyle(DWORD colour, int size, bool antialias, int style, DWORD effectColour) {
    gfx::TextStyle textStyle;
    textStyle.colour = OpaqueIfNoAlpha(colour);
    textStyle.size = size;
    textStyle.antialias = antialias;
    textStyle.effect = style;
    textStyle.effectColour = OpaqueIfNoAlpha(effectColour);
    return textStyle;
}

void DrawText(int x, int y, DWORD colour, const std::u32string& text, int size, bool antialias, int style,
              DWORD effectColour, SIZE* pOutSize) {
    size = gfx::FontRenderer::ClampSize(FontSizeOr(size));
    if (pOutSize) {
        *pOutSize = {gfx::FontRenderer::Measure(text, size), gfx::FontRenderer::MeasureHeight(text, size)};
    }
    if (text.empty()) return;
    gfx::GraphicsState::Instance().Canvas().Text(x, y, text,
                                                 MakeTextStyle(colour, size, antialias, style, effectColour));
}

// The same for UTF-8, which the canvas converts only when it needs to: texts are drawn every frame.
void DrawTextUtf8(int x, int y, DWORD colour, std::string_view text, int size, bool antialias, int style,
                  DWORD effectColour, SIZE* pOutSize) {
    size = gfx::FontRenderer::ClampSize(FontSizeOr(size));
    if (pOutSize) {
        *pOutSize = {gfx::FontRenderer::MeasureUtf8(text, size),
                     gfx::FontRenderer::MeasureHeightUtf8(text, size)};
    }
    if (text.empty()) return;
    gfx::GraphicsState::Instance().Canvas().TextUtf8(
        x, y, text, MakeTextStyle(colour, size, antialias, style, effectColour));
}
} // namespace

void CMyBitmap::ShowStringW(int x, int y, DWORD dwColor, const char16_t* szText, const char*, int nFontSize,
                            bool bAntialias, int nStyle, DWORD dwEffectColor, SIZE* pOutSize, const void*) {
    DrawText(gfx::ClampCoord(x), gfx::ClampCoord(y), dwColor, FromUtf16(szText), nFontSize, bAntialias,
             nStyle, dwEffectColor, pOutSize);
}

void CMyBitmap::ShowString(int x, int y, DWORD dwColor, const char* szText, const char*, int nFontSize,
                           bool bAntialias, int nStyle, DWORD dwEffectColor, SIZE* pOutSize, const void*) {
    DrawTextUtf8(gfx::ClampCoord(x), gfx::ClampCoord(y), dwColor, Utf8View(szText), nFontSize, bAntialias,
                 nStyle, dwEffectColor, pOutSize);
}

int CMyBitmap::GetStringWidth(const char* szText, int nFontSize) {
    return gfx::FontRenderer::MeasureUtf8(Utf8View(szText), FontSizeOr(nFontSize));
}

int CMyBitmap::GetStringWidthW(const char16_t* szText, int nFontSize) {
    return gfx::FontRenderer::Measure(FromUtf16(szText), FontSizeOr(nFontSize));
}

int CMyBitmap::GetFontSize() {
    return DEFAULT_FONT_SIZE;
}

const char* CMyBitmap::GetDefaultFontName() {
    return DEFAULT_FONT_NAME;
}

bool CMyBitmap::IsDBCSLeadByte(unsigned char byte) {
    return txt::Utf8::IsLeadByte(byte);
}

void CMyBitmap::ShowLine(int x1, int y1, int x2, int y2, DWORD dwColor) {
    gfx::GraphicsState::Instance().Canvas().Line(gfx::ClampCoord(x1), gfx::ClampCoord(y1),
                                                 gfx::ClampCoord(x2), gfx::ClampCoord(y2),
                                                 OpaqueIfNoAlpha(dwColor));
}

void CMyBitmap::ShowBlock(const RECT& rc, DWORD dwColor) {
    gfx::GraphicsState::Instance().Canvas().FillRect(gfx::Rect::FromRECT(gfx::ClampRECT(rc)), dwColor);
}

void CMyBitmap::ShowRect(const RECT& rc, DWORD dwColor) {
    gfx::GraphicsState::Instance().Canvas().OutlineRect(gfx::Rect::FromRECT(gfx::ClampRECT(rc)), dwColor);
}

int CMyBitmap::GetScreenWidth() {
    int width = 0, height = 0;
    host::GetScreenSize(width, height);
    return width;
}

int CMyBitmap::GetScreenHeight() {
    int width = 0, height = 0;
    host::GetScreenSize(width, height);
    return height;
}

RECT CMyBitmap::SetClipRect(const RECT* prc) {
    return gfx::GraphicsState::Instance().SetClip(prc);
}

RECT CMyBitmap::GetClipRect() {
    return gfx::GraphicsState::Instance().Clip();
}

void CMyBitmap::GameCameraSet(int nCenterX, int nCenterY, double dDistance, int nMode) {
    gfx::GraphicsState::Instance().camera = {nCenterX, nCenterY, dDistance, nMode};
}

void CMyBitmap::GameCameraGet(int& nCenterX, int& nCenterY, double& dDistance, int& nMode) {
    const auto& camera = gfx::GraphicsState::Instance().camera;
    nCenterX = camera.centerX;
    nCenterY = camera.centerY;
    dDistance = camera.distance;
    nMode = camera.mode;
}

void CMyBitmap::EnableLight(bool bEnable) {
    gfx::GraphicsState::Instance().lightEnabled = bEnable;
}

bool CMyBitmap::IsLightEnabled() {
    return gfx::GraphicsState::Instance().lightEnabled;
}
