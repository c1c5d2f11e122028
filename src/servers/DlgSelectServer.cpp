// The server screen: up to 15 servers of the chosen group with their load bars, marks, music, back and exit.
#include "servers/DlgSelectServer.h"

#include <algorithm>
#include <string>

#include "platform/Input.h"
#include "platform/LuGui.h"
#include "resources/MyString.h"
#include "screen/LayoutNumbers.h"
#include "screen/ServerLoad.h"

namespace {

// Load-bar pictures by load level.
constexpr const char* LOAD_PICTURES[] = {"Server_Status_Idle", "Server_Status_Busy",
                                         "Server_Status_VeryBusy"};
constexpr std::size_t MAX_TIP = 260;

} // namespace

CDlgSelectServer::CDlgSelectServer()
    : CSimDialog(IDD), m_frame(*this, {.nSound = IDC_SOUND,
                                       .nBack = IDC_BACK,
                                       .nExit = IDC_EXIT,
                                       .nVersion = IDC_VERSION,
                                       .nLogo = IDC_LOGO,
                                       .panels = {IDC_TOP1, IDC_TOP2, IDC_BOTTOM1, IDC_BOTTOM2}}) {
}

CDlgSelectServer::~CDlgSelectServer() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgSelectServer::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    LuGui::DDX_Control(pDX, IDC_GROUP_TITLE, m_staGroupTitle);
    for (int i = 0; i < MAX_SERVER_BUTTONS; ++i) {
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_SERVER_FIRST) + i, m_btnServer[i]);
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_LOAD_FIRST) + i, m_prgLoad[i]);
    }
    m_frame.Bind(pDX);
}

void CDlgSelectServer::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < MAX_SERVER_BUTTONS; ++i)
        PushMsgMap(WM_COMMAND, IDC_SERVER_FIRST + static_cast<UINT>(i),
                   MsgHandler([this, i] { OnServerClick(i); }));
    m_frame.MapHandlers();
}

void CDlgSelectServer::PreSetParam() {
    CSimDialog::PreSetParam();
    for (CSimProgress& bar : m_prgLoad) bar.PreSetParam(0, LOAD_BAR_MAX, 1, 0, nullptr, 0, nullptr);
}

// ---- filling -------------------------------------------------------------------------------------

BOOL CDlgSelectServer::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    m_frame.OnOpen();
    if (const char* szGroup = pContext->GetCurGroupName()) m_staGroupTitle.SetWindowTextA(szGroup);

    const int nServers = pContext->GetServerCount();
    m_vecServerMarked.clear();
    m_vecServerMarked.reserve(static_cast<std::size_t>(std::clamp(nServers, 0, MAX_SERVER_BUTTONS)));
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_MARK_OFFSET, offset);
    const char* szEffect = pContext->GetStr(STR_MARK_EFFECT);
    for (CSimButton& button : m_btnServer) button.DeleteFgEffect(nullptr);
    for (int i = 0; i < MAX_SERVER_BUTTONS; ++i)
        FillServer(i, nServers, szEffect, POINT{offset[0], offset[1]});

    if (IsOpenInactive()) EnableButtons(false);
    return TRUE;
}

void CDlgSelectServer::FillServer(int nIndex, int nServers, const char* szEffect, POINT markOffset) {
    IScreenContext* pContext = ScreenContext();
    CSimButton& button = m_btnServer[nIndex];
    CSimProgress& bar = m_prgLoad[nIndex];
    if (nIndex >= nServers) {
        if (const char* szText = pContext->GetStr(STR_NO_ENTRY)) button.SetWindowTextA(szText);
        bar.SetBackGroundAni(LOAD_PICTURES[0]);
        bar.SetPos(0);
        bar.SetTipShow("", TIP_COLOUR);
        return;
    }
    if (const char* szName = pContext->GetServerName(pContext->GetCurGroup(), nIndex))
        button.SetWindowTextA(szName);
    const bool bMarked = pContext->IsServerAchTip(nIndex);
    m_vecServerMarked.push_back(bMarked ? 1 : 0);
    if (bMarked && !button.TestFgEffect(szEffect)) {
        button.AddFgEffect(szEffect, false);
        button.SetFgEffectOffset(markOffset.x, markOffset.y);
    }
    FillLoadBar(nIndex);
}

void CDlgSelectServer::FillLoadBar(int nIndex) {
    IScreenContext* pContext = ScreenContext();
    CSimProgress& bar = m_prgLoad[nIndex];
    const SLoadDisplay load = ComputeLoadDisplay(pContext->GetServerLoad(nIndex));
    bar.SetBackGroundAni(LOAD_PICTURES[load.nLevel]);
    bar.SetPos(static_cast<int>(load.fShown * 10.0f));
    std::string tip;
    if (load.fShown > 0.0f)
        tip = CMyString::Format(pContext->GetStr(STR_LOAD_TIP), pContext->GetStr(load.nWordId),
                                static_cast<int>(load.fShown + 0.5f));
    else if (load.fShown < 0.0f)
        tip = CMyString::Format(pContext->GetStr(STR_MAINTENANCE_TIP), pContext->GetStr(load.nWordId));
    if (tip.size() > MAX_TIP - 1) tip.resize(MAX_TIP - 1);
    bar.SetTipShow(tip.c_str(), TIP_COLOUR);
}

void CDlgSelectServer::EnableButtons(bool bEnable) {
    const BOOL b = bEnable ? TRUE : FALSE;
    for (CSimButton& button : m_btnServer) button.EnableWindow(b);
    m_frame.EnableNavigation(bEnable);
}

// ---- selection -----------------------------------------------------------------------------------

void CDlgSelectServer::SelectServer(int nIndex) {
    IScreenContext* pContext = ScreenContext();
    if (pContext && nIndex < std::min(pContext->GetServerCount(), MAX_SERVER_BUTTONS))
        pContext->OnSelectServer(nIndex);
}

void CDlgSelectServer::OnServerClick(int nIndex) {
    SelectServer(nIndex);
}

BOOL CDlgSelectServer::PreTranslateMessage(MSG* pMsg) {
    if (pMsg && pMsg->message == WM_LBUTTONDOWN) {
        POINT pt{};
        GetCursorPos(&pt);
        for (int i = 0; i < MAX_SERVER_BUTTONS; ++i) {
            if (!m_prgLoad[i].HitTest(pt)) continue;
            SelectServer(i);
            break;
        }
    }
    return CSimDialog::PreTranslateMessage(pMsg);
}

LRESULT CDlgSelectServer::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == LuGui::LU_MSG_ACTIVATE) EnableButtons(true);
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

// ---- tips ----------------------------------------------------------------------------------------

void CDlgSelectServer::ShowMarkTips() {
    IScreenContext* pContext = ScreenContext();
    LuGui::ILuGuiMgr* pMgr = GetGuiMgr();
    if (!pContext || !pMgr || !IsWindowVisible()) return;
    POINT pt{};
    GetCursorPos(&pt);
    const int nMarks = std::min(static_cast<int>(m_vecServerMarked.size()), MAX_SERVER_BUTTONS);
    for (int i = 0; i < nMarks; ++i) {
        if (m_vecServerMarked[static_cast<std::size_t>(i)] <= 0 || !m_btnServer[i].HitTest(pt)) continue;
        const RECT rc = m_btnServer[i].GetWindowRect();
        pMgr->ShowTip(pContext->GetStr(STR_MARK_TIP), rc.left, rc.bottom, TIP_COLOUR);
    }
}
