// The browser library: off-screen web pages rendered on their own, their pixels handed over frame by frame,
// input forwarded as window messages, and the listener through which a page calls back.
//
// Pixels are 32-bit BGRA, rows top-down, pitch = page width x 4. Every operation takes a page handle and
// ignores a null one. The buffer given to K7Browser_OSR_Buffer_Get_Begin is written only inside that call and
// must hold width x height x 4 bytes of the page's creation size.
#pragma once

#include "BaseLib.h"

/// A page of the browser library; opaque to the system.
struct SK7BrowserPage;
using K7BROWSER = SK7BrowserPage*;

/// What a page calls back, in the library's slot order; always on the host's thread, inside
/// K7Browser_OSR_Buffer_Get_End.
class IK7JSListener {
public:
    /// The page registered an account; the first two values are the library's.
    virtual void OnRegisterAccount(int nReserved1, int nReserved2, const char* szAccount) = 0;
    /// The page finished loading (bCompleted false: it failed).
    virtual void OnLoadEnd(K7BROWSER hPage, bool bCompleted) = 0;
    /// The page asks whether it may open a popup.
    virtual bool OnQueryPopup() = 0;
    /// The page asks whether it may navigate.
    virtual bool OnQueryNavigate() = 0;
    /// The page changed its title or status.
    virtual void OnNotify() = 0;

protected:
    ~IK7JSListener() = default;
};

/// Creates a hidden page of szUrl at the screen rectangle (x, y, nWidth, nHeight) inside the native window
/// hParent; nFlags and nMode are the library's. Null when it declines (no engine, bad size, no address).
K7BROWSER K7Browser_Browser_Create(HWND hParent, const char* szUrl, int x, int y, int nWidth, int nHeight,
                                   IK7JSListener* pListener, int nFlags, int nMode);
void K7Browser_Browser_Destroy(K7BROWSER hPage);
void K7Browser_Browser_Show(K7BROWSER hPage, bool bShow);
void K7Browser_Browser_ReLoad(K7BROWSER hPage, const char* szUrl);
/// Mouse messages with screen coordinates in lParam.
void K7Browser_Mouse_Event(K7BROWSER hPage, UINT uMsg, WPARAM wParam, LPARAM lParam);
/// Key messages (key down and up, characters, system keys).
void K7Browser_Key_Event(K7BROWSER hPage, UINT uMsg, WPARAM wParam, LPARAM lParam);
/// Input-method messages (composition start, end, composition, set context).
void K7Browser_IME_Event(K7BROWSER hPage, UINT uMsg, WPARAM wParam, LPARAM lParam);
/// When a new frame is ready, copies it into pPixels, reports the count of rectangles that changed and
/// returns true; the caller then reads the rectangles and must call K7Browser_OSR_Buffer_Get_End.
bool K7Browser_OSR_Buffer_Get_Begin(K7BROWSER hPage, void* pPixels, int* pValue, int* pDirtyCount);
/// Rectangle nIndex of the frame begun last (x, y, width, height); zeros for an index out of range.
void K7Browser_OSR_DirtyRect_Get(K7BROWSER hPage, int nIndex, int* pX, int* pY, int* pWidth, int* pHeight);
/// Ends the frame begun last; the page's callbacks of that frame run here.
void K7Browser_OSR_Buffer_Get_End(K7BROWSER hPage);
