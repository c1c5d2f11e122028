// Windows of the widget toolkit: geometry, state, background and the layout keys every window understands.
#include "LuBaseWindow.h"

#include <strings.h>

#include <algorithm>

#include "GameGraphic.h"
#include "Gui3DEffect.h"
#include "GuiMgr.h"
#include "Input.h"
#include "LayoutFile.h"
#include "LuDialog.h"
#include "LuGui.h"
#include "LuGui_internal.h"
#include "LuLayoutRecord.h"
#include "MyAni.h"
#include "PostedMessages.h"
#include "graphics/AniCache.h"
#include "graphics/AniHandle.h"

namespace LuGui {

namespace {
// Layout numbers are outside text: sums saturate instead of overflowing.
constexpr int FULL_ALPHA = 255;

LONG AddSaturated(long long a, long long b) {
    return static_cast<LONG>(std::clamp<long long>(a + b, INT32_MIN, INT32_MAX));
}

// Bumped whenever any window moves or is attached to a dialog: a control's screen rectangle depends on its
// dialog's place as well as its own, and moves are rare next to the lookups of a frame. Starts at 1 so that a
// new window's cache (version 0) is stale.
unsigned g_nGeometryVersion = 1;

void GeometryChanged() {
    if (++g_nGeometryVersion == 0) g_nGeometryVersion = 1;
}
} // namespace

CLuBaseWindow::CLuBaseWindow() : m_strBgAniFile(CONTROL_ANI_FILE) {
}

CLuBaseWindow::~CLuBaseWindow() {
    CPostedMessages::Drop(this);
    SetBgEffect(nullptr);
    SetFgEffect(nullptr);
}

BOOL CLuBaseWindow::PreInitData() {
    return TRUE;
}

void CLuBaseWindow::InitData() {
}

int CLuBaseWindow::Show() {
    if (!m_bVisible || m_bHideState) return 0;
    ShowBackGround();
    return 1;
}

LRESULT CLuBaseWindow::WindowProc(UINT, WPARAM, LPARAM) {
    return 0;
}

BOOL CLuBaseWindow::ShowWindow(int nCmdShow) {
    const bool bWasVisible = m_bVisible;
    m_bVisible = nCmdShow != SW_HIDE;
    return bWasVisible ? TRUE : FALSE;
}

HWND CLuBaseWindow::GetSafeHwnd() const {
    return m_pGuiMgr ? m_pGuiMgr->GetHostWindow() : nullptr;
}

// ---- geometry ------------------------------------------------------------------------------------

POINT CLuBaseWindow::GetParentOrigin() const {
    if (!m_pParent) return POINT{0, 0};
    const RECT rcParent = m_pParent->GetWindowRect();
    return POINT{rcParent.left, rcParent.top};
}

void CLuBaseWindow::GetWindowRect(RECT* pRect) const {
    if (pRect) *pRect = GetWindowRect();
}

RECT CLuBaseWindow::GetWindowRect() const {
    if (m_nScreenVersion == g_nGeometryVersion) return m_rcScreen;
    const POINT origin = GetParentOrigin();
    m_rcScreen = RECT{AddSaturated(m_rc.left, origin.x), AddSaturated(m_rc.top, origin.y),
                      AddSaturated(m_rc.right, origin.x), AddSaturated(m_rc.bottom, origin.y)};
    m_nScreenVersion = g_nGeometryVersion;
    return m_rcScreen;
}

RECT CLuBaseWindow::GetDrawRect() const {
    const RECT rc = GetWindowRect();
    return RECT{AddSaturated(rc.left, -m_rcDrawMargin.left), AddSaturated(rc.top, -m_rcDrawMargin.top),
                AddSaturated(rc.right, m_rcDrawMargin.right), AddSaturated(rc.bottom, m_rcDrawMargin.bottom)};
}

void CLuBaseWindow::GetClientRect(RECT* pRect) const {
    if (pRect) *pRect = RECT{0, 0, GetWidth(), GetHeight()};
}

void CLuBaseWindow::ScreenToClient(POINT* pPoint) const {
    if (!pPoint) return;
    const RECT rc = GetWindowRect();
    pPoint->x -= rc.left;
    pPoint->y -= rc.top;
}

void CLuBaseWindow::ScreenToClient(RECT* pRect) const {
    if (!pRect) return;
    const RECT rc = GetWindowRect();
    *pRect = RECT{pRect->left - rc.left, pRect->top - rc.top, pRect->right - rc.left, pRect->bottom - rc.top};
}

void CLuBaseWindow::ClientToScreen(POINT* pPoint) const {
    if (!pPoint) return;
    const RECT rc = GetWindowRect();
    pPoint->x += rc.left;
    pPoint->y += rc.top;
}

void CLuBaseWindow::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL) {
    m_rc = RECT{x, y, AddSaturated(x, std::max(0, nWidth)), AddSaturated(y, std::max(0, nHeight))};
    GeometryChanged();
}

