// The classic login: controls and handlers, initialisation and frames, messages and presses, and the
// operations the simulator calls for the host's variables.
//
// Index: constants; controls; initialisation and frames; messages and presses; handlers; operations for the
// simulator. The pages, layouts, texts and drawing are in DlgFlashLoginPages.cpp.
#include "login/DlgFlashLogin.h"

#include <string_view>

#include "login/DlgRememberAccount.h"
#include "login/DlgWeiXinLogin.h"
#include "login/RecordedAccountRows.h"
#include "platform/GameData.h"
#include "platform/Log.h"
#include "platform/LuGui.h"
#include "screen/LayoutNumbers.h"

namespace {

constexpr std::uint32_t STR_ACCOUNT_LIST_MARK = 4000004;
constexpr std::uint32_t STR_ACCOUNT_LIST_ROWS = 4000008;
constexpr std::uint32_t STR_REGISTER_URL = 4000007;
constexpr DWORD ACCOUNT_LIST_NORMAL = 0xFFFFFF;
constexpr DWORD ACCOUNT_LIST_HIGHLIGHT = 0xFFFF0000;
constexpr const char* LIST_CHOOSER = "Login_ClickIDBar";
constexpr int FIELD_READ = 260;
constexpr int INI_READ = 1024;
constexpr int URL_LIMIT = 1024;
constexpr const char* LOGIN_URL_SECTION = "loginUrl";
constexpr const char* SOFTKEY_SITE_KEY = "softKeySite";

// Help and application pages of the password page, by button and key of the "loginUrl" section.
struct SLoginPage {
    UINT nId;
    const char* szKey;
};
constexpr SLoginPage LOGIN_PAGES[] = {
    {CDlgFlashLogin::IDC_PHONE_PROTECT, "telWatch"},   {CDlgFlashLogin::IDC_PROTECT_HELP, "watchQuestion"},
    {CDlgFlashLogin::IDC_PROTECT_APPLY, "watchApply"}, {CDlgFlashLogin::IDC_TOKEN_HELP, "tokenQuestion"},
    {CDlgFlashLogin::IDC_TOKEN_APPLY, "tokenApply"},   {CDlgFlashLogin::IDC_PHONE_SITE, "phoneWeb"}};

bool Contains(const RECT& rc, POINT pt) {
    return pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
}

// The window takes presses: shown and enabled.
bool IsLive(const LuGui::CLuBaseWindow& wnd) {
    return wnd.IsWindowVisible() && wnd.IsWindowEnabled();
}

} // namespace

CDlgFlashLogin::CDlgFlashLogin()
    : CSimDialog(IDD),
      m_frame(*this, {.nSound = IDC_SOUND,
                      .nBack = IDC_BACK,
                      .nExit = IDC_EXIT,
                      .nVersion = IDC_VERSION,
                      .nLogo = IDC_LOGO,
                      .panels = {IDC_PLATES[0], IDC_PLATES[1], IDC_PLATES[2], IDC_PLATES[3]}}) {
    m_frame.SetVersionFormatter(&CDlgFlashLogin::VersionLabelText);
    m_frame.SetBeforeBack([] {
        if (IScreenContext* pContext = ScreenContext()) pContext->ShowScreen(CDlgWeiXinLogin::IDD, false);
    });
}

