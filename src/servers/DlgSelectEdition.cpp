// The edition screen: five editions with descriptions and up to three quick-entry records.
#include "servers/DlgSelectEdition.h"

#include <algorithm>
#include <string>

namespace {
constexpr int MAX_TIP_TEXT = 1024;
}

CDlgSelectEdition::CDlgSelectEdition()
    : CSimDialog(IDD), m_frame(*this, {.nSound = IDC_SOUND,
                                       .nBack = IDC_BACK,
                                       .nExit = IDC_EXIT,
                                       .nVersion = IDC_VERSION,
                                       .nLogo = IDC_LOGO,
                                       .panels = {IDC_BOTTOM1, IDC_BOTTOM2}}) {
}

CDlgSelectEdition::~CDlgSelectEdition() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgSelectEdition::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    for (int i = 0; i < EDITION_COUNT; ++i) {
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_EDITION_FIRST) + i, m_btnEdition[i]);
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_EDITION_TIPS[i]), m_staEditionTip[i]);
    }
    for (int k = 0; k < MAX_QUICK_ENTRY_AMOUNT; ++k) {
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_RECORDS[k]), m_btnRecord[k]);
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_DELETE_RECORDS[k]), m_btnDeleteRecord[k]);
    }
    LuGui::DDX_Control(pDX, IDC_EDITION_BG, m_staEditionBg);
    m_frame.Bind(pDX);
}

void CDlgSelectEdition::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < EDITION_COUNT; ++i)
        PushMsgMap(WM_COMMAND, IDC_EDITION_FIRST + static_cast<UINT>(i),
                   MsgHandler([this, i] { OnEdition(i); }));
    for (int k = 0; k < MAX_QUICK_ENTRY_AMOUNT; ++k) {
        PushMsgMap(WM_COMMAND, IDC_RECORDS[k], MsgHandler([this, k] { OnRecord(k); }));
        PushMsgMap(WM_COMMAND, IDC_DELETE_RECORDS[k], MsgHandler([this, k] { OnDeleteRecord(k); }));
    }
    m_frame.MapHandlers();
}

BOOL CDlgSelectEdition::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    for (int i = 0; i < EDITION_COUNT; ++i) {
        char szTip[MAX_TIP_TEXT] = {};
        MyGetPrivateProfileString("VerTip", FindEdition(i + 1)->szTipKey, "", szTip, sizeof szTip,
                                  g_pszIniServerState);
        m_staEditionTip[i].SetWindowTextA(szTip);
    }
    m_frame.OnOpen();
    pContext->NotifyHost("GET_QUCIK_RECORD", "");
    RefreshRecordButtons();
    if (IsOpenInactive()) EnableButtons(false);
    return TRUE;
}

LRESULT CDlgSelectEdition::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == LuGui::LU_MSG_ACTIVATE) EnableButtons(true);
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgSelectEdition::OnEdition(int nIndex) {
    if (IScreenContext* pContext = ScreenContext()) pContext->OnSelectModel(nIndex + 1);
}

void CDlgSelectEdition::OnRecord(int nSlot) {
    IScreenContext* pContext = ScreenContext();
    const SQuickEntry* pEntry = pContext ? pContext->GetQuickEntry(nSlot) : nullptr;
    if (pEntry) pContext->QuickSelect(pEntry->nModel, ZeroBased(pEntry->nGroup), ZeroBased(pEntry->nServer));
}

void CDlgSelectEdition::OnDeleteRecord(int nSlot) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    pContext->DeleteQuickEntry(nSlot);
    RefreshRecordButtons();
}

// ---- records -------------------------------------------------------------------------------------

void CDlgSelectEdition::RefreshRecordButtons() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    const int nRecords = std::min(pContext->GetQuickEntryCount(), MAX_QUICK_ENTRY_AMOUNT);
    for (int k = 0; k < nRecords; ++k) {
        const SQuickEntry* pEntry = pContext->GetQuickEntry(k);
        if (const SEditionInfo* pEdition = FindEdition(pEntry->nModel))
            m_btnRecord[k].SetSubGround(pEdition->szEntryPicture);
        const std::string text = std::string(pEntry->strGroupName.c_str()) + pEntry->strServerName.c_str();
        m_btnRecord[k].SetWindowTextA(text.c_str());
        m_btnRecord[k].SetFontColor(RECORD_COLOUR);
        m_btnDeleteRecord[k].ShowWindow(SW_SHOW);
    }
    for (int k = nRecords; k < MAX_QUICK_ENTRY_AMOUNT; ++k) {
        m_btnRecord[k].SetSubGround(EMPTY_ENTRY_PICTURE);
        m_btnRecord[k].SetWindowTextA(pContext->GetStr(STR_EMPTY_RECORD));
        m_btnRecord[k].SetFontColor(EMPTY_RECORD_COLOUR);
        m_btnDeleteRecord[k].ShowWindow(SW_HIDE);
    }
}

void CDlgSelectEdition::EnableButtons(bool bEnable) {
    const BOOL b = bEnable ? TRUE : FALSE;
    for (CSimButton& button : m_btnEdition) button.EnableWindow(b);
    for (CSimButton& button : m_btnRecord) button.EnableWindow(b);
    m_frame.EnableNavigation(bEnable);
}
