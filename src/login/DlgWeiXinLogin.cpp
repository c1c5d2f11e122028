// WeChat login: the QR page (the host lays its web page over it) and the security-code pages.
//
// Index: constants; controls; initialisation and messages; handlers; operations for the simulator; pages.
#include "login/DlgWeiXinLogin.h"

#include <initializer_list>

#include "common/SysLog.h"
#include "login/LoginInput.h"
#include "screen/ScreenContext.h"

namespace {
constexpr std::uint32_t STR_GROUP_CAPTION = 4000012;
constexpr std::uint32_t STR_CURRENT = 4000013;
constexpr std::uint32_t STR_TOKEN_ERROR = 4000014;
constexpr std::uint32_t STR_TOKEN_CAPTION = 4000015;
constexpr std::uint32_t STR_TOKEN_HINT = 4000016;
constexpr std::uint32_t STR_SERVER_CAPTION = 4000017;
constexpr std::uint32_t STR_SCAN_AGAIN = 4000018;

using Windows = std::initializer_list<LuGui::CLuBaseWindow*>;

void ShowAndEnable(LuGui::CLuBaseWindow& wnd, bool bOn) {
    wnd.EnableWindow(bOn ? TRUE : FALSE);
    wnd.ShowWindow(bOn ? SW_SHOW : SW_HIDE);
}

void Notify(const char* szCommand) {
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost(szCommand, "");
}
} // namespace

CDlgWeiXinLogin::CDlgWeiXinLogin() : CSimDialog(IDD), m_editToken(INPUT_WEIXIN_TOKEN) {
}

CDlgWeiXinLogin::~CDlgWeiXinLogin() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgWeiXinLogin::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    DDX_Control(pDX, IDC_WEB_AREA, m_staWebArea);
    DDX_Control(pDX, IDC_SCAN_AGAIN, m_staScanAgain);
    DDX_Control(pDX, IDC_GROUP_CAPTION, m_staGroupCaption);
    DDX_Control(pDX, IDC_GROUP_NAME, m_staGroupName);
    DDX_Control(pDX, IDC_SERVER_CAPTION, m_staServerCaption);
    DDX_Control(pDX, IDC_SERVER_NAME, m_staServerName);
    DDX_Control(pDX, IDC_CURRENT, m_staCurrent);
    DDX_Control(pDX, IDC_CLOSE, m_btnClose);
    DDX_Control(pDX, IDC_TITLE, m_staTitle);
    DDX_Control(pDX, IDC_TOKEN_CAPTION, m_staTokenCaption);
    DDX_Control(pDX, IDC_TOKEN, m_editToken);
    DDX_Control(pDX, IDC_TOKEN_HINT, m_staTokenHint);
    DDX_Control(pDX, IDC_OK, m_btnOK);
    DDX_Control(pDX, IDC_CANCEL, m_btnCancel);
    DDX_Control(pDX, IDC_ERROR, m_staError);
    DDX_Control(pDX, IDC_CONFIRM, m_btnConfirm);
}

void CDlgWeiXinLogin::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_OK, &CDlgWeiXinLogin::OnOK);
    PushMsgMap(WM_COMMAND, IDC_CANCEL, &CDlgWeiXinLogin::OnBackToQR);
    PushMsgMap(WM_COMMAND, IDC_CONFIRM, &CDlgWeiXinLogin::OnBackToQR);
    PushMsgMap(WM_COMMAND, IDC_CLOSE, &CDlgWeiXinLogin::OnClose);
}

void CDlgWeiXinLogin::PreSetParam() {
    CSimDialog::PreSetParam();
    m_editToken.PreSetTokenParam();
}

// ---- initialisation and messages -----------------------------------------------------------------

BOOL CDlgWeiXinLogin::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    const char* szGroup = pContext->GetCurGroupName();
    const char* szServer = pContext->GetCurServerName();
    m_staGroupName.SetWindowTextA(szGroup ? szGroup : "");
    m_staServerName.SetWindowTextA(szServer ? szServer : "");
    m_staGroupCaption.SetWindowTextA(pContext->GetStr(STR_GROUP_CAPTION));
    m_staServerCaption.SetWindowTextA(pContext->GetStr(STR_SERVER_CAPTION));
    m_staCurrent.SetWindowTextA(pContext->GetStr(STR_CURRENT));
    m_staScanAgain.SetWindowTextA(pContext->GetStr(STR_SCAN_AGAIN));
    m_staTokenCaption.SetWindowTextA(pContext->GetStr(STR_TOKEN_CAPTION));
    m_staTokenHint.SetWindowTextA(pContext->GetStr(STR_TOKEN_HINT));
    m_staError.SetWindowTextA(pContext->GetStr(STR_TOKEN_ERROR));
    m_editToken.ResetEmpty();
    return TRUE;
}

