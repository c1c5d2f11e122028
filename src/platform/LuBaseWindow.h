// The widget toolkit's window (LuGui::CLuBaseWindow): the state every dialog and control carries.
//
// Rectangles are kept relative to the parent dialog (controls) or to the screen (dialogs); GetWindowRect
// always answers in screen coordinates. Effect objects are created on demand and belong to the window.
#pragma once

#include <string>

#include "BaseLib.h"

class CGui3DEffect;
class CMyAni;

namespace LuGui {

class CLuDialog;
class CLuLayoutRecord;
class ILuGuiMgr;

/// Receives the notifications of a window's controls: commands (273), list rows (336, 331).
class IMyMsgCallBack {
public:
    virtual ~IMyMsgCallBack() = default;
    /// A control of this window reports uMsg (wParam: the control id); returns the window's answer.
    virtual LRESULT OnCtrlMsg(UINT uMsg, WPARAM wParam, LPARAM lParam) = 0;
};

/// Text alignment of a window's text.
enum ELuAlign { LU_ALIGN_LEFT = 0, LU_ALIGN_CENTER = 1, LU_ALIGN_RIGHT = 2 };

/// A window of the widget toolkit.
class CLuBaseWindow {
public:
    CLuBaseWindow();
    virtual ~CLuBaseWindow();
    CLuBaseWindow(const CLuBaseWindow&) = delete;
    CLuBaseWindow& operator=(const CLuBaseWindow&) = delete;

    // ---- overridable, in slot order -----------------------------------------------------------

    /// Reads what the layout record adds; returns 0 when the window cannot initialise.
    virtual BOOL PreInitData();
    /// Completes initialisation once the layout is applied.
    virtual void InitData();
    /// Draws the window (once per frame while visible); returns 0 when nothing was drawn.
    virtual int Show();
    /// A window message routed to this window.
    virtual LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam);
    /// Shows (SW_SHOW) or hides (SW_HIDE); returns whether the window was visible before.
    virtual BOOL ShowWindow(int nCmdShow);

    /// Queues a message for this window and returns at once; any thread may post. The dialog manager's
    /// Process delivers queued messages to WindowProc on the host's thread, in the order they were posted;
    /// a window's destruction drops its undelivered ones. The caller keeps the window alive during the call.
    BOOL PostMessageA(UINT uMsg, WPARAM wParam, LPARAM lParam);

    // ---- identity and tree ----------------------------------------------------------------------

    /// The control id, or the template id of a dialog.
    UINT GetDlgCtrlID() const { return m_nId; }
    /// The dialog this control belongs to (null for dialogs and unbound controls).
    CLuDialog* GetParentDialog() const { return m_pParent; }
    /// The dialog manager that created the window (null before creation).
    ILuGuiMgr* GetGuiMgr() const { return m_pGuiMgr; }
    /// The window's native handle: the host's window for every window the manager created, else null.
    HWND GetSafeHwnd() const;
    /// The window's record of the layout file, null when the layout does not describe it.
    const CLuLayoutRecord* GetLayoutRecord() const { return m_pLayout; }

    // ---- geometry -------------------------------------------------------------------------------

