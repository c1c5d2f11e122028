// Dialogs of the widget toolkit: binding controls, the message map, routing messages to controls, showing.
#include "LuDialog.h"

#include <strings.h>

#include <algorithm>

#include "GameGraphic.h"
#include "LayoutFile.h"
#include "Log.h"
#include "LuCtrl.h"
#include "LuEdit.h"
#include "LuGui.h"
#include "LuGui_internal.h"
#include "LuLayoutRecord.h"
#include "WindowClip.h"
#include "hostlibs/HostMisses.h"

namespace LuGui {

void DDX_Control(CDataExchange* pDX, int nIDC, CLuCtrl& rControl) {
    CLuDialog* pDialog = pDX ? pDX->GetDialog() : nullptr;
    if (!pDialog) return;
    ILuGuiMgr* pMgr = pDialog->GetGuiMgr();
    const UINT nId = static_cast<UINT>(nIDC);
    const std::string section = CLayoutFile::ControlSection(pDialog->GetTemplateId(), nId);
    const CLuLayoutRecord* pLayout = pMgr ? pMgr->FindLayout(section.c_str()) : nullptr;
    if (!pLayout) host::NoteMiss("control-layout", section);
    // NOTE: controls are visible unless the layout hides them; dialogs start hidden.
    rControl.ShowWindow(SW_SHOW);
    CLuToolkit::Attach(rControl, pMgr, pDialog, nId, pLayout);
    if (pLayout) {
        const char* szKind = pLayout->GetValue("Kind");
        if (szKind && ::strcasecmp(szKind, CtrlKindName(rControl.GetKind())) != 0)
            LogMsg("layout %s: a %s is bound as a %s", pLayout->GetName(), szKind,
                   CtrlKindName(rControl.GetKind()));
    }
    CLuToolkit::AddControl(*pDialog, rControl);
    rControl.PreInitData();
    rControl.InitData();
}

CLuDialog::CLuDialog(UINT nIDTemplate, CLuBaseWindow*) : m_nIDTemplate(nIDTemplate) {
    m_nId = nIDTemplate;
}

CLuDialog::~CLuDialog() {
    if (CGuiMgr* pMgr = CLuToolkit::Manager(*this)) pMgr->ForgetDialog(this);
}

// ---- overridable ---------------------------------------------------------------------------------

BOOL CLuDialog::PreInitData() {
    if (m_pLayout) {
        m_bTopMost = m_pLayout->GetInt("TopMost", 0) != 0;
        m_bClickThrough = m_pLayout->GetInt("ClickThrough", 0) != 0;
        m_dwOpenInactiveMs = static_cast<DWORD>(std::max(0, m_pLayout->GetInt("OpenInactive", 0)));
    }
    return TRUE;
}

int CLuDialog::Show() {
    if (!m_bVisible || m_bHideState) return 0;
    const WindowClip dialogClip(*this);
    ShowBackGround();
    for (CLuCtrl* pCtrl : m_vecCtrls) {
        if (!pCtrl->IsWindowVisible()) continue;
        const WindowClip controlClip(*pCtrl);
        pCtrl->Show();
    }
    return 1;
}

void CLuDialog::ShowBackGround() {
    if (!m_bShowBackGround || m_strBgAni.empty()) return;
    const RECT rc = GetWindowRect();
    CGameGraphic::ShowNineImageBackGround(m_strBgAni.c_str(), rc.left + m_ptBgOffset.x,
                                          rc.top + m_ptBgOffset.y, GetWidth(), GetHeight(), 255,
                                          m_strBgAniFile.c_str());
}

LRESULT CLuDialog::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg >= WM_MOUSEMOVE && uMsg <= WM_MOUSEWHEEL) return RouteMouse(uMsg, wParam, lParam);
    if (uMsg == WM_KEYDOWN || uMsg == WM_KEYUP || uMsg == WM_CHAR) return RouteKey(uMsg, wParam, lParam);
    return DispatchMsgMap(uMsg, LOWORD(wParam)) ? 1 : 0;
}

BOOL CLuDialog::PreTranslateMessage(MSG*) {
    return FALSE;
}
void CLuDialog::Reset() {
}
BOOL CLuDialog::OnInitDialog() {
    return TRUE;
}
void CLuDialog::PreSetParam() {
}
void CLuDialog::DoDataExchange(CDataExchange*) {
}
void CLuDialog::MessageMap() {
}

// ---- showing -------------------------------------------------------------------------------------

