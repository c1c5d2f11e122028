// The graphics library: text, lines, blocks and bitmaps drawn to the host's canvas, screen metrics, clip,
// camera, light.
//
// Every drawing operation goes to the canvas the host has chosen (a recording or a raster canvas); what is
// drawn is never owned by the caller. Colours are 0xAARRGGBB. Text is drawn with its top-left corner at (x,
// y). Missing art (a file that cannot be read) draws nothing and is never an error.
#pragma once

#include <cstdint>

#include "BaseLib.h"

/// A bitmap object (loaded from a file or created empty) and, as static operations, the graphics library
/// itself.
///
/// Bitmap objects come from MyBitmapCreate / MyBitmapCreateEmpty; the caller owns them and ends them with
/// Release().
class CMyBitmap {
public:
    // ---- bitmap objects --------------------------------------------------------------------------

    /// Draws the bitmap with its top-left corner at (x, y); a width or height of 0 means the natural size,
    /// anything else stretches to it. dwColor 0 draws the pixels unchanged; otherwise its alpha byte scales
    /// the opacity.
    virtual void Show(int x, int y, DWORD dwColor = 0, int nWidth = 0, int nHeight = 0) = 0;
    /// Natural size in pixels (0 x 0 for a file that could not be read).
    virtual int GetWidth() const = 0;
    virtual int GetHeight() const = 0;
    /// Copies the region rcRegion of a 32-bit BGRA buffer (nSrcWidth x nSrcHeight, rows packed) into the same
    /// place of this bitmap; the parts outside either picture are skipped.
    virtual void UpdatePixels(const void* pBGRA, int nSrcWidth, int nSrcHeight, const RECT& rcRegion) = 0;
    /// Ends the bitmap object; the pointer is invalid afterwards.
    virtual void Release() = 0;

    // ---- text ------------------------------------------------------------------------------------

    /// Draws UTF-16 text (zero-terminated). szFont may be null or any name (one face is used here); nFontSize
    /// is the pixel height, 0 for GetFontSize(). bAntialias false draws hard-edged glyphs. nStyle 0 plain, 1
    /// a shadow one pixel down-right in dwEffectColor, 2 an outline in dwEffectColor. A colour whose alpha is
    /// 0 draws opaque. pOutSize (optional) receives the drawn width and height; pFontInfo is reserved (pass
    /// null).
    static void ShowStringW(int x, int y, DWORD dwColor, const char16_t* szText, const char* szFont = nullptr,
                            int nFontSize = 0, bool bAntialias = true, int nStyle = 0,
                            DWORD dwEffectColor = 0xFF000000, SIZE* pOutSize = nullptr,
                            const void* pFontInfo = nullptr);
    /// The same for UTF-8 text.
    static void ShowString(int x, int y, DWORD dwColor, const char* szText, const char* szFont = nullptr,
                           int nFontSize = 0, bool bAntialias = true, int nStyle = 0,
                           DWORD dwEffectColor = 0xFF000000, SIZE* pOutSize = nullptr,
                           const void* pFontInfo = nullptr);
    /// Width in pixels of the text as ShowString / ShowStringW would draw it at that size (0 for null text).
    static int GetStringWidth(const char* szText, int nFontSize = 0);
    static int GetStringWidthW(const char16_t* szText, int nFontSize = 0);
    /// Default font size in pixels (14) and default font name.
    static int GetFontSize();
    static const char* GetDefaultFontName();
    /// Whether the byte starts a multi-byte character of the client's text encoding (UTF-8 lead bytes
    /// 0xC2-0xF4).
    static bool IsDBCSLeadByte(unsigned char byte);

    // ---- shapes ----------------------------------------------------------------------------------

    /// A one-pixel line from (x1, y1) to (x2, y2), both ends included. A colour whose alpha is 0 draws
    /// opaque.
    static void ShowLine(int x1, int y1, int x2, int y2, DWORD dwColor);
    /// Fills the rectangle (right and bottom excluded), blending by the colour's alpha.
    static void ShowBlock(const RECT& rc, DWORD dwColor);
    /// A one-pixel outline just inside the rectangle, blending by the colour's alpha.
    static void ShowRect(const RECT& rc, DWORD dwColor);

    // ---- screen, clip, camera, light -------------------------------------------------------------

    /// The screen (client area) size the host has set.
    static int GetScreenWidth();
    static int GetScreenHeight();
    /// Limits all drawing to prc (null: the whole screen); returns the previous clip rectangle for restoring.
    static RECT SetClipRect(const RECT* prc);
    static RECT GetClipRect();
    /// The 2D camera over the 3D scene: its centre on screen, its distance and its projection mode. Kept as
    /// state for the role and effect libraries; 2D drawing is not moved by it.
    static void GameCameraSet(int nCenterX, int nCenterY, double dDistance, int nMode);
    static void GameCameraGet(int& nCenterX, int& nCenterY, double& dDistance, int& nMode);
    /// Scene lighting switch for the 3D figures; kept as state.
    static void EnableLight(bool bEnable);
    static bool IsLightEnabled();

protected:
    CMyBitmap() = default;
    virtual ~CMyBitmap() = default;
    CMyBitmap(const CMyBitmap&) = delete;
    CMyBitmap& operator=(const CMyBitmap&) = delete;
};

/// Loads a BMP, JPEG or PNG file (relative to the client directory, or absolute). Always returns an object
/// owned by the caller (Release); an unreadable file gives a 0 x 0 bitmap that draws nothing. Null only for a
/// null path.
CMyBitmap* MyBitmapCreate(const char* szFile);
/// A transparent bitmap of the given size (clamped to 1..8192 per side), owned by the caller (Release).
CMyBitmap* MyBitmapCreateEmpty(int nWidth, int nHeight);
