// The roles an account already has on the chosen international server: up to ten rows with name, level,
// profession and power, the server's name and load; start confirms the server for the main login.
#include "rolecreate/DlgFlashCharacterEn.h"

#include <algorithm>

#include "platform/GameData.h"
#include "platform/GameGraphic.h"
#include "platform/GameLogic.h"
#include "platform/Graphics.h"
#include "platform/MyAni.h"
#include "resources/MyString.h"
#include "screen/RoleRowTexts.h"
#include "screen/ScreenContext.h"
#include "screen/ServerLoad.h"

CDlgFlashCharacterEn::CDlgFlashCharacterEn() : CSimDialog(IDD) {
    // The dimming layer covers the whole screen, wherever the list stands.
    constexpr int WHOLE_SCREEN = 1 << 20;
    SetDrawMargin(RECT{WHOLE_SCREEN, WHOLE_SCREEN, WHOLE_SCREEN, WHOLE_SCREEN});
}

CDlgFlashCharacterEn::~CDlgFlashCharacterEn() = default;

void CDlgFlashCharacterEn::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    for (int i = 0; i < ROWS; ++i) {
        SRow& row = m_rows[static_cast<std::size_t>(i)];
        LuGui::DDX_Control(pDX, IDC_ROW_BG + i, row.staBg);
        LuGui::DDX_Control(pDX, IDC_ROW_NAME + i, row.staName);
        LuGui::DDX_Control(pDX, IDC_ROW_LEVEL + i, row.staLevel);
        LuGui::DDX_Control(pDX, IDC_ROW_PRO + i, row.staPro);
        LuGui::DDX_Control(pDX, IDC_ROW_POWER + i, row.staPower);
    }
    LuGui::DDX_Control(pDX, IDC_TITLE, m_staTitle);
    LuGui::DDX_Control(pDX, IDC_LOAD, m_staLoad);
    LuGui::DDX_Control(pDX, IDC_LABEL, m_staLabel);
    LuGui::DDX_Control(pDX, IDC_START, m_btnStart);
    LuGui::DDX_Control(pDX, IDC_CLOSE, m_btnClose);
}

void CDlgFlashCharacterEn::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_START, &CDlgFlashCharacterEn::OnStart);
    PushMsgMap(WM_COMMAND, IDC_CLOSE, &CDlgFlashCharacterEn::OnClose);
}

BOOL CDlgFlashCharacterEn::OnInitDialog() {
    CSimDialog::OnInitDialog();
    if (IScreenContext* pContext = ScreenContext()) m_staTitle.SetWindowTextA(pContext->GetStr(STR_TITLE));
    FillRoles();
    return TRUE;
}

// ---- the list --------------------------------------------------------------------------------------

void CDlgFlashCharacterEn::ShowRow(SRow& row, bool bShow) {
    for (CSimStatic* pControl : {&row.staBg, &row.staName, &row.staLevel, &row.staPro, &row.staPower}) {
        pControl->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
        pControl->EnableWindow(bShow ? TRUE : FALSE);
    }
}

void CDlgFlashCharacterEn::FillRoles() {
    for (SRow& row : m_rows) ShowRow(row, false);
    const std::int64_t nKey = GameLogicGet()->GetRoleListKey(RoleDataQueryEx()->GetAccountValue(),
                                                             m_nGroup + 1, m_nServer + 1, true);
    int nCount = 0;
    const SServerRole* pRoles = GameLogicEnGet()->GetRoleList(m_nGroup + 1, nKey, nCount);
    if (!pRoles) return;
    const int nShown = std::clamp(nCount, 0, ROWS);
    for (int k = 0; k < nShown; ++k) {
        SRow& row = m_rows[static_cast<std::size_t>(k)];
        const SRoleRowTexts texts = SRoleRowTexts::Of(pRoles[k]);
        row.staName.SetWindowTextA(texts.strName.c_str());
        row.staLevel.SetWindowTextA(texts.strLevel.c_str());
        row.staPro.SetWindowTextA(texts.strProfession.c_str());
        row.staPower.SetWindowTextA(texts.strPower.c_str());
        ShowRow(row, true);
    }
}

void CDlgFlashCharacterEn::SetGroupServer(int nGroup, int nServer) {
    m_nGroup = nGroup;
    m_nServer = nServer;
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    const bool bGroup = nGroup >= 0 && nGroup < pContext->GetGroupCount();
    const bool bServer = nServer >= 0 && nServer < pContext->GetServerCount();
    const char* szGroup = bGroup ? pContext->GetGroupName(nGroup) : pContext->GetStr(STR_EMPTY_NAME);
    const char* szServer = bServer ? pContext->GetServerName(pContext->GetCurGroup(), nServer)
                                   : pContext->GetStr(STR_EMPTY_NAME);
    if (szGroup && szServer)
        m_staLabel.SetWindowTextA(CMyString::Format(pContext->GetStr(STR_LABEL), szGroup, szServer).c_str());
    // NOTE: the load is the server's in the current group, whatever group the list is for.
    m_staLoad.SetBackGroundAni(LoadPictureOf(ComputeLoadDisplay(pContext->GetServerLoad(nServer))));
}

// ---- buttons and drawing ---------------------------------------------------------------------------

void CDlgFlashCharacterEn::OnStart() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext || pContext->IsRegisterOpen()) return;
    pContext->RefreshServerLabel();
    EnableWindow(FALSE);
    ShowWindow(SW_HIDE);
}

void CDlgFlashCharacterEn::OnClose() {
    EnableWindow(FALSE);
    ShowWindow(SW_HIDE);
}

int CDlgFlashCharacterEn::Show() {
    // The dimming layer over everything below the list.
    if (CMyAni* pAni = QueryMyAniMgr()->QueryAni(CONTROL_ANI_FILE, DIM_ANI)) {
        pAni->ShowStretch(0, RECT{0, 0, CMyBitmap::GetScreenWidth(), CMyBitmap::GetScreenHeight()}, 255);
        pAni->Release();
    }
    return CSimDialog::Show();
}
