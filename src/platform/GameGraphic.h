// The GUI drawing library: animations by title, nine-patch backgrounds and string-resource text and pictures.
//
// Every operation draws to the host's canvas through the animation library's cache; nothing is kept by the
// caller. A missing file or title draws nothing and returns false (or 0); there is never an error message.
#pragma once

#include "BaseLib.h"

/// The file of the widgets' own animations.
inline constexpr const char* CONTROL_ANI_FILE = "ani/Control.ani";

class CGameGraphic {
public:
    /// Frame of an animation: any value below 0 plays it by the host clock (CMyAni::FrameByTime).
    static constexpr int FRAME_BY_TIME = -1;

    /// Draws the nine-patch szTitle of szAniFile over (x, y, nWidth, nHeight): with nine frames (top-left,
    /// top, top-right, left, centre, right, bottom-left, bottom, bottom-right) the corners keep their size
    /// and the rest stretches; with fewer frames, frame 0 is cut by the title's Border insets (none:
    /// stretched whole).
    static bool ShowNineImageBackGround(const char* szTitle, int x, int y, int nWidth, int nHeight,
                                        int nAlpha = 255, const char* szAniFile = CONTROL_ANI_FILE);
    /// Draws frame nFrame of szTitle in szFile at its natural size with its top-left corner at (x, y).
    static bool ShowAni(const char* szFile, const char* szTitle, int x, int y, int nFrame = FRAME_BY_TIME,
                        int nAlpha = 255);
    /// ShowAni of the widgets' animation file.
    static bool ShowCtrlAni(const char* szTitle, int x, int y, int nFrame = FRAME_BY_TIME, int nAlpha = 255);
    /// Draws frame nFrame of szTitle in szFile stretched over rcDest (a widget's background).
    static bool ShowAniRect(const char* szFile, const char* szTitle, int nFrame, const RECT& rcDest,
                            int nAlpha = 255);

    /// Draws UTF-8 string-resource text at (x, y) with the string-resource mode dwMode. Lines break at
    /// newlines and, when nLimitWidth is at least the font size, at that width. nFontSize 0 is the default
    /// size; a colour whose alpha is 0 draws opaque. pWnd, pLinkInfo, dwLinkColor, nFlags, nReserved and
    /// pReserved belong to the client's link texts and are not used here. bShow false only measures. pOutSize
    /// receives the drawn width and height. Returns the number of lines.
    static int ShowStrRes(int x, int y, const char* szText, DWORD dwMode, const char* szFont, int nFontSize,
                          DWORD dwColor, int nStyle = 0, int nLimitWidth = 0, void* pWnd = nullptr,
                          void* pLinkInfo = nullptr, DWORD dwLinkColor = 0xFFFFFFFF, int nFlags = 3,
                          int nReserved = 0, bool bShow = true, SIZE* pOutSize = nullptr,
                          void* pReserved = nullptr);
    /// Draws the string-resource picture of szTitle (frame nFrame) from the string-resource index
    /// "ani/StrRes.ani": the localised text layer that belongs to a picture of szAniFile. Stretched to nWidth
    /// x nHeight when both are positive, natural size otherwise. A title without a string-resource picture
    /// draws nothing (false).
    static bool ShowStrresUI(int nWidth, int nHeight, int x, int y, const char* szTitle, int nFrame,
                             const char* szAniFile);
};