BOOL CLuBaseWindow::SetWindowPos(const CLuBaseWindow* pInsertAfter, int x, int y, int cx, int cy,
                                 UINT nFlags) {
    const int nX = (nFlags & SWP_NOMOVE) ? m_rc.left : x;
    const int nY = (nFlags & SWP_NOMOVE) ? m_rc.top : y;
    const int nW = (nFlags & SWP_NOSIZE) ? GetWidth() : cx;
    const int nH = (nFlags & SWP_NOSIZE) ? GetHeight() : cy;
    MoveWindow(nX, nY, nW, nH, FALSE);
    if (!(nFlags & SWP_NOZORDER) && !pInsertAfter && !m_pParent && m_pGuiMgr)
        CLuToolkit::Manager(*this)->BringToTop(static_cast<CLuDialog*>(this));
    if (nFlags & SWP_SHOWWINDOW) ShowWindow(SW_SHOW);
    if (nFlags & SWP_HIDEWINDOW) ShowWindow(SW_HIDE);
    return TRUE;
}

bool CLuBaseWindow::HitTest(POINT pt) const {
    const RECT rc = GetWindowRect();
    return pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
}

// ---- state ---------------------------------------------------------------------------------------

BOOL CLuBaseWindow::EnableWindow(BOOL bEnable) {
    const bool bWasDisabled = !m_bEnabled;
    m_bEnabled = bEnable != FALSE;
    // As with WM_SHOWWINDOW, the window hears of real changes only: enabling an enabled window says nothing.
    if (bWasDisabled == m_bEnabled) WindowProc(WM_ENABLE, m_bEnabled ? 1 : 0, 0);
    return bWasDisabled ? TRUE : FALSE;
}

bool CLuBaseWindow::IsCoveredAt(POINT ptScreen) const {
    const CGuiMgr* pMgr = CLuToolkit::Manager(*this);
    const CLuBaseWindow* pOwner = m_pParent ? static_cast<const CLuBaseWindow*>(m_pParent) : this;
    if (!pMgr) return false;
    const CLuDialog* pTop = pMgr->DialogAt(ptScreen);
    return pTop && static_cast<const CLuBaseWindow*>(pTop) != pOwner;
}

void CLuBaseWindow::ProcessMouseMove() {
    POINT pt{};
    GetCursorPos(&pt);
    m_bMouseOver = HitTest(pt) && !IsCoveredAt(pt);
    m_bHover = m_bEnabled && m_bMouseOver;
}

// ---- background and effects ----------------------------------------------------------------------

void CLuBaseWindow::SetBackGroundAni(const char* szTitle) {
    m_strBgAni = szTitle ? szTitle : "";
    m_nBgAniVersion = 0;
    if (!m_strBgAni.empty()) m_bShowBackGround = true;
}

void CLuBaseWindow::SetBackGroundAniFile(const char* szFile) {
    m_strBgAniFile = szFile && *szFile ? szFile : CONTROL_ANI_FILE;
    m_nBgAniVersion = 0;
}

void CLuBaseWindow::SetBgEffect(CGui3DEffect* pEffect) {
    if (m_pBgEffect && m_pBgEffect != pEffect) m_pBgEffect->Release();
    m_pBgEffect = pEffect;
}

void CLuBaseWindow::SetFgEffect(CGui3DEffect* pEffect) {
    if (m_pFgEffect && m_pFgEffect != pEffect) m_pFgEffect->Release();
    m_pFgEffect = pEffect;
}

void CLuBaseWindow::ShowBackGround() {
    if (!m_bShowBackGround || m_strBgAni.empty()) return;
    RECT rc = GetWindowRect();
    const POINT ptMove{m_ptBgOffset.x + m_ptBgAniOffset.x, m_ptBgOffset.y + m_ptBgAniOffset.y};
    rc = RECT{rc.left + ptMove.x, rc.top + ptMove.y, rc.right + ptMove.x, rc.bottom + ptMove.y};
    if (CMyAni* pAni = BackGroundAni())
        pAni->ShowStretch(m_nCurFrame < 0 ? pAni->FrameByTime() : m_nCurFrame, rc, FULL_ALPHA);
}

CMyAni* CLuBaseWindow::BackGroundAni() {
    gfx::AniCache& cache = gfx::AniCache::Instance();
    const unsigned long long nVersion = cache.Version();
    if (m_nBgAniVersion != nVersion) {
        m_pBgAni = cache.Animation(m_strBgAniFile, m_strBgAni);
        m_nBgAniVersion = nVersion;
    }
    return m_pBgAni;
}

// ---- text ----------------------------------------------------------------------------------------

void CLuBaseWindow::SetWindowTextA(const char* szText) {
    m_strText = szText ? szText : "";
}

// ---- layout --------------------------------------------------------------------------------------

void CLuToolkit::Attach(CLuBaseWindow& wnd, ILuGuiMgr* pMgr, CLuDialog* pParent, UINT nId,
                        const CLuLayoutRecord* pLayout) {
    wnd.m_pGuiMgr = pMgr;
    wnd.m_pParent = pParent;
    wnd.m_nId = nId;
    wnd.m_pLayout = pLayout;
    GeometryChanged();
    wnd.ApplyLayout();
}