    /// Screen rectangle.
    void GetWindowRect(RECT* pRect) const;
    RECT GetWindowRect() const;
    /// (0, 0, width, height).
    void GetClientRect(RECT* pRect) const;
    int GetWidth() const { return m_rc.right - m_rc.left; }
    int GetHeight() const { return m_rc.bottom - m_rc.top; }
    /// Screen to this window's client coordinates and back.
    void ScreenToClient(POINT* pPoint) const;
    void ScreenToClient(RECT* pRect) const;
    void ClientToScreen(POINT* pPoint) const;
    /// Moves and sizes the window; x and y are relative to the parent dialog (screen for dialogs).
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    /// SetWindowPos flags honoured: SWP_NOSIZE, SWP_NOMOVE, SWP_NOZORDER, SWP_SHOWWINDOW, SWP_HIDEWINDOW. A
    /// dialog with pInsertAfter null and no SWP_NOZORDER comes to the top.
    BOOL SetWindowPos(const CLuBaseWindow* pInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    /// Whether the screen point lies inside the window (right and bottom excluded).
    bool HitTest(POINT ptScreen) const;
    /// How far past its rectangle the window may draw (left, top, right, bottom; 0 by default): a frame
    /// drawn around the window stays visible instead of being cut by its clip. Clicks still hit the rectangle
    /// only.
    void SetDrawMargin(const RECT& rcMargin) { m_rcDrawMargin = rcMargin; }
    /// The screen rectangle the window may draw in: its rectangle grown by the draw margin.
    RECT GetDrawRect() const;

    // ---- state ----------------------------------------------------------------------------------

    BOOL IsWindowVisible() const { return m_bVisible ? TRUE : FALSE; }
    /// A real change tells the window (message 10, WM_ENABLE, first parameter the new state).
    BOOL EnableWindow(BOOL bEnable);
    BOOL IsWindowEnabled() const { return m_bEnabled ? TRUE : FALSE; }
    /// The hidden state: a window that is laid out and shown but must not draw (layout key "HideState").
    void SetHideState(bool bHide) { m_bHideState = bHide; }
    bool IsHideState() const { return m_bHideState; }
    /// Whether the cursor lies over the window (updated by ProcessMouseMove).
    bool IsHover() const { return m_bHover; }
    /// Whether the cursor lies over the window, enabled or not (a disabled window never hovers, yet its tip
    /// may still explain why it is disabled).
    bool IsMouseOver() const { return m_bMouseOver; }

    // ---- background and effects -----------------------------------------------------------------

    /// The background animation (a title of the animation file, "ani/Control.ani" unless the layout says
    /// otherwise); null or empty removes it. Setting a title switches the background on.
    void SetBackGroundAni(const char* szTitle);
    const char* GetBackGroundAni() const { return m_strBgAni.c_str(); }
    void SetBackGroundAniFile(const char* szFile);
    const char* GetBackGroundAniFile() const { return m_strBgAniFile.c_str(); }
    void EnableBackGround(bool bShow) { m_bShowBackGround = bShow; }
    bool IsBackGroundEnabled() const { return m_bShowBackGround; }
    void SetBackGroundOffset(int x, int y) { m_ptBgOffset = POINT{x, y}; }
    POINT GetBackGroundOffset() const { return m_ptBgOffset; }
    /// Moves the background animation further, on top of the background offset: a style (a highlight
    /// frame) may sit differently from the window's own background place.
    void SetBackGroundAniOffset(int x, int y) { m_ptBgAniOffset = POINT{x, y}; }
    POINT GetBackGroundAniOffset() const { return m_ptBgAniOffset; }
    /// The offset the toolkit adds when it draws the window's own picture (images).
    void SetDrawOffset(int x, int y) { m_ptDrawOffset = POINT{x, y}; }
    POINT GetDrawOffset() const { return m_ptDrawOffset; }
    /// The effect objects drawn under and over the window; null until one is set. The window owns what it
    /// is given and releases it at destruction (or when another object replaces it).
    CGui3DEffect* GetBgEffect() const { return m_pBgEffect; }
    CGui3DEffect* GetFgEffect() const { return m_pFgEffect; }
    void SetBgEffect(CGui3DEffect* pEffect);
    void SetFgEffect(CGui3DEffect* pEffect);

    // ---- text -----------------------------------------------------------------------------------

    /// The window's text (UTF-8); null sets an empty text.
    virtual void SetWindowTextA(const char* szText);
    const char* GetWindowTextA() const { return m_strText.c_str(); }
    /// Font size in pixels: width of a single-byte character and height.
    void SetFontSize(int nWidth, int nHeight) { m_sizeFont = SIZE{nWidth, nHeight}; }
    SIZE GetFontSize() const { return m_sizeFont; }
    /// 0xAARRGGBB; an alpha of 0 draws opaque.
    void SetFontColor(DWORD dwColor) { m_dwFontColor = dwColor; }
    DWORD GetFontColor() const { return m_dwFontColor; }
    /// ELuAlign.
    void SetAlign(int nAlign) { m_nAlign = nAlign; }
    int GetAlign() const { return m_nAlign; }
    /// 1 when the text is laid out over several lines.
    void SetMultiLine(int nMultiLine) { m_nMultiLine = nMultiLine; }
    int GetMultiLine() const { return m_nMultiLine; }
    void SetWrap(bool bWrap) { m_bWrap = bWrap; }
    bool IsWrap() const { return m_bWrap; }
    /// Where the text starts relative to its aligned place (layout key "TextOffset"; edits start 2 pixels
    /// in).
    void SetTextOffset(int x, int y) { m_ptTextOffset = POINT{x, y}; }
    POINT GetTextOffset() const { return m_ptTextOffset; }
    /// The frame of the background animation to draw.
    virtual void SetCurFrame(int nFrame) { m_nCurFrame = nFrame; }
    int GetCurFrame() const { return m_nCurFrame; }
    /// A value the system keeps on the window (never read by the toolkit).
    void SetExtData(std::intptr_t nData) { m_nExtData = nData; }
    std::intptr_t GetExtData() const { return m_nExtData; }
    /// A tool tip the manager shows while the cursor rests on the window; empty for none.
    void SetTipText(const char* szTip) { m_strTip = szTip ? szTip : ""; }
    /// The tool tip and its colour.
    void SetTipShow(const char* szTip, DWORD dwColor) {
        SetTipText(szTip);
        m_dwTipColor = dwColor;
    }
    const char* GetTipText() const { return m_strTip.c_str(); }
    /// Reads the tool tip again from the window's layout record (none without a record or key).
    void PreInitData_Tip();
    /// Applies the window's layout record again (place, texts, pictures, flags); nothing without one.
    void ReloadLayout() { ApplyLayout(); }
    DWORD GetTipColor() const { return m_dwTipColor; }

protected:
    /// Draws the background animation's current frame over the window rectangle (moved by the offset).
    virtual void ShowBackGround();
    /// Updates the hover state from the cursor position.
    void ProcessMouseMove();
    /// Whether another dialog takes the mouse at this screen point (a covered window does not light up).
    bool IsCoveredAt(POINT ptScreen) const;
    /// Origin of the parent's client area on the screen ((0, 0) for dialogs).
    POINT GetParentOrigin() const;

    UINT m_nId = 0;
    ILuGuiMgr* m_pGuiMgr = nullptr;
    CLuDialog* m_pParent = nullptr;
    const CLuLayoutRecord* m_pLayout = nullptr;

    RECT m_rc{0, 0, 0, 0}; ///< relative to the parent's client area (screen for dialogs)
    std::string m_strBgAni;
    std::string m_strBgAniFile;
    bool m_bShowBackGround = false;
    POINT m_ptBgOffset{0, 0};
    POINT m_ptBgAniOffset{0, 0};
    POINT m_ptDrawOffset{0, 0};
    POINT m_ptTextOffset{0, 0};
    RECT m_rcDrawMargin{0, 0, 0, 0};
    CGui3DEffect* m_pBgEffect = nullptr;
    CGui3DEffect* m_pFgEffect = nullptr;

    bool m_bVisible = false;
    bool m_bEnabled = true;
    bool m_bHideState = false;
    bool m_bHover = false;
    bool m_bMouseOver = false;

    std::string m_strText;
    SIZE m_sizeFont{7, 14};
    DWORD m_dwFontColor = 0xFFFFFFFF;
    int m_nAlign = LU_ALIGN_LEFT;
    int m_nMultiLine = 0;
    bool m_bWrap = false;
    int m_nCurFrame = 0;
    std::intptr_t m_nExtData = 0;
    std::string m_strTip;
    DWORD m_dwTipColor = 0xFFFFFFFF;

private:
    /// The toolkit's own bookkeeping (attaching windows to their manager, dialog and layout record).
    friend class CLuToolkit;
    /// Applies the layout keys every window understands.
    void ApplyLayout();

    /// The screen rectangle as last computed and the geometry version it was computed at: hit tests, clips
    /// and draws ask for it many times a frame, and it changes only when a window moves or is attached.
    mutable RECT m_rcScreen{0, 0, 0, 0};
    mutable unsigned m_nScreenVersion = 0;
    /// The background animation as last found and the animation cache's version it was found in (0: not
    /// looked up): found once, not per frame.
    CMyAni* BackGroundAni();
    CMyAni* m_pBgAni = nullptr;
    unsigned long long m_nBgAniVersion = 0;
};

} // namespace LuGui
