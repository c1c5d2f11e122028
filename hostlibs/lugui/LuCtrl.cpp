// Controls of the widget toolkit: the per-frame drawing sequence, text drawing and message dispatch.
#include "LuCtrl.h"

#include <algorithm>

#include "GameGraphic.h"
#include "Graphics.h"
#include "Gui3DEffect.h"
#include "LuDialog.h"

namespace LuGui {

const char* CtrlKindName(ELuCtrlKind eKind) {
    switch (eKind) {
    case ELuCtrlKind::Static:
        return "Static";
    case ELuCtrlKind::Button:
        return "Button";
    case ELuCtrlKind::Check:
        return "Check";
    case ELuCtrlKind::Edit:
        return "Edit";
    case ELuCtrlKind::Image:
        return "Image";
    case ELuCtrlKind::List:
        return "List";
    case ELuCtrlKind::Progress:
        return "Progress";
    }
    return "Static";
}

int CLuCtrl::Show() {
    if (!m_bVisible || m_bHideState) return 0;
    ProcessMouseMove();
    ProcessEffect();
    ProcessTimer();
    const RECT rc = GetWindowRect();
    if (m_pBgEffect) m_pBgEffect->Show(rc.left, rc.top);
    AdjustFrame();
    ShowBackGround();
    if (m_pFgEffect) m_pFgEffect->Show(rc.left, rc.top);
    ShowWindowText();
    return 1;
}

void CLuCtrl::ShowWindowText() {
    if (m_strText.empty()) return;
    if (m_nMultiLine == 1) {
        ShowMutiText();
        return;
    }
    const RECT rc = GetWindowRect();
    const int nFont = m_sizeFont.cy > 0 ? m_sizeFont.cy : CMyBitmap::GetFontSize();
    int x = rc.left;
    if (m_nAlign != LU_ALIGN_LEFT) {
        // NOTE: a text wider than the control starts at its left edge, whatever the alignment: the clip cuts
        // it at the right edge, and the start of a long name stays readable.
        const int nTextWidth = CMyBitmap::GetStringWidth(m_strText.c_str(), nFont);
        const int nRoom = std::max(0, GetWidth() - nTextWidth);
        x = rc.left + (m_nAlign == LU_ALIGN_CENTER ? nRoom / 2 : nRoom);
    }
    x += m_ptTextOffset.x;
    const int y = rc.top + m_ptTextOffset.y + std::max(0, (GetHeight() - nFont) / 2);
    CMyBitmap::ShowString(x, y, m_dwFontColor, m_strText.c_str(), CMyBitmap::GetDefaultFontName(), nFont);
}

void CLuCtrl::ShowMutiText() {
    const RECT rc = GetWindowRect();
    const int nFont = m_sizeFont.cy > 0 ? m_sizeFont.cy : CMyBitmap::GetFontSize();
    CGameGraphic::ShowStrRes(rc.left + m_ptTextOffset.x, rc.top + m_ptTextOffset.y, m_strText.c_str(), 0,
                             CMyBitmap::GetDefaultFontName(), nFont, m_dwFontColor, 0,
                             m_bWrap ? GetWidth() : 0);
}

void CLuCtrl::AdjustFrame() {
}

LRESULT CLuCtrl::NotifyParent(UINT uMsg, LPARAM lParam, WORD wCode) {
    IMyMsgCallBack* pCallBack = m_pParent;
    return pCallBack ? pCallBack->OnCtrlMsg(uMsg, MAKEWPARAM(static_cast<int>(m_nId), wCode), lParam) : 0;
}

LRESULT CLuCtrl::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const POINT pt{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    const UINT nFlags = static_cast<UINT>(wParam);
    switch (uMsg) {
    case WM_LBUTTONDOWN:
        m_bPressed = m_bEnabled;
        OnLButtonDown(nFlags, pt);
        return 1;
    case WM_LBUTTONUP: {
        OnLButtonUp(nFlags, pt);
        const bool bClicked = m_bPressed && m_bEnabled && m_bVisible && HitTest(pt);
        m_bPressed = false;
        if (bClicked) OnClicked();
        return 1;
    }
    case WM_MOUSEMOVE: {
        // NOTE: a move reaches the control in its own client coordinates (presses and releases stay in screen
        // coordinates): the edits' drag selection counts characters from the edit's left edge.
        POINT ptClient = pt;
        ScreenToClient(&ptClient);
        OnMouseMove(nFlags, ptClient);
        return 1;
    }
    case WM_RBUTTONDOWN:
        OnRButtonDown(nFlags, pt);
        return 1;
    case WM_RBUTTONUP:
        OnRButtonUp(nFlags, pt);
        return 1;
    case WM_CHAR:
        OnChar(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
        return 1;
    case WM_KEYDOWN:
        OnKeyDown(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
        return 1;
    default:
        return 0;
    }
}

void CLuCtrl::OnLButtonDown(UINT, POINT) {
}
void CLuCtrl::OnLButtonUp(UINT, POINT) {
}
void CLuCtrl::OnMouseMove(UINT, POINT) {
}
void CLuCtrl::OnRButtonDown(UINT, POINT) {
}
void CLuCtrl::OnRButtonUp(UINT, POINT) {
}
void CLuCtrl::OnChar(UINT, UINT, UINT) {
}
void CLuCtrl::OnKeyDown(UINT, UINT, UINT) {
}

} // namespace LuGui