CDlgFlashLogin::~CDlgFlashLogin() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgFlashLogin::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    // NOTE: the switch is read once: the controls it binds cannot come or go afterwards.
    m_bQRLogin = RoleDataQueryEx()->IsQRLoginEnabled();
    DDX_Control(pDX, IDC_BACKGROUND, m_staBackground);
    DDX_Control(pDX, IDC_QR_BACKGROUND, m_staQRBackground);
    m_frame.Bind(pDX);
    DDX_Control(pDX, IDC_SERVER_LABEL, m_staServerLabel);
    DDX_Control(pDX, IDC_RECORD_ENTRY, m_btnRecordEntry);
    DDX_Control(pDX, IDC_ACCOUNT_LABEL, m_staAccountLabel);
    DDX_Control(pDX, IDC_PASSWORD_LABEL, m_staPasswordLabel);
    DDX_Control(pDX, IDC_PROTECT_LABEL, m_staProtectLabel);
    DDX_Control(pDX, IDC_TOKEN_LABEL, m_staTokenLabel);
    DDX_Control(pDX, IDC_ACCOUNT, m_editAccount);
    DDX_Control(pDX, IDC_PASSWORD, m_editPassword);
    DDX_Control(pDX, IDC_PROTECT, m_editProtect);
    DDX_Control(pDX, IDC_TOKEN, m_editToken);
    DDX_Control(pDX, IDC_ACCOUNT_LIST_BUTTON, m_btnAccountList);
    DDX_Control(pDX, IDC_REGISTER, m_btnRegister);
    DDX_Control(pDX, IDC_SOFTKEY_SWITCH, m_chkSoftKey);
    DDX_Control(pDX, IDC_PROTECT_HELP, m_btnProtectHelp);
    DDX_Control(pDX, IDC_PROTECT_APPLY, m_btnProtectApply);
    DDX_Control(pDX, IDC_TOKEN_HELP, m_btnTokenHelp);
    DDX_Control(pDX, IDC_TOKEN_APPLY, m_btnTokenApply);
    DDX_Control(pDX, IDC_ENTER, m_btnEnter);
    DDX_Control(pDX, IDC_REMEMBER, m_btnRemember);
    DDX_Control(pDX, IDC_PHONE_PROTECT, m_btnPhoneProtect);
    DDX_Control(pDX, IDC_ACCOUNT_HELP, m_btnAccountHelp);
    DDX_Control(pDX, IDC_SOFTKEY_BG, m_staSoftKeyBg);
    DDX_Control(pDX, IDC_SOFTKEY_AREA, m_staSoftKeyArea);
    DDX_Control(pDX, IDC_SOFTKEY_BACKSPACE, m_btnSoftKeyBackspace);
    DDX_Control(pDX, IDC_SOFTKEY_ENTER, m_btnSoftKeyEnter);
    if (m_bQRLogin) {
        DDX_Control(pDX, IDC_PASSWORD_TAB, m_chkPasswordTab);
        DDX_Control(pDX, IDC_QR_TAB, m_chkQRTab);
        DDX_Control(pDX, IDC_QR_HINT, m_staQRHint);
        DDX_Control(pDX, IDC_QR_TITLE, m_staQRTitle);
        DDX_Control(pDX, IDC_QR_EXPLAIN, m_staQRExplain);
        DDX_Control(pDX, IDC_PHONE_SITE, m_btnPhoneSite);
        DDX_Control(pDX, IDC_QR_PICTURE, m_btnQRPicture);
        DDX_Control(pDX, IDC_QR_REFRESH, m_btnQRRefresh);
        DDX_Control(pDX, IDC_QR_EXAMPLE, m_staQRExample);
    }
    DDX_Control(pDX, IDC_EXTERNAL_LABEL, m_staExternalLabel);
    DDX_Control(pDX, IDC_EXTERNAL_ICON, m_staExternalIcon);
    DDX_Control(pDX, IDC_WECHAT, m_staWeChat);
    DDX_Control(pDX, IDC_TIP, m_staTip);
    // The list comes last so that it is drawn over the fields it opens upon.
    DDX_Control(pDX, IDC_ACCOUNT_LIST, m_listAccount);
}

void CDlgFlashLogin::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_ENTER, &CDlgFlashLogin::OnEnter);
    PushMsgMap(WM_COMMAND, IDC_SOFTKEY_ENTER, &CDlgFlashLogin::OnEnter);
    PushMsgMap(WM_COMMAND, IDC_SOFTKEY_BACKSPACE, &CDlgFlashLogin::OnSoftKeyBackspace);
    PushMsgMap(WM_COMMAND, IDC_ACCOUNT_LIST_BUTTON, &CDlgFlashLogin::OnAccountListButton);
    PushMsgMap(WM_COMMAND, IDC_SOFTKEY_SWITCH, &CDlgFlashLogin::OnSoftKeySwitch);
    PushMsgMap(WM_COMMAND, IDC_REMEMBER, &CDlgFlashLogin::OnRemember);
    PushMsgMap(WM_COMMAND, IDC_ACCOUNT_HELP, &CDlgFlashLogin::OnAccountHelp);
    for (const SLoginPage& page : LOGIN_PAGES) {
        // The QR page's controls, unbound without the QR-login switch, get no handlers either.
        if (page.nId == IDC_PHONE_SITE && !m_bQRLogin) continue;
        const char* szKey = page.szKey;
        PushMsgMap(WM_COMMAND, page.nId, MsgHandler([this, szKey] { OnOpenLoginPage(szKey); }));
    }
    PushMsgMap(WM_COMMAND, IDC_REGISTER, &CDlgFlashLogin::OnRegister);
    PushMsgMap(WM_COMMAND, IDC_RECORD_ENTRY, &CDlgFlashLogin::OnRecordEntry);
    if (m_bQRLogin) {
        PushMsgMap(WM_COMMAND, IDC_PASSWORD_TAB, &CDlgFlashLogin::OnPasswordTab);
        PushMsgMap(WM_COMMAND, IDC_QR_TAB, &CDlgFlashLogin::OnQRTab);
        PushMsgMap(WM_COMMAND, IDC_QR_PICTURE, &CDlgFlashLogin::OnQRPicture);
        PushMsgMap(WM_COMMAND, IDC_QR_REFRESH, &CDlgFlashLogin::OnQRRefresh);
    }
    PushMsgMap(WM_COMMAND, IDC_WECHAT, &CDlgFlashLogin::OnWeChat);
    m_frame.MapHandlers();
    const std::pair<UINT, int> fields[] = {{IDC_ACCOUNT, INPUT_ACCOUNT},
                                           {IDC_PASSWORD, INPUT_PASSWORD},
                                           {IDC_PROTECT, INPUT_PROTECT},
                                           {IDC_TOKEN, INPUT_TOKEN}};
    for (const auto& entry : fields) {
        const int nField = entry.second;
        PushMsgMap(WM_COMMAND, entry.first, MsgHandler([this, nField] { OnFieldFocus(nField); }));
    }
}

