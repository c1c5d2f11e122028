// The quick-entry editor: which of the three records the current server replaces.
#include "servers/DlgAddQuickEntry.h"

#include <string>

#include "platform/Log.h"
#include "screen/ScreenContext.h"
#include "servers/EditionInfo.h"

CDlgAddQuickEntry::CDlgAddQuickEntry() : CSimDialog(IDD) {
}

CDlgAddQuickEntry::~CDlgAddQuickEntry() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgAddQuickEntry::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    LuGui::DDX_Control(pDX, IDC_TITLE, m_staTitle);
    LuGui::DDX_Control(pDX, IDC_FULL, m_staFull);
    LuGui::DDX_Control(pDX, IDC_EXPLAIN, m_staExplain);
    LuGui::DDX_Control(pDX, IDC_REPLACED, m_staReplaced);
    LuGui::DDX_Control(pDX, IDC_NEW_RECORD, m_staNewRecord);
    for (int k = 0; k < MAX_QUICK_ENTRY_AMOUNT; ++k) {
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_ROW_EDITION_FIRST) + k, m_staRowEdition[k]);
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_ROW_GROUP_FIRST) + k, m_staRowGroup[k]);
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_ROW_SERVER_FIRST) + k, m_staRowServer[k]);
        LuGui::DDX_Control(pDX, static_cast<int>(IDC_REPLACE_FIRST) + k, m_btnReplace[k]);
    }
    LuGui::DDX_Control(pDX, IDC_AUTO_REPLACE, m_btnAutoReplace);
    LuGui::DDX_Control(pDX, IDC_CANCEL, m_btnCancel);
    LuGui::DDX_Control(pDX, IDC_BG, m_staBg);
}

void CDlgAddQuickEntry::MessageMap() {
    CSimDialog::MessageMap();
    for (int k = 0; k < MAX_QUICK_ENTRY_AMOUNT; ++k)
        PushMsgMap(WM_COMMAND, IDC_REPLACE_FIRST + static_cast<UINT>(k),
                   MsgHandler([this, k] { OnReplace(k); }));
    PushMsgMap(WM_COMMAND, IDC_AUTO_REPLACE, MsgHandler([this] { OnReplace(0); }));
    PushMsgMap(WM_COMMAND, IDC_CANCEL, &CDlgAddQuickEntry::OnCancel);
}

// ---- filling -------------------------------------------------------------------------------------

std::string CDlgAddQuickEntry::RecordLine(int nEdition, const char* szGroup, const char* szServer) {
    IScreenContext* pContext = ScreenContext();
    const char* szEdition =
        pContext ? pContext->GetStr(STR_EDITION_NAME_BASE + static_cast<std::uint32_t>(nEdition)) : "";
    return std::string(szEdition ? szEdition : "") + " " + (szGroup ? szGroup : "") + " " +
           (szServer ? szServer : "");
}

BOOL CDlgAddQuickEntry::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    m_staTitle.SetWindowTextA(pContext->GetStr(STR_TITLE));
    m_staFull.SetWindowTextA(pContext->GetStr(STR_FULL));
    m_staExplain.SetWindowTextA(pContext->GetStr(STR_EXPLAIN));
    const int nRecords = pContext->GetQuickEntryCount();
    if (nRecords != MAX_QUICK_ENTRY_AMOUNT)
        LogMsg("ASSERT(nRecordAmount == MAX_QUICK_ENTRY_AMOUNT) in %d line of %s", __LINE__, __FILE__);
    if (nRecords < MAX_QUICK_ENTRY_AMOUNT) return TRUE;

    const SQuickEntry* pFirst = pContext->GetQuickEntry(0);
    m_staReplaced.SetWindowTextA(
        RecordLine(pFirst->nModel, pFirst->strGroupName.c_str(), pFirst->strServerName.c_str()).c_str());
    m_staNewRecord.SetWindowTextA(
        RecordLine(pContext->GetModel(), pContext->GetCurGroupName(), pContext->GetCurServerName()).c_str());
    for (int k = 0; k < MAX_QUICK_ENTRY_AMOUNT; ++k) {
        const SQuickEntry* pEntry = pContext->GetQuickEntry(k);
        if (const SEditionInfo* pEdition = FindEdition(pEntry->nModel))
            m_staRowEdition[k].SetBackGroundAni(pEdition->szEntryPicture);
        m_staRowGroup[k].SetWindowTextA(pEntry->strGroupName.c_str());
        m_staRowServer[k].SetWindowTextA(pEntry->strServerName.c_str());
    }
    return TRUE;
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgAddQuickEntry::OnReplace(int nSlot) {
    if (IScreenContext* pContext = ScreenContext()) {
        SQuickEntry entry;
        pContext->FillQuickEntry(entry);
        pContext->ReplaceQuickEntry(entry, nSlot);
    }
    ShowWindow(SW_HIDE);
}

void CDlgAddQuickEntry::OnCancel() {
    ShowWindow(SW_HIDE);
}
