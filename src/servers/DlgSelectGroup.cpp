// The server-group screen: up to 80 group buttons of the chosen edition, with marks, tips, music, back, exit.
#include "servers/DlgSelectGroup.h"

#include <algorithm>

#include "platform/Input.h"
#include "platform/LuGui.h"
#include "platform/LuLayoutRecord.h"
#include "resources/TextScan.h"
#include "screen/LayoutNumbers.h"

namespace {
constexpr std::intptr_t NO_GROUP = -1;
constexpr int MAX_URL = 1024;
} // namespace

CDlgSelectGroup::CDlgSelectGroup()
    : CSimDialog(IDD), m_frame(*this, {.nSound = IDC_SOUND,
                                       .nBack = IDC_BACK,
                                       .nExit = IDC_EXIT,
                                       .nVersion = IDC_VERSION,
                                       .nLogo = IDC_LOGO,
                                       .panels = {IDC_TOP1, IDC_TOP2, IDC_BOTTOM1, IDC_BOTTOM2}}) {
}

CDlgSelectGroup::~CDlgSelectGroup() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgSelectGroup::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    for (int i = 0; i < MAX_GROUP_BUTTONS; ++i)
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_GROUP_FIRST) + i, m_btnGroup[i]);
    LuGui::DDX_Control(pDX, IDC_JOINED_SERVER, m_btnJoinedServer);
    m_frame.Bind(pDX);
}

void CDlgSelectGroup::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < MAX_GROUP_BUTTONS; ++i)
        PushMsgMap(WM_COMMAND, IDC_GROUP_FIRST + static_cast<UINT>(i),
                   MsgHandler([this, i] { OnGroupClick(i); }));
    PushMsgMap(WM_COMMAND, IDC_JOINED_SERVER, &CDlgSelectGroup::OnJoinedServer);
    m_frame.MapHandlers();
}

BOOL CDlgSelectGroup::OnInitDialog() {
    CSimDialog::OnInitDialog();
    m_frame.OnOpen();
    if (IsOpenInactive()) EnableButtons(false);
    return TRUE;
}

LRESULT CDlgSelectGroup::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == LuGui::LU_MSG_ACTIVATE) EnableButtons(true);
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgSelectGroup::OnGroupClick(int nIndex) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    pContext->NotifyHost("BURYING_POINT", "113");
    if (nIndex < std::min(pContext->GetGroupCount(), MAX_GROUP_BUTTONS)) pContext->OnSelectGroup(nIndex);
}

void CDlgSelectGroup::OnJoinedServer() {
    char szUrl[MAX_URL] = {};
    MyGetPrivateProfileString("joinedServerBtn", "linkUrl", "", szUrl, sizeof szUrl, g_pszIniServerState);
    if (szUrl[0]) ShellExecuteA(nullptr, nullptr, szUrl, nullptr, nullptr, SW_SHOW);
}

// ---- filling -------------------------------------------------------------------------------------

void CDlgSelectGroup::FillGroupButtons() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    const int nGroups = pContext->GetGroupCount();
    for (int i = 0; i < MAX_GROUP_BUTTONS; ++i) {
        CSimButton& button = m_btnGroup[i];
        button.SetExtData(NO_GROUP);
        const char* szText = i < nGroups ? pContext->GetGroupName(i) : pContext->GetStr(STR_NO_ENTRY);
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
        const SCfgGroup* pCfg = pContext->GetCfgGroup(pContext->GetModel(), i);
        if (!pCfg || !pCfg->bSpecialMark) continue;
        button.SetBackGroundAni(SPECIAL_GROUP_BG);
        int offset[2] = {0, 0};
        READ_LAYOUT_NUMBERS(STR_SPECIAL_BG_OFFSET, offset);
        button.SetBackGroundOffset(offset[0], offset[1]);
    }
}

void CDlgSelectGroup::RefreshGroupMarks() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_vecGroupMarked.clear();
    const int nGroups = std::min(pContext->GetGroupCount(), MAX_GROUP_BUTTONS);
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_MARK_OFFSET, offset);
    const char* szEffect = pContext->GetStr(STR_MARK_EFFECT);
    for (CSimButton& button : m_btnGroup) button.DeleteFgEffect(nullptr);
    for (int i = 0; i < nGroups; ++i) {
        const bool bMarked = pContext->IsGroupAchTip(i);
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

void CDlgSelectGroup::EnableButtons(bool bEnable) {
    const BOOL b = bEnable ? TRUE : FALSE;
    for (CSimButton& button : m_btnGroup) button.EnableWindow(b);
    m_frame.EnableNavigation(bEnable);
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
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return nResult;
    for (const CSimButton& button : m_btnGroup) {
        // Only the button under the cursor can show a tip: its group's configuration alone is looked up.
        const int nGroup = GroupOfButton(button);
        if (nGroup < 0 || !IsCursorOver(button)) continue;
        const SCfgGroup* pCfg = pContext->GetCfgGroup(pContext->GetModel(), nGroup);
        if (pCfg && pCfg->bSpecialMark && !pCfg->strGroupTips.empty())
            ShowTipUnder(button, pCfg->strGroupTips.c_str());
    }
    return nResult;
}

void CDlgSelectGroup::ShowMarkTips() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext || !IsWindowVisible() || m_vecGroupMarked.empty()) return;
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_MARK_OFFSET, offset);
    const int nMarks = std::min(static_cast<int>(m_vecGroupMarked.size()), MAX_GROUP_BUTTONS);
    for (int i = 0; i < nMarks; ++i)
        if (m_vecGroupMarked[static_cast<std::size_t>(i)] > 0 && IsCursorOver(m_btnGroup[i]))
            ShowTipUnder(m_btnGroup[i], pContext->GetStr(STR_MARK_TIP));
}