void CDlgFlashLogin::PreSetParam() {
    CSimDialog::PreSetParam();
    for (CSimEdit* pEdit : {&m_editAccount, &m_editPassword, &m_editProtect, &m_editToken})
        pEdit->PreSetParam(false, 0, 0xFFFFFF, false);
    m_editAccount.EnableChinese(false);
    m_editPassword.EnableChinese(false);
    m_editPassword.SetPassword(true);

    m_listAccount.PreSetParam(1, false, false, 0, 1);
    m_listAccount.SetParentCob(this);
    m_listAccount.SetItemColors(ACCOUNT_LIST_NORMAL, ACCOUNT_LIST_HIGHLIGHT);
    int mark[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_ACCOUNT_LIST_MARK, mark);
    m_listAccount.SetMoveClose(mark[0], mark[1]);
    m_listAccount.SetChooserAni(LIST_CHOOSER, true);
    int rows[3] = {0, 0, 0};
    READ_LAYOUT_NUMBERS(STR_ACCOUNT_LIST_ROWS, rows);
    m_listAccount.SetItemLayout(rows[0], rows[1], rows[2]);
}

// ---- initialisation and frames -------------------------------------------------------------------

BOOL CDlgFlashLogin::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    m_frame.OnOpen();
    if (m_bQRLogin) {
        m_chkPasswordTab.SetChecked(true);
        m_chkQRTab.SetChecked(false);
        m_nPage = PAGE_PASSWORD;
        m_nQRStatus = QR_REQUESTED;
    }
    RefreshTexts();
    m_listAccount.ShowWindow(SW_HIDE);
    m_bAccountListOpen = false;
    m_staTip.ShowWindow(SW_HIDE);
    m_softKey.ClearHover();
    m_nPressActedOn = 0;
    m_qrLayout.bRead = false;
    if (IsOpenInactive()) m_frame.EnableNavigation(false);
    // NOTE: the password page is laid out with or without the QR-login switch, so that the WeChat row and
    // the keyboard follow their switches in both cases.
    SetLoginPage(PAGE_PASSWORD);
    return TRUE;
}

int CDlgFlashLogin::Show() {
    const int nResult = CSimDialog::Show();
    HideExpiredTip();
    if (m_staSoftKeyArea.IsWindowVisible())
        m_softKey.Draw(m_staSoftKeyArea.GetWindowRect(), IsPasswordFocused());
    DrawQRPicture();
    DrawDeleteMark();
    return nResult;
}

// ---- messages and presses ------------------------------------------------------------------------

