// The dialog that offers to remember or bind the account.
#include "login/DlgRememberAccount.h"

#include "screen/ScreenContext.h"

namespace {
constexpr std::uint32_t STR_TITLE = 3110004;
constexpr std::uint32_t STR_EXPLAIN = 3110005;
} // namespace

CDlgRememberAccount::CDlgRememberAccount() : CSimDialog(IDD) {
}

CDlgRememberAccount::~CDlgRememberAccount() = default;

void CDlgRememberAccount::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    DDX_Control(pDX, IDC_BACKGROUND, m_staBackground);
    DDX_Control(pDX, IDC_TITLE, m_staTitle);
    DDX_Control(pDX, IDC_EXPLAIN, m_staExplain);
    DDX_Control(pDX, IDC_REMEMBER, m_btnRemember);
    DDX_Control(pDX, IDC_REMEMBER_AND_BIND, m_btnRememberAndBind);
    DDX_Control(pDX, IDC_CANCEL, m_btnCancel);
}

void CDlgRememberAccount::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_REMEMBER, &CDlgRememberAccount::OnRemember);
    PushMsgMap(WM_COMMAND, IDC_REMEMBER_AND_BIND, &CDlgRememberAccount::OnRememberAndBind);
    PushMsgMap(WM_COMMAND, IDC_CANCEL, &CDlgRememberAccount::OnCancel);
}

BOOL CDlgRememberAccount::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext || m_bTextsSet) return TRUE;
    m_staTitle.SetWindowTextA(pContext->GetStr(STR_TITLE));
    m_staExplain.SetWindowTextA(pContext->GetStr(STR_EXPLAIN));
    m_bTextsSet = true;
    return TRUE;
}

void CDlgRememberAccount::OnRemember() {
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("CMD_RECORDACCOUNT", "");
    ShowWindow(SW_HIDE);
}

void CDlgRememberAccount::OnRememberAndBind() {
    if (IScreenContext* pContext = ScreenContext()) {
        pContext->NotifyHost("CMD_RECORDACCOUNT", "");
        pContext->NotifyHost("CMD_BINDACCOUNT", "");
    }
    ShowWindow(SW_HIDE);
}

void CDlgRememberAccount::OnCancel() {
    ShowWindow(SW_HIDE);
}
