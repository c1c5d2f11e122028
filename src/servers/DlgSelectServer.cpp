// The server screen: up to 15 servers of the chosen group with their load bars, marks, music, back and exit.
#include "servers/DlgSelectServer.h"

#include <algorithm>
#include <string>

#include "platform/Input.h"
#include "platform/LuGui.h"
#include "resources/MyString.h"
#include "servers/ScreenActions.h"
#include "servers/ServerLoad.h"
#include "simulator/FlashSimulator.h"
#include "simulator/LayoutNumbers.h"

namespace {

// Load-bar pictures by load level.
constexpr const char* LOAD_PICTURES[] = {"Server_Status_Idle", "Server_Status_Busy",
                                         "Server_Status_VeryBusy"};
constexpr std::size_t MAX_TIP = 260;

} // namespace

CDlgSelectServer::CDlgSelectServer() : CSimDialog(IDD) {
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
    LuGui::DDX_Control(pDX, IDC_BACK, m_btnBack);
    LuGui::DDX_Control(pDX, IDC_EXIT, m_btnExit);
    LuGui::DDX_Control(pDX, IDC_SOUND, m_chkSound);
    LuGui::DDX_Control(pDX, IDC_TOP1, m_staTop1);
    LuGui::DDX_Control(pDX, IDC_TOP2, m_staTop2);
    LuGui::DDX_Control(pDX, IDC_BOTTOM1, m_staBottom1);
    LuGui::DDX_Control(pDX, IDC_BOTTOM2, m_staBottom2);
    LuGui::DDX_Control(pDX, IDC_VERSION, m_staVersion);
    LuGui::DDX_Control(pDX, IDC_LOGO, m_staLogo);
}

void CDlgSelectServer::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < MAX_SERVER_BUTTONS; ++i)
        PushMsgMap(WM_COMMAND, IDC_SERVER_FIRST + static_cast<UINT>(i),
                   MsgHandler([this, i] { OnServerClick(i); }));
    PushMsgMap(WM_COMMAND, IDC_SOUND, &CDlgSelectServer::OnSound);
    PushMsgMap(WM_COMMAND, IDC_BACK, &CDlgSelectServer::OnBack);
    PushMsgMap(WM_COMMAND, IDC_EXIT, &CDlgSelectServer::OnExit);
}

void CDlgSelectServer::PreSetParam() {
    CSimDialog::PreSetParam();
    for (CSimProgress& bar : m_prgLoad) bar.PreSetParam(0, LOAD_BAR_MAX, 1, 0, nullptr, 0, nullptr);
}

// ---- filling -------------------------------------------------------------------------------------

BOOL CDlgSelectServer::OnInitDialog() {
    CSimDialog::OnInitDialog();
    CFlashSimulator* pSim = FlashSim();
    if (!pSim) return TRUE;
    SetVersionText(pSim->GetVersion());
    if (const char* szGroup = pSim->GetCurGroupName()) m_staGroupTitle.SetWindowTextA(szGroup);

    const int nServers = pSim->GetServerCount();
    m_vecServerMarked.clear();
    m_vecServerMarked.reserve(static_cast<std::size_t>(std::clamp(nServers, 0, MAX_SERVER_BUTTONS)));
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_MARK_OFFSET, offset);
    const char* szEffect = pSim->GetStr(STR_MARK_EFFECT);
    for (CSimButton& button : m_btnServer) button.DeleteFgEffect(nullptr);
    for (int i = 0; i < MAX_SERVER_BUTTONS; ++i)
        FillServer(i, nServers, szEffect, POINT{offset[0], offset[1]});

    m_chkSound.SetChecked(pSim->IsMusicOn());
    if (IsOpenInactive()) EnableButtons(false);
    return TRUE;
}