LRESULT CDlgFlashLogin::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const UINT nId = LOWORD(wParam);
    switch (uMsg) {
    case LuGui::LU_MSG_LIST_SELECT:
        if (nId == IDC_ACCOUNT_LIST) OnAccountRowChosen(static_cast<int>(lParam));
        break;
    case LuGui::LU_MSG_LIST_DELETE:
        if (nId == IDC_ACCOUNT_LIST) OnAccountRowDeleted(static_cast<int>(lParam));
        break;
    case LuGui::LU_MSG_ACTIVATE:
        m_frame.EnableNavigation(true);
        break;
    case LuGui::LU_MSG_LOSE_FOCUS:
        m_listAccount.ShowWindow(SW_HIDE);
        m_bAccountListOpen = false;
        if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("CMD_TEXTSELECT", "");
        break;
    case WM_SOFTKEY_DOWNLOADED:
        // NOTE: a failed download leaves the picture there was.
        if (wParam != 0) m_softKey.LoadPicture();
        break;
    case WM_SHOWWINDOW:
        if (wParam == 0) m_softKey.ReleasePicture();
        break;
    case WM_MOUSEMOVE:
        if (m_staSoftKeyArea.IsWindowVisible())
            m_softKey.TrackMouse(m_staSoftKeyArea.GetWindowRect(),
                                 POINT{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        break;
    default:
        break;
    }
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

BOOL CDlgFlashLogin::PreTranslateMessage(MSG* pMsg) {
    if (pMsg && pMsg->message == WM_LBUTTONDOWN)
        OnLeftButtonDown(POINT{GET_X_LPARAM(pMsg->lParam), GET_Y_LPARAM(pMsg->lParam)});
    return CSimDialog::PreTranslateMessage(pMsg);
}

void CDlgFlashLogin::OnLeftButtonDown(POINT pt) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_nPressActedOn = 0;
    if (m_staSoftKeyArea.IsWindowVisible() && IsPasswordFocused())
        if (const auto nKey = m_softKey.KeyAt(m_staSoftKeyArea.GetWindowRect(), pt))
            pContext->NotifyHostInt("CMD_SOFTKEYDOWN", *nKey);
    if (m_listAccount.IsWindowVisible() && !Contains(m_listAccount.GetWindowRect(), pt)) {
        m_listAccount.ShowWindow(SW_HIDE);
        m_bAccountListOpen = false;
    }
    if (m_bQRLogin && IsLive(m_btnQRPicture) && Contains(m_btnQRPicture.GetWindowRect(), pt)) {
        OnQRPicture();
        m_nPressActedOn = IDC_QR_PICTURE;
    }
    if (IsLive(m_staWeChat) && Contains(m_staWeChat.GetWindowRect(), pt)) {
        OnWeChat();
        m_nPressActedOn = IDC_WECHAT;
    }
}

bool CDlgFlashLogin::TakePressAction(UINT nId) {
    if (m_nPressActedOn != nId) return false;
    m_nPressActedOn = 0;
    return true;
}

bool CDlgFlashLogin::IsPasswordFocused() const {
    return m_editPassword.IsFocus() != FALSE;
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgFlashLogin::OnEnter() {
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("CMD_ENTERGAME", "0");
}

void CDlgFlashLogin::OnSoftKeyBackspace() {
    IScreenContext* pContext = ScreenContext();
    if (pContext && IsPasswordFocused()) pContext->NotifyHost("CMD_SOFTKEYDOWN", "0");
}

void CDlgFlashLogin::OnAccountListButton() {
    if (m_listAccount.IsWindowVisible()) {
        m_listAccount.ShowWindow(SW_HIDE);
        m_bAccountListOpen = false;
        return;
    }
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_listAccount.ResetContent();
    for (int i = 0; i < pContext->GetRecAccountCount(); ++i)
        m_listAccount.AddString(pContext->GetRecAccount(i));
    m_listAccount.ShowWindow(SW_SHOW);
    m_bAccountListOpen = true;
}

void CDlgFlashLogin::OnSoftKeySwitch() {
    ShowSoftKeyboard(m_chkSoftKey.GetCheckValue());
}

void CDlgFlashLogin::OnRemember() {
    if (IScreenContext* pContext = ScreenContext()) pContext->ShowScreen(CDlgRememberAccount::IDD, true);
}

void CDlgFlashLogin::OnAccountHelp() {
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("ACCOUNT_HELP", "");
}

void CDlgFlashLogin::OnOpenLoginPage(const char* szKey) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    char szUrl[INI_READ] = {};
    MyGetPrivateProfileString(LOGIN_URL_SECTION, szKey, "", szUrl, sizeof szUrl, g_pszIniServerState);
    pContext->OpenWebAddress(szUrl);
}

void CDlgFlashLogin::OnRegister() {
    if (IScreenContext* pContext = ScreenContext())
        pContext->OpenWebAddress(pContext->GetStr(STR_REGISTER_URL));
}

void CDlgFlashLogin::OnRecordEntry() {
    RecordQuickEntry();
}

void CDlgFlashLogin::OnPasswordTab() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_nPage = PAGE_PASSWORD;
    pContext->NotifyHost("KILL_All_TIMER", "");
    m_chkPasswordTab.SetChecked(true);
    m_chkQRTab.SetChecked(false);
    SetLoginPage(PAGE_PASSWORD);
}

