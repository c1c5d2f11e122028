// The server-group screen: up to 80 group buttons of the chosen edition, with marks, tips, music, back, exit.
#include "servers/DlgSelectGroup.h"

#include <algorithm>

#include "platform/Input.h"
#include "platform/LuGui.h"
#include "platform/LuLayoutRecord.h"
#include "resources/TextScan.h"
#include "servers/ScreenActions.h"
#include "simulator/FlashSimulator.h"
#include "simulator/LayoutNumbers.h"

namespace {
constexpr std::intptr_t NO_GROUP = -1;
constexpr int MAX_URL = 1024;
} // namespace

CDlgSelectGroup::CDlgSelectGroup() : CSimDialog(IDD) {
}

CDlgSelectGroup::~CDlgSelectGroup() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgSelectGroup::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    for (int i = 0; i < MAX_GROUP_BUTTONS; ++i)
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_GROUP_FIRST) + i, m_btnGroup[i]);
    LuGui::DDX_Control(pDX, IDC_JOINED_SERVER, m_btnJoinedServer);
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

void CDlgSelectGroup::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < MAX_GROUP_BUTTONS; ++i)
        PushMsgMap(WM_COMMAND, IDC_GROUP_FIRST + static_cast<UINT>(i),
                   MsgHandler([this, i] { OnGroupClick(i); }));
    PushMsgMap(WM_COMMAND, IDC_JOINED_SERVER, &CDlgSelectGroup::OnJoinedServer);
    PushMsgMap(WM_COMMAND, IDC_SOUND, &CDlgSelectGroup::OnSound);
    PushMsgMap(WM_COMMAND, IDC_BACK, &CDlgSelectGroup::OnBack);
    PushMsgMap(WM_COMMAND, IDC_EXIT, &CDlgSelectGroup::OnExit);
}

BOOL CDlgSelectGroup::OnInitDialog() {
    CSimDialog::OnInitDialog();
    if (CFlashSimulator* pSim = FlashSim()) {
        m_chkSound.SetChecked(pSim->IsMusicOn());
        SetVersionText(pSim->GetVersion());
    }
    if (IsOpenInactive()) EnableButtons(false);
    return TRUE;
}

LRESULT CDlgSelectGroup::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == LuGui::LU_MSG_ACTIVATE) EnableButtons(true);
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgSelectGroup::OnGroupClick(int nIndex) {
    CFlashSimulator* pSim = FlashSim();
    if (!pSim) return;
    pSim->NotifyHost("BURYING_POINT", "113");
    if (nIndex < std::min(pSim->GetGroupCount(), MAX_GROUP_BUTTONS)) pSim->OnSelectGroup(nIndex);
}

void CDlgSelectGroup::OnJoinedServer() {
    char szUrl[MAX_URL] = {};
    MyGetPrivateProfileString("joinedServerBtn", "linkUrl", "", szUrl, sizeof szUrl, g_pszIniServerState);
    if (szUrl[0]) ShellExecuteA(nullptr, nullptr, szUrl, nullptr, nullptr, SW_SHOW);
}

void CDlgSelectGroup::OnSound() {
    ReportMusicChoice(m_chkSound.GetCheckValue());
}

void CDlgSelectGroup::OnBack() {
    StepBack();
}

void CDlgSelectGroup::OnExit() {
    AskToLeave();
}

// ---- filling -------------------------------------------------------------------------------------

void CDlgSelectGroup::FillGroupButtons() {
    CFlashSimulator* pSim = FlashSim();
    if (!pSim) return;
    const int nGroups = pSim->GetGroupCount();
    for (int i = 0; i < MAX_GROUP_BUTTONS; ++i) {
        CSimButton& button = m_btnGroup[i];
        button.SetExtData(NO_GROUP);
        const char* szText = i < nGroups ? pSim->GetGroupName(i) : pSim->GetStr(STR_NO_ENTRY);
        if (szText) button.SetWindowTextA(szText);
        if (const LuGui::CLuLayoutRecord* pLayout = button.GetLayoutRecord()) {
            // Undo the special background an earlier fill may have given the button.
            button.SetBackGroundAni(pLayout->GetValue("Background"));
            const char* szOffset = pLayout->GetValue("BackgroundOffset");
            const auto offset = textscan::ReadInts(szOffset ? szOffset : "", 2);
            button.SetBackGroundOffset(offset.size() > 0 ? offset[0] : 0, offset.size() > 1 ? offset[1] : 0);
        }
        if (i >= nGroups) continue;
        button.SetExtData(i);
        const SCfgGroup* pCfg = pSim->GetStringMgr().GetCfgGroup(pSim->GetModel(), i);
        if (!pCfg || !pCfg->bSpecialMark) continue;
        button.SetBackGroundAni(SPECIAL_GROUP_BG);
        int offset[2] = {0, 0};
        READ_LAYOUT_NUMBERS(STR_SPECIAL_BG_OFFSET, offset);
        button.SetBackGroundOffset(offset[0], offset[1]);
    }
}