BOOL CLuDialog::ShowWindow(int nCmdShow) {
    const BOOL bWasVisible = CLuBaseWindow::ShowWindow(nCmdShow);
    const bool bShown = nCmdShow != SW_HIDE;
    if (bShown) m_bInactive = m_dwOpenInactiveMs > 0;
    if (CGuiMgr* pMgr = CLuToolkit::Manager(*this)) pMgr->OnDialogShown(this, bShown);
    if (nCmdShow == SW_SHOW) OnInitDialog();
    if ((bWasVisible != FALSE) != bShown) WindowProc(WM_SHOWWINDOW, bShown ? 1 : 0, 0);
    return bWasVisible;
}

void CLuToolkit::Activate(CLuDialog& dlg) {
    if (!dlg.m_bInactive) return;
    dlg.m_bInactive = false;
    dlg.WindowProc(LU_MSG_ACTIVATE, 0, 0);
}

void CLuDialog::BringWindowToTop() {
    if (CGuiMgr* pMgr = CLuToolkit::Manager(*this)) pMgr->BringToTop(this);
}

// ---- message map ---------------------------------------------------------------------------------

LRESULT CLuDialog::OnCtrlMsg(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return WindowProc(uMsg, wParam, lParam);
}

void CLuDialog::PushMsgMap(UINT uMsg, UINT nId, MsgHandler handler) {
    for (SMsgEntry& entry : m_vecMsgMap)
        if (entry.uMsg == uMsg && entry.nId == nId) {
            entry.handler = std::move(handler);
            return;
        }
    m_vecMsgMap.push_back(SMsgEntry{uMsg, nId, std::move(handler)});
}

bool CLuDialog::DispatchMsgMap(UINT uMsg, UINT nId) {
    for (const SMsgEntry& entry : m_vecMsgMap)
        if (entry.uMsg == uMsg && entry.nId == nId && entry.handler) {
            // A handler may push or replace entries; run a copy.
            const MsgHandler handler = entry.handler;
            handler();
            return true;
        }
    return false;
}

// ---- controls ------------------------------------------------------------------------------------

void CLuToolkit::AddControl(CLuDialog& dlg, CLuCtrl& ctrl) {
    if (std::find(dlg.m_vecCtrls.begin(), dlg.m_vecCtrls.end(), &ctrl) == dlg.m_vecCtrls.end())
        dlg.m_vecCtrls.push_back(&ctrl);
}

void CLuToolkit::ClearForCreation(CLuDialog& dlg) {
    dlg.m_vecCtrls.clear();
    dlg.m_vecMsgMap.clear();
    dlg.m_pCapture = nullptr;
}

CLuCtrl* CLuDialog::GetControl(UINT nId) const {
    for (CLuCtrl* pCtrl : m_vecCtrls)
        if (pCtrl->GetDlgCtrlID() == nId) return pCtrl;
    return nullptr;
}

CLuCtrl* CLuDialog::ControlAt(POINT pt, bool bAnyControl) const {
    // The control bound last is drawn last, so it is the top-most.
    for (auto it = m_vecCtrls.rbegin(); it != m_vecCtrls.rend(); ++it) {
        CLuCtrl* pCtrl = *it;
        if ((bAnyControl || pCtrl->IsHitTarget()) && pCtrl->IsWindowVisible() && !pCtrl->IsHideState() &&
            pCtrl->IsWindowEnabled() && pCtrl->HitTest(pt))
            return pCtrl;
    }
    return nullptr;
}

LRESULT CLuDialog::RouteMouse(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const POINT pt{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    CLuCtrl* pTarget = nullptr;
    if (m_pCapture && (uMsg == WM_MOUSEMOVE || uMsg == WM_LBUTTONUP))
        pTarget = m_pCapture;
    else
        pTarget = ControlAt(pt);
    if (uMsg == WM_LBUTTONDOWN) m_pCapture = pTarget;
    if (uMsg == WM_LBUTTONUP) m_pCapture = nullptr;
    return pTarget ? pTarget->WindowProc(uMsg, wParam, lParam) : 0;
}

LRESULT CLuDialog::RouteKey(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    CLuEdit* pFocus = m_pGuiMgr ? m_pGuiMgr->GetFocusEdit() : nullptr;
    if (!pFocus || pFocus->GetParentDialog() != this) return 0;
    return pFocus->WindowProc(uMsg, wParam, lParam);
}

} // namespace LuGui