void CLuToolkit::Relink(CLuBaseWindow& wnd, const CLuLayoutRecord* pLayout) {
    const char* szOldText = wnd.m_pLayout ? wnd.m_pLayout->GetValue("Text") : nullptr;
    const char* szNewText = pLayout ? pLayout->GetValue("Text") : nullptr;
    // A text the system replaced is the system's to translate; only the layout's own text follows the file.
    if (szOldText && szNewText && wnd.m_strText == szOldText) wnd.SetWindowTextA(szNewText);
    wnd.m_pLayout = pLayout;
}

namespace {

int ParseAlign(const char* sz) {
    if (::strcasecmp(sz, "center") == 0 || ::strcasecmp(sz, "centre") == 0) return LU_ALIGN_CENTER;
    if (::strcasecmp(sz, "right") == 0) return LU_ALIGN_RIGHT;
    const int n = SafeAtoi(sz);
    return n == LU_ALIGN_CENTER || n == LU_ALIGN_RIGHT ? n : LU_ALIGN_LEFT;
}

// Layout numbers are outside text: places and sizes are kept to what a screen can use, so that the drawing
// code can add offsets to them freely.
constexpr int LAYOUT_COORD_LIMIT = 1 << 20;
constexpr int LAYOUT_FONT_LIMIT = 512;

int LayoutCoord(int n) {
    return std::clamp(n, -LAYOUT_COORD_LIMIT, LAYOUT_COORD_LIMIT);
}

bool ParseFlag(const char* sz) {
    return SafeAtoi(sz) != 0 || ::strcasecmp(sz, "true") == 0 || ::strcasecmp(sz, "yes") == 0;
}

} // namespace

void CLuBaseWindow::PreInitData_Tip() {
    const char* szTip = m_pLayout ? m_pLayout->GetValue("Tip") : nullptr;
    m_strTip = szTip ? szTip : "";
}

void CLuBaseWindow::ApplyLayout() {
    if (!m_pLayout) return;
    const CLuLayoutRecord& rec = *m_pLayout;
    if (const char* sz = rec.GetValue("Rect")) {
        int v[4] = {0, 0, 0, 0};
        CLayoutFile::ReadNumbers(sz, v);
        MoveWindow(LayoutCoord(v[0]), LayoutCoord(v[1]), LayoutCoord(v[2]), LayoutCoord(v[3]), FALSE);
    }
    // Through the virtual setter, so that an edit cuts the text at its limit and puts its caret at the end.
    if (const char* sz = rec.GetValue("Text")) SetWindowTextA(sz);
    if (const char* sz = rec.GetValue("Font")) {
        int v[2] = {0, 0};
        const int n = CLayoutFile::ReadNumbers(sz, v);
        // NOTE: one number is the height; the width of a single-byte character is then half of it.
        for (int& k : v) k = std::clamp(k, 0, LAYOUT_FONT_LIMIT);
        m_sizeFont = n >= 2 ? SIZE{v[0], v[1]} : SIZE{v[0] / 2, v[0]};
    }
    if (const char* sz = rec.GetValue("FontColor")) m_dwFontColor = static_cast<DWORD>(SafeStrtoul(sz, 16));
    if (const char* sz = rec.GetValue("Align")) m_nAlign = ParseAlign(sz);
    if (const char* sz = rec.GetValue("MultiLine")) m_nMultiLine = ParseFlag(sz) ? 1 : 0;
    if (const char* sz = rec.GetValue("Wrap")) m_bWrap = ParseFlag(sz);
    if (const char* sz = rec.GetValue("BackgroundFile")) SetBackGroundAniFile(sz);
    if (const char* sz = rec.GetValue("Background")) SetBackGroundAni(sz);
    if (const char* sz = rec.GetValue("BackgroundOffset")) {
        int v[2] = {0, 0};
        CLayoutFile::ReadNumbers(sz, v);
        m_ptBgOffset = POINT{LayoutCoord(v[0]), LayoutCoord(v[1])};
    }
    if (const char* sz = rec.GetValue("TextOffset")) {
        int v[2] = {0, 0};
        CLayoutFile::ReadNumbers(sz, v);
        m_ptTextOffset = POINT{LayoutCoord(v[0]), LayoutCoord(v[1])};
    }
    if (const char* sz = rec.GetValue("Frame")) m_nCurFrame = SafeAtoi(sz);
    if (const char* sz = rec.GetValue("Visible")) m_bVisible = ParseFlag(sz);
    if (const char* sz = rec.GetValue("Enabled")) m_bEnabled = ParseFlag(sz);
    if (const char* sz = rec.GetValue("HideState")) m_bHideState = ParseFlag(sz);
    if (const char* sz = rec.GetValue("Tip")) m_strTip = sz;
}

} // namespace LuGui
