// The security-token dialog that follows a password login when the host asks for the token.
#include "login/DlgWardSafeToken.h"

#include <initializer_list>

#include "login/LoginInput.h"
#include "screen/ScreenContext.h"

namespace {
constexpr std::uint32_t STR_TOKEN_CAPTION = 4000015;
constexpr std::uint32_t STR_TOKEN_HINT = 4000016;
constexpr std::uint32_t STR_TOKEN_ERROR = 4000019;

using Windows = std::initializer_list<LuGui::CLuBaseWindow*>;

void ShowAndEnable(LuGui::CLuBaseWindow& wnd, bool bOn) {
    wnd.EnableWindow(bOn ? TRUE : FALSE);
    wnd.ShowWindow(bOn ? SW_SHOW : SW_HIDE);
}
} // namespace

CDlgWardSafeToken::CDlgWardSafeToken() : CSimDialog(IDD), m_editToken(INPUT_WARD_TOKEN) {
}

CDlgWardSafeToken::~CDlgWardSafeToken() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgWardSafeToken::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    DDX_Control(pDX, IDC_CLOSE, m_btnClose);
    DDX_Control(pDX, IDC_TOKEN_CAPTION, m_staTokenCaption);
    DDX_Control(pDX, IDC_TOKEN, m_editToken);
    DDX_Control(pDX, IDC_TOKEN_HINT, m_staTokenHint);
    DDX_Control(pDX, IDC_OK, m_btnOK);
    DDX_Control(pDX, IDC_ERROR, m_staError);
    DDX_Control(pDX, IDC_BACK, m_btnBack);
}

void CDlgWardSafeToken::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_OK, &CDlgWardSafeToken::OnOK);
    PushMsgMap(WM_COMMAND, IDC_BACK, &CDlgWardSafeToken::OnBack);
    PushMsgMap(WM_COMMAND, IDC_CLOSE, &CDlgWardSafeToken::OnClose);
    // NOTE: the field's focus notification (command 273 of 1016) is left unmapped: it changes nothing.
}

void CDlgWardSafeToken::PreSetParam() {
    CSimDialog::PreSetParam();
    m_editToken.PreSetTokenParam();
}

BOOL CDlgWardSafeToken::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    m_staTokenCaption.SetWindowTextA(pContext->GetStr(STR_TOKEN_CAPTION));
    m_staError.SetWindowTextA(pContext->GetStr(STR_TOKEN_ERROR));
    m_staTokenHint.SetWindowTextA(pContext->GetStr(STR_TOKEN_HINT));
    m_editToken.ResetEmpty();
    return TRUE;
}

LRESULT CDlgWardSafeToken::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == LuGui::LU_MSG_LOSE_FOCUS)
        if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("CMD_TEXTSELECT", "");
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgWardSafeToken::OnOK() {
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("CMD_ENTERGAME", "3");
}

void CDlgWardSafeToken::OnBack() {
    SetPage(PAGE_ENTRY);
}

void CDlgWardSafeToken::OnClose() {
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("CMD_EXITOK", "");
    ShowWindow(SW_HIDE);
}

// ---- operations for the simulator ----------------------------------------------------------------

void CDlgWardSafeToken::StartEntry() {
    if (IsWindowEnabled() && m_nPage != PAGE_ENTRY) SetPage(PAGE_ENTRY);
}

void CDlgWardSafeToken::ShowTokenError() {
    EnableWindow(TRUE);
    ShowWindow(SW_SHOW);
    SetPage(PAGE_ERROR);
}

// ---- pages ---------------------------------------------------------------------------------------

void CDlgWardSafeToken::SetPage(int nPage) {
    m_nPage = nPage;
    const bool bEntry = nPage == PAGE_ENTRY;
    if (!bEntry && nPage != PAGE_ERROR) return;
    if (bEntry) {
        m_editToken.SetWindowTextA("");
        if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("CMD_CLR_WARD_SAFE_TOKEN", "");
    }
    for (LuGui::CLuBaseWindow* pWnd : Windows{(&m_btnOK), &m_staTokenCaption, &m_staTokenHint, &m_editToken})
        ShowAndEnable(*pWnd, bEntry);
    ShowAndEnable(m_btnBack, !bEntry);
    ShowAndEnable(m_staError, !bEntry);
}