void CDlgFlashLogin::OnQRTab() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_chkQRTab.SetChecked(true);
    m_chkPasswordTab.SetChecked(false);
    if (m_nPage == PAGE_QR) return;
    m_nPage = PAGE_QR;
    SetLoginPage(PAGE_QR);
    pContext->NotifyHost("REQUEST_QRKey", "");
}

void CDlgFlashLogin::OnQRPicture() {
    if (TakePressAction(IDC_QR_PICTURE)) return;
    IScreenContext* pContext = ScreenContext();
    if (!pContext || m_nQRStatus != QR_EXPIRED) return;
    m_nQRStatus = QR_REQUESTED;
    pContext->NotifyHost("REQUEST_QRKey", "");
}

void CDlgFlashLogin::OnQRRefresh() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_nQRStatus = QR_REQUESTED;
    pContext->NotifyHost("REQUEST_QRKey", "");
}

void CDlgFlashLogin::OnWeChat() {
    if (TakePressAction(IDC_WECHAT)) return;
    // NOTE: the WeChat dialog picks its page when it opens.
    if (IScreenContext* pContext = ScreenContext()) pContext->ShowScreen(CDlgWeiXinLogin::IDD, true);
}

void CDlgFlashLogin::OnFieldFocus(int nField) {
    m_nFocusField = nField;
}

void CDlgFlashLogin::OnAccountRowChosen(int nRow) {
    if (!ScreenContext()) return;
    m_bAccountListOpen = false;
    accountrows::ChooseRow(m_listAccount, m_editAccount, nRow);
}

void CDlgFlashLogin::OnAccountRowDeleted(int nRow) {
    if (!ScreenContext()) return;
    m_bAccountListOpen = false;
    accountrows::DeleteRow(m_listAccount, nRow);
}

// ---- operations for the simulator ----------------------------------------------------------------

CSimEdit* CDlgFlashLogin::EditOfField(int nField) {
    switch (nField) {
    case INPUT_ACCOUNT:
        return &m_editAccount;
    case INPUT_PASSWORD:
        return &m_editPassword;
    case INPUT_PROTECT:
        return &m_editProtect;
    case INPUT_TOKEN:
        return &m_editToken;
    default:
        return nullptr;
    }
}

void CDlgFlashLogin::FocusInput(int nField) {
    CSimEdit* pEdit = EditOfField(nField);
    // NOTE: a field the layout hides (token-only, platform mode A, the QR page) takes no focus.
    if (!pEdit || !IsLive(*pEdit)) return;
    pEdit->SetFocus();
    char szText[FIELD_READ];
    const int nLength = pEdit->GetWindowText(szText, sizeof szText);
    pEdit->SetSel(nLength, nLength);
    ScreenContext()->NotifyHost("CMD_TEXTSELECT", "");
}

void CDlgFlashLogin::SetInputText(const char* szText, int nField) {
    if (!szText) return;
    CSimEdit* pEdit = EditOfField(nField);
    if (!pEdit) {
        LogMsg("ASSERT(false) in %d line of %s", __LINE__, __FILE__);
        return;
    }
    pEdit->SetWindowTextA(szText);
}

void CDlgFlashLogin::SetPicKey(const char* szName) {
    char szSite[INI_READ] = {};
    MyGetPrivateProfileString(LOGIN_URL_SECTION, SOFTKEY_SITE_KEY, "", szSite, sizeof szSite,
                              g_pszIniServerState);
    if (!szSite[0]) return;
    std::string url = std::string(szSite) + (szName ? szName : "");
    if (url.size() >= URL_LIMIT) url.resize(URL_LIMIT - 1);
    // SEAM: the image downloader starts here once it is plugged in.
    if (m_pSources) m_pSources->StartSoftKeyDownload(this, url.c_str());
}

void CDlgFlashLogin::SetSoftKeyAllowed(bool bAllowed) {
    m_bSoftKeyAllowed = bAllowed;
    if (IsWindowVisible() && m_nPage == PAGE_PASSWORD) {
        ApplySoftKeySwitch();
        ApplyAccountLayouts();
    }
}

void CDlgFlashLogin::SetQRKey(const char* szKey, int nScale) {
    // SEAM: the QR renderer draws the key once it is plugged in.
    if (m_pSources && szKey) m_pSources->RenderQRKey(szKey, nScale);
}