LRESULT CDlgWeiXinLogin::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_RBUTTONUP && m_nPage == PAGE_QR) Notify("TestURL");
    // NOTE: the toolkit tells of real changes only, so hiding or disabling twice closes the page once.
    if ((uMsg == WM_ENABLE || uMsg == WM_SHOWWINDOW) && wParam == 0) Notify("CloseQRWeb");
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgWeiXinLogin::OnOK() {
    // NOTE: the code itself never travels in a command; the host reads the field.
    Notify("CMD_LOGIN_WARD_SAFE_TOKEN_WEIXIN");
}

void CDlgWeiXinLogin::OnBackToQR() {
    SetPage(PAGE_QR);
}

void CDlgWeiXinLogin::OnClose() {
    ShowWindow(SW_HIDE);
}

// ---- operations for the simulator ----------------------------------------------------------------

void CDlgWeiXinLogin::Open() {
    ShowWindow(SW_SHOW);
    if (m_nPage != PAGE_QR)
        SetPage(PAGE_QR);
    else
        Notify("OpenQRWeb");
}

void CDlgWeiXinLogin::AskForToken() {
    if (IsWindowVisible() && IsWindowEnabled() && m_nPage != PAGE_TOKEN) SetPage(PAGE_TOKEN);
}

void CDlgWeiXinLogin::ShowTokenError() {
    EnableWindow(TRUE);
    ShowWindow(SW_SHOW);
    SetPage(PAGE_TOKEN_ERROR);
}

// ---- pages ---------------------------------------------------------------------------------------

void CDlgWeiXinLogin::SetPage(int nPage) {
    m_nPage = nPage;
    switch (nPage) {
    case PAGE_QR:
        return ShowPageQR();
    case PAGE_TOKEN:
        return ShowPageToken();
    case PAGE_TOKEN_ERROR:
        return ShowPageError();
    default:
        return;
    }
}

void CDlgWeiXinLogin::ShowPageQR() {
    if (IsWindowVisible()) Notify("OpenQRWeb");
    for (LuGui::CLuBaseWindow* pWnd : Windows{&m_staWebArea, &m_staScanAgain}) ShowAndEnable(*pWnd, true);
    for (LuGui::CLuBaseWindow* pWnd : Windows{(&m_btnOK), &m_btnCancel, &m_btnConfirm, &m_staTitle,
                                              &m_staTokenCaption, &m_staError, &m_staTokenHint, &m_editToken})
        ShowAndEnable(*pWnd, false);
}

void CDlgWeiXinLogin::ShowPageToken() {
    m_editToken.SetWindowTextA("");
    Notify("CMD_CLR_WARD_SAFE_TOKEN");
    SysLogInfo(__FILE__, __LINE__, "E_IN_PUT_WARD false");
    Notify("CloseQRWeb");
    for (LuGui::CLuBaseWindow* pWnd : Windows{&m_staWebArea, &m_staScanAgain, &m_staError})
        pWnd->ShowWindow(SW_HIDE);
    // NOTE: the QR page disabled these; they come back enabled, or the page could not be used.
    for (LuGui::CLuBaseWindow* pWnd :
         Windows{(&m_btnOK), &m_btnCancel, &m_staTitle, &m_staTokenCaption, &m_staTokenHint, &m_editToken})
        ShowAndEnable(*pWnd, true);
    ShowAndEnable(m_btnConfirm, false);
}

void CDlgWeiXinLogin::ShowPageError() {
    SysLogInfo(__FILE__, __LINE__, "E_IN_PUT_WARD_ERROR false");
    Notify("CloseQRWeb");
    for (LuGui::CLuBaseWindow* pWnd : Windows{(&m_staWebArea), &m_staScanAgain, &m_btnOK, &m_btnCancel,
                                              &m_staTokenCaption, &m_staTokenHint, &m_editToken})
        pWnd->ShowWindow(SW_HIDE);
    for (LuGui::CLuBaseWindow* pWnd : Windows{(&m_btnConfirm), &m_staTitle, &m_staError})
        ShowAndEnable(*pWnd, true);
}