void CDlgSelectGroup::RefreshGroupMarks() {
    CFlashSimulator* pSim = FlashSim();
    if (!pSim) return;
    m_vecGroupMarked.clear();
    const int nGroups = std::min(pSim->GetGroupCount(), MAX_GROUP_BUTTONS);
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_MARK_OFFSET, offset);
    const char* szEffect = pSim->GetStr(STR_MARK_EFFECT);
    for (CSimButton& button : m_btnGroup) button.DeleteFgEffect(nullptr);
    for (int i = 0; i < nGroups; ++i) {
        const bool bMarked = pSim->IsGroupAchTip(i);
        m_vecGroupMarked.push_back(bMarked ? 1 : 0);
        if (!bMarked || m_btnGroup[i].TestFgEffect(szEffect)) continue;
        m_btnGroup[i].AddFgEffect(szEffect, false);
        m_btnGroup[i].SetFgEffectOffset(offset[0], offset[1]);
    }
}

void CDlgSelectGroup::RefillGroups() {
    FillGroupButtons();
    RefreshGroupMarks();
}

void CDlgSelectGroup::SetVersionText(const char* szVersion) {
    if (szVersion) m_staVersion.SetWindowTextA(VersionLabelText(szVersion).c_str());
}

void CDlgSelectGroup::EnableButtons(bool bEnable) {
    const BOOL b = bEnable ? TRUE : FALSE;
    for (CSimButton& button : m_btnGroup) button.EnableWindow(b);
    m_btnBack.EnableWindow(b);
    m_btnExit.EnableWindow(b);
}

// ---- tips ----------------------------------------------------------------------------------------

int CDlgSelectGroup::GroupOfButton(const CSimButton& button) {
    return static_cast<int>(button.GetExtData());
}

bool CDlgSelectGroup::IsCursorOver(const CSimButton& button) {
    POINT pt{};
    GetCursorPos(&pt);
    return button.HitTest(pt);
}

void CDlgSelectGroup::ShowTipUnder(const CSimButton& button, const char* szTip) {
    LuGui::ILuGuiMgr* pMgr = GetGuiMgr();
    if (!pMgr) return;
    const RECT rc = button.GetWindowRect();
    pMgr->ShowTip(szTip, rc.left, rc.top + (rc.bottom - rc.top), TIP_COLOUR);
}

int CDlgSelectGroup::Show() {
    const int nResult = CSimDialog::Show();
    CFlashSimulator* pSim = FlashSim();
    if (!pSim) return nResult;
    for (const CSimButton& button : m_btnGroup) {
        const int nGroup = GroupOfButton(button);
        if (nGroup < 0) continue;
        const SCfgGroup* pCfg = pSim->GetStringMgr().GetCfgGroup(pSim->GetModel(), nGroup);
        if (pCfg && pCfg->bSpecialMark && !pCfg->strGroupTips.empty() && IsCursorOver(button))
            ShowTipUnder(button, pCfg->strGroupTips.c_str());
    }
    return nResult;
}

void CDlgSelectGroup::ShowMarkTips() {
    CFlashSimulator* pSim = FlashSim();
    if (!pSim || !IsWindowVisible() || m_vecGroupMarked.empty()) return;
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_MARK_OFFSET, offset);
    const int nMarks = std::min(static_cast<int>(m_vecGroupMarked.size()), MAX_GROUP_BUTTONS);
    for (int i = 0; i < nMarks; ++i)
        if (m_vecGroupMarked[static_cast<std::size_t>(i)] > 0 && IsCursorOver(m_btnGroup[i]))
            ShowTipUnder(m_btnGroup[i], pSim->GetStr(STR_MARK_TIP));
}