void CDlgSelectServer::FillServer(int nIndex, int nServers, const char* szEffect, POINT markOffset) {
    CFlashSimulator* pSim = FlashSim();
    CSimButton& button = m_btnServer[nIndex];
    CSimProgress& bar = m_prgLoad[nIndex];
    if (nIndex >= nServers) {
        if (const char* szText = pSim->GetStr(STR_NO_ENTRY)) button.SetWindowTextA(szText);
        bar.SetBackGroundAni(LOAD_PICTURES[0]);
        bar.SetPos(0);
        bar.SetTipShow("", TIP_COLOUR);
        return;
    }
    if (const char* szName = pSim->GetServerNameInGroup(nIndex)) button.SetWindowTextA(szName);
    const bool bMarked = pSim->IsServerAchTip(nIndex);
    m_vecServerMarked.push_back(bMarked ? 1 : 0);
    if (bMarked && !button.TestFgEffect(szEffect)) {
        button.AddFgEffect(szEffect, false);
        button.SetFgEffectOffset(markOffset.x, markOffset.y);
    }
    FillLoadBar(nIndex);
}

void CDlgSelectServer::FillLoadBar(int nIndex) {
    CFlashSimulator* pSim = FlashSim();
    CSimProgress& bar = m_prgLoad[nIndex];
    const SLoadDisplay load = ComputeLoadDisplay(pSim->GetServerLoad(nIndex));
    bar.SetBackGroundAni(LOAD_PICTURES[load.nLevel]);
    bar.SetPos(static_cast<int>(load.fShown * 10.0f));
    std::string tip;
    if (load.fShown > 0.0f)
        tip = CMyString::Format(pSim->GetStr(STR_LOAD_TIP), pSim->GetStr(load.nWordId),
                                static_cast<int>(load.fShown + 0.5f));
    else if (load.fShown < 0.0f)
        tip = CMyString::Format(pSim->GetStr(STR_MAINTENANCE_TIP), pSim->GetStr(load.nWordId));
    if (tip.size() > MAX_TIP - 1) tip.resize(MAX_TIP - 1);
    bar.SetTipShow(tip.c_str(), TIP_COLOUR);
}

void CDlgSelectServer::SetVersionText(const char* szVersion) {
    if (szVersion) m_staVersion.SetWindowTextA(VersionLabelText(szVersion).c_str());
}

void CDlgSelectServer::EnableButtons(bool bEnable) {
    const BOOL b = bEnable ? TRUE : FALSE;
    for (CSimButton& button : m_btnServer) button.EnableWindow(b);
    m_btnBack.EnableWindow(b);
    m_btnExit.EnableWindow(b);
}

// ---- selection -----------------------------------------------------------------------------------

void CDlgSelectServer::SelectServer(int nIndex) {
    CFlashSimulator* pSim = FlashSim();
    if (pSim && nIndex < std::min(pSim->GetServerCount(), MAX_SERVER_BUTTONS)) pSim->OnSelectServer(nIndex);
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

void CDlgSelectServer::OnSound() {
    ReportMusicChoice(m_chkSound.GetCheckValue());
}

void CDlgSelectServer::OnBack() {
    StepBack();
}

void CDlgSelectServer::OnExit() {
    AskToLeave();
}

// ---- tips ----------------------------------------------------------------------------------------

void CDlgSelectServer::ShowMarkTips() {
    CFlashSimulator* pSim = FlashSim();
    LuGui::ILuGuiMgr* pMgr = GetGuiMgr();
    if (!pSim || !pMgr || !IsWindowVisible()) return;
    POINT pt{};
    GetCursorPos(&pt);
    const int nMarks = std::min(static_cast<int>(m_vecServerMarked.size()), MAX_SERVER_BUTTONS);
    for (int i = 0; i < nMarks; ++i) {
        if (m_vecServerMarked[static_cast<std::size_t>(i)] <= 0 || !m_btnServer[i].HitTest(pt)) continue;
        const RECT rc = m_btnServer[i].GetWindowRect();
        pMgr->ShowTip(pSim->GetStr(STR_MARK_TIP), rc.left, rc.bottom, TIP_COLOUR);
    }
}
