// The main login screen: controls and handlers, the two lists, the per-frame link timer and delete mark, and
// the operations the simulator calls for the host's variables.
//
// Index: constants; controls; initialisation and frames; messages; handlers; operations for the simulator;
// checked looks. The texts, the server label and the layouts are in DlgNewFlashLoginTexts.cpp.
#include "login/DlgNewFlashLogin.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "login/DlgFlashLoginEn.h"
#include "login/DlgScanCodeLoginEn.h"
#include "login/DlgWeiXinLogin.h"
#include "login/RecordedAccountRows.h"
#include "platform/GameData.h"
#include "platform/GameGraphic.h"
#include "platform/Graphics.h"
#include "platform/Input.h"
#include "platform/Log.h"
#include "platform/LuGui.h"
#include "resources/TextScan.h"
#include "screen/LayoutNumbers.h"

namespace {

constexpr std::uint32_t STR_AGREEMENT_NOT_TICKED = 8000102;
constexpr std::uint32_t STR_FORGET_URL = 8000014;
constexpr std::uint32_t STR_HELP_URL = 8000015;
constexpr std::uint32_t STR_SITE_URL = 8000016;
constexpr std::uint32_t STR_AGREEMENT_URL = 8000103;
constexpr std::uint32_t STR_PRIVACY_URL = 9000102;
constexpr std::uint32_t STR_ACCOUNT_LIST_MARK = 8000017;
constexpr std::uint32_t STR_ACCOUNT_LIST_ROWS = 8000018;
constexpr std::uint32_t STR_LANGUAGE_LIST_FONT = 8000020;
constexpr std::uint32_t STR_LANGUAGE_ICON_OFFSET = 8000021;
constexpr std::uint32_t STR_FIELD_TEXT_X = 3000186;

constexpr DWORD CREATE_LINK_WAIT_MS = 10000;
constexpr int ACCOUNT_READ = 128;
constexpr int FIELD_READ = 260;
constexpr int URL_READ = 1024;
constexpr int FIELD_FONT_FORMAT = 3;
constexpr DWORD ACCOUNT_LIST_NORMAL = 0xFFFFFF;
constexpr DWORD ACCOUNT_LIST_HIGHLIGHT = 0xFFFF0000;
constexpr DWORD LANGUAGE_LIST_NORMAL = 0xAB9160;
constexpr DWORD LANGUAGE_CURRENT_COLOUR = 0xF7ECB5;
constexpr const char* LANGUAGE_CURRENT_BG = "newlogin_xzldb";
constexpr const char* LANGUAGE_CURRENT_ICON = "newlogin_dgico";
constexpr const char* LIST_CHOOSER = "NewLogin_TipsSelectPic";
constexpr const char* LANGUAGE_LIST_BG = "newlogin_tcdb";
constexpr const char* DELETE_MARK_ANI = "NewLogin_XBtn";

} // namespace

CDlgNewFlashLogin::CDlgNewFlashLogin()
    : CSimDialog(IDD), m_dwEmptySince(GetTickCount()), m_frame(*this, {.nSound = IDC_SOUND,
                                                                       .nBack = IDC_BACK,
                                                                       .nExit = IDC_EXIT,
                                                                       .nVersion = IDC_VERSION,
                                                                       .nLogo = IDC_LOGO}) {
    m_frame.SetLockedTest(&CDlgNewFlashLogin::IsLocked);
    m_frame.SetBeforeBack([] {
        if (IScreenContext* pContext = ScreenContext()) pContext->ShowScreen(CDlgWeiXinLogin::IDD, false);
    });
}

CDlgNewFlashLogin::~CDlgNewFlashLogin() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgNewFlashLogin::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    DDX_Control(pDX, IDC_BACKGROUND, m_staBackground);
    DDX_Control(pDX, IDC_PLATE1, m_staPlate1);
    DDX_Control(pDX, IDC_PLATE2, m_staPlate2);
    DDX_Control(pDX, IDC_ACCOUNT_LABEL, m_staAccountLabel);
    DDX_Control(pDX, IDC_ACCOUNT_HINT, m_staAccountHint);
    DDX_Control(pDX, IDC_ACCOUNT, m_editAccount);
    DDX_Control(pDX, IDC_ACCOUNT_LIST_BUTTON, m_btnAccountList);
    DDX_Control(pDX, IDC_PASSWORD_LABEL, m_staPasswordLabel);
    DDX_Control(pDX, IDC_PASSWORD_HINT, m_staPasswordHint);
    DDX_Control(pDX, IDC_PASSWORD, m_editPassword);
    DDX_Control(pDX, IDC_PASSWORD_HELP, m_btnPasswordHelp);
    DDX_Control(pDX, IDC_TOKEN_LABEL, m_staTokenLabel);
    DDX_Control(pDX, IDC_TOKEN, m_editToken);
    DDX_Control(pDX, IDC_TOKEN_HELP, m_btnTokenHelp);
    DDX_Control(pDX, IDC_ENTER, m_btnEnter);
    DDX_Control(pDX, IDC_REMEMBER, m_btnRemember);
    DDX_Control(pDX, IDC_SAVE_TEXT, m_staSaveText);
    DDX_Control(pDX, IDC_SAVE_BG, m_staSaveBg);
    DDX_Control(pDX, IDC_AGREEMENT, m_btnAgreement);
    DDX_Control(pDX, IDC_AGREEMENT_BG, m_staAgreementBg);
    DDX_Control(pDX, IDC_AGREEMENT_LINK, m_btnAgreementLink);
    DDX_Control(pDX, IDC_AGREEMENT_LINE, m_staAgreementLine);
    DDX_Control(pDX, IDC_JOIN_WORD, m_staJoinWord);
    DDX_Control(pDX, IDC_PRIVACY_LINK, m_btnPrivacyLink);
    DDX_Control(pDX, IDC_PRIVACY_LINE, m_staPrivacyLine);
    DDX_Control(pDX, IDC_UPDATE_DATE, m_staUpdateDate);
    DDX_Control(pDX, IDC_CREATE_LINK, m_btnCreateLink);
    DDX_Control(pDX, IDC_CREATE_LINE, m_staCreateLine);
    DDX_Control(pDX, IDC_FORGET_LINK, m_btnForgetLink);
    DDX_Control(pDX, IDC_FORGET_LINE, m_staForgetLine);
    DDX_Control(pDX, IDC_SERVER_LABEL, m_staServerLabel);
    DDX_Control(pDX, IDC_LOAD_PICTURE, m_staLoadPicture);
    DDX_Control(pDX, IDC_SELECT_LINK, m_btnSelectLink);
    DDX_Control(pDX, IDC_SELECT_LINE, m_staSelectLine);
    DDX_Control(pDX, IDC_DESCRIPTION1, m_staDescription1);
    DDX_Control(pDX, IDC_DESCRIPTION2, m_staDescription2);
    DDX_Control(pDX, IDC_DECORATION, m_staDecoration);
    m_frame.Bind(pDX);
    DDX_Control(pDX, IDC_RELOAD, m_btnReload);
    DDX_Control(pDX, IDC_HELP_LINK, m_btnHelp);
    DDX_Control(pDX, IDC_SITE, m_btnSite);
    DDX_Control(pDX, IDC_QR_PICTURE, m_btnQrPicture);
    DDX_Control(pDX, IDC_QR_CAPTION, m_btnQrCaption);
    DDX_Control(pDX, IDC_LANGUAGE_LABEL, m_staLanguageLabel);
    DDX_Control(pDX, IDC_LANGUAGE_NAME, m_staLanguageName);
    DDX_Control(pDX, IDC_LANGUAGE_BUTTON, m_btnLanguage);
    DDX_Control(pDX, IDC_LOGIN_STATE, m_staLoginState);
    DDX_Control(pDX, IDC_PANEL_CLOSE, m_btnPanelClose);
    for (int i = 0; i < PANEL_TABS; ++i)
        DDX_Control(pDX, static_cast<int>(IDC_PANEL_TAB_FIRST) + i, m_btnPanelTab[i]);
    for (int i = 0; i < 3; ++i)
        DDX_Control(pDX, static_cast<int>(IDC_PANEL_CAPTIONS[i]), m_staPanelCaption[i]);
    DDX_Control(pDX, IDC_PANEL_DIVIDER1, m_staPanelDivider1);
    DDX_Control(pDX, IDC_PANEL_DIVIDER2, m_staPanelDivider2);
    for (int i = 0; i < PANEL_SERVERS; ++i) {
        DDX_Control(pDX, static_cast<int>(IDC_PANEL_SERVER_FIRST) + i, m_btnPanelServer[i]);
        DDX_Control(pDX, static_cast<int>(IDC_PANEL_LOAD_FIRST) + i, m_staPanelLoad[i]);
        DDX_Control(pDX, static_cast<int>(IDC_PANEL_NEW_FIRST) + i, m_staPanelNew[i]);
        DDX_Control(pDX, static_cast<int>(IDC_PANEL_SPECIAL_FIRST) + i, m_staPanelSpecial[i]);
    }
    for (UINT id = IDC_LEGEND_FIRST; id <= IDC_LEGEND_LAST; ++id)
        DDX_Control(pDX, static_cast<int>(id), m_staLegend[id - IDC_LEGEND_FIRST]);
    DDX_Control(pDX, IDC_PANEL_BG, m_staPanelBg);
    // The lists come last so that they are drawn over the fields they open upon.
    DDX_Control(pDX, IDC_ACCOUNT_LIST, m_listAccount);
    DDX_Control(pDX, IDC_LANGUAGE_LIST, m_listLanguage);
}

void CDlgNewFlashLogin::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_ENTER, &CDlgNewFlashLogin::OnEnter);
    PushMsgMap(WM_COMMAND, IDC_REMEMBER, &CDlgNewFlashLogin::OnToggleRemember);
    PushMsgMap(WM_COMMAND, IDC_AGREEMENT, &CDlgNewFlashLogin::OnToggleAgreement);
    PushMsgMap(WM_COMMAND, IDC_ACCOUNT_LIST_BUTTON, &CDlgNewFlashLogin::OnAccountListButton);
    PushMsgMap(WM_COMMAND, IDC_LANGUAGE_BUTTON, &CDlgNewFlashLogin::OnLanguageListButton);
    PushMsgMap(WM_COMMAND, IDC_QR_PICTURE, &CDlgNewFlashLogin::OnScanCode);
    PushMsgMap(WM_COMMAND, IDC_QR_CAPTION, &CDlgNewFlashLogin::OnScanCode);
    PushMsgMap(WM_COMMAND, IDC_CREATE_LINK, &CDlgNewFlashLogin::OnCreateLink);
    PushMsgMap(WM_COMMAND, IDC_FORGET_LINK, &CDlgNewFlashLogin::OnForgetPassword);
    PushMsgMap(WM_COMMAND, IDC_PASSWORD_HELP, &CDlgNewFlashLogin::OnForgetPassword);
    PushMsgMap(WM_COMMAND, IDC_TOKEN_HELP, &CDlgNewFlashLogin::OnTokenHelp);
    const std::pair<UINT, std::uint32_t> pages[] = {
        {IDC_HELP_LINK, STR_HELP_URL},           {IDC_SITE, STR_SITE_URL},
        {IDC_AGREEMENT_LINK, STR_AGREEMENT_URL}, {IDC_AGREEMENT_LINE, STR_AGREEMENT_URL},
        {IDC_PRIVACY_LINK, STR_PRIVACY_URL},     {IDC_PRIVACY_LINE, STR_PRIVACY_URL}};
    for (const auto& page : pages) {
        const std::uint32_t nUrlId = page.second;
        PushMsgMap(WM_COMMAND, page.first, MsgHandler([this, nUrlId] { OnOpenStringPage(nUrlId); }));
    }
    m_frame.MapHandlers();
    PushMsgMap(WM_COMMAND, IDC_RELOAD, &CDlgNewFlashLogin::OnReload);
    PushMsgMap(WM_COMMAND, IDC_SELECT_LINK, &CDlgNewFlashLogin::OnSelectLink);
    PushMsgMap(WM_COMMAND, IDC_PANEL_CLOSE, &CDlgNewFlashLogin::OnPanelClose);
    const std::pair<UINT, int> fields[] = {
        {IDC_ACCOUNT, INPUT_ACCOUNT}, {IDC_PASSWORD, INPUT_PASSWORD}, {IDC_TOKEN, INPUT_TOKEN}};
    for (const auto& entry : fields) {
        const int nField = entry.second;
        PushMsgMap(WM_COMMAND, entry.first, MsgHandler([this, nField] { OnFieldFocus(nField); }));
    }
    // NOTE: the inline server panel is never shown; its tabs and server buttons have nothing to do.
}

void CDlgNewFlashLogin::PreSetParam() {
    CSimDialog::PreSetParam();
    for (CSimEdit* pEdit : {&m_editAccount, &m_editPassword, &m_editToken})
        pEdit->PreSetParam(false, 0, 0xFFFFFF, false);
    m_editAccount.EnableChinese(false);
    m_editPassword.EnableChinese(false);
    m_editPassword.SetPassword(true);

    int rows[3] = {0, 0, 0};
    READ_LAYOUT_NUMBERS(STR_ACCOUNT_LIST_ROWS, rows);
    m_listAccount.PreSetParam(1, false, false, 0, 1);
    m_listAccount.SetParentCob(this);
    m_listAccount.SetItemColors(ACCOUNT_LIST_NORMAL, ACCOUNT_LIST_HIGHLIGHT);
    int mark[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_ACCOUNT_LIST_MARK, mark);
    m_listAccount.SetMoveClose(mark[0], mark[1]);
    m_listAccount.SetChooserAni(LIST_CHOOSER, true);
    m_listAccount.SetItemLayout(rows[0], rows[1], rows[2]);

    m_listLanguage.PreSetParam(1, false, false, 0, 1);
    m_listLanguage.SetParentCob(this);
    m_listLanguage.SetBackGroundAni(LANGUAGE_LIST_BG);
    m_listLanguage.SetItemColors(LANGUAGE_LIST_NORMAL, ACCOUNT_LIST_HIGHLIGHT);
    m_listLanguage.SetChooserAni(LIST_CHOOSER, false);
    int font[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_LANGUAGE_LIST_FONT, font);
    m_listLanguage.SetItemLayout(font[0], font[1], rows[2]);
}

// ---- initialisation and frames -------------------------------------------------------------------

BOOL CDlgNewFlashLogin::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    int textX[1] = {0};
    READ_LAYOUT_NUMBERS(STR_FIELD_TEXT_X, textX);
    for (CSimEdit* pEdit : {&m_editAccount, &m_editPassword, &m_editToken}) {
        pEdit->SetFontFormat(FIELD_FONT_FORMAT);
        pEdit->SetTextOffset(textX[0], 0);
    }
    m_frame.OnOpen();
    RefreshTexts();
    // NOTE: filling the inline panel for the last group only stores that group in the simulator;
    // the panel itself stays hidden.
    pContext->StoreCurGroup(ZeroBased(m_nLastGroup));
    m_listAccount.ShowWindow(SW_HIDE);
    m_bAccountListOpen = false;
    if (IsOpenInactive()) {
        m_frame.EnableNavigation(false);
    }
    for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
             &m_btnPanelClose, &m_staPanelDivider1, &m_staPanelDivider2, &m_staPanelBg})
        pWnd->ShowWindow(SW_HIDE);
    for (auto& w : m_btnPanelTab) w.ShowWindow(SW_HIDE);
    for (auto& w : m_staPanelCaption) w.ShowWindow(SW_HIDE);
    for (int i = 0; i < PANEL_SERVERS; ++i)
        for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
                 &m_btnPanelServer[i], &m_staPanelLoad[i], &m_staPanelNew[i], &m_staPanelSpecial[i]})
            pWnd->ShowWindow(SW_HIDE);
    for (auto& w : m_staLegend) w.ShowWindow(SW_HIDE);
    pContext->NotifyHost("BURYING_POINT", "112");
    if (IsPlatformModeActive()) ApplyPlatformLayout();
    for (LuGui::CLuBaseWindow* pWnd :
         std::initializer_list<LuGui::CLuBaseWindow*>{&m_staSaveText, &m_staSaveBg, &m_btnRemember})
        ShowAndEnable(*pWnd, false);
    m_listLanguage.ShowWindow(SW_HIDE);
    m_bLanguageListOpen = false;
    m_dwEmptySince = GetTickCount();
    ShowTokenRow(pContext->IsTokenEnabled());
    ShowAndEnable(m_staLoginState, false);
    pContext->SetVariable("ReSetMainPath", "0-0-0");
    return TRUE;
}

int CDlgNewFlashLogin::Show() {
    const int nResult = CSimDialog::Show();
    UpdateCreateLinkTimer();
    ShowDeleteMark();
    return nResult;
}

void CDlgNewFlashLogin::UpdateCreateLinkTimer() {
    char szAccount[ACCOUNT_READ];
    m_editAccount.GetWindowText(szAccount, sizeof szAccount);
    if (m_bCreateLinkWait && GetTickCount() - m_dwEmptySince >= CREATE_LINK_WAIT_MS &&
        !IsPlatformModeActive() && !szAccount[0]) {
        m_bCreateLinkWait = false;
        ShowAndEnable(m_btnCreateLink, true);
        ShowAndEnable(m_staCreateLine, true);
    }
    m_editAccount.GetWindowText(szAccount, sizeof szAccount);
    if (!szAccount[0]) return;
    m_bCreateLinkWait = true;
    m_dwEmptySince = GetTickCount();
    ShowAndEnable(m_btnCreateLink, false);
    ShowAndEnable(m_staCreateLine, false);
}

void CDlgNewFlashLogin::ShowDeleteMark() {
    if (m_bAccountListOpen) accountrows::DrawDeleteMark(m_listAccount, DELETE_MARK_ANI);
}

void CDlgNewFlashLogin::Reset() {
    CSimDialog::Reset();
    RefreshTexts();
    // NOTE: after a language change the toolkit's layout holds the new language's values.
    m_btnReload.ReloadLayout();
    for (LuGui::CLuBaseWindow* pWnd : std::array<LuGui::CLuBaseWindow*, 5>{
             &m_btnLanguage, &m_btnSelectLink, &m_btnAccountList, &m_btnPasswordHelp, &m_btnTokenHelp})
        pWnd->PreInitData_Tip();
}

// ---- messages ------------------------------------------------------------------------------------

LRESULT CDlgNewFlashLogin::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const UINT nId = LOWORD(wParam);
    if (uMsg == LuGui::LU_MSG_LIST_SELECT && nId == IDC_ACCOUNT_LIST)
        OnAccountRowChosen(static_cast<int>(lParam));
    if (uMsg == LuGui::LU_MSG_LIST_DELETE && nId == IDC_ACCOUNT_LIST)
        OnAccountRowDeleted(static_cast<int>(lParam));
    if (uMsg == LuGui::LU_MSG_LIST_SELECT && nId == IDC_LANGUAGE_LIST)
        OnLanguageRowChosen(static_cast<int>(lParam));
    if (uMsg == LuGui::LU_MSG_LIST_DELETE && nId == IDC_LANGUAGE_LIST) {
        m_listLanguage.ShowWindow(SW_HIDE);
        m_bLanguageListOpen = false;
    }
    if (uMsg == LuGui::LU_MSG_ACTIVATE) {
        const bool bPlatform = IsPlatformModeActive();
        m_frame.GetBackButton().EnableWindow(bPlatform ? FALSE : TRUE);
        m_frame.GetBackButton().ShowWindow(bPlatform ? SW_HIDE : SW_SHOW);
        m_frame.GetExitButton().EnableWindow(TRUE);
    }
    if (uMsg == LuGui::LU_MSG_LOSE_FOCUS) {
        HideOpenLists();
        if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("CMD_TEXTSELECT", "");
    }
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

BOOL CDlgNewFlashLogin::PreTranslateMessage(MSG* pMsg) {
    if (pMsg && pMsg->message == WM_LBUTTONDOWN) {
        POINT pt{GET_X_LPARAM(pMsg->lParam), GET_Y_LPARAM(pMsg->lParam)};
        ScreenToClient(&pt);
        auto contains = [&pt, this](const LuGui::CLuBaseWindow& wnd) {
            RECT rc = wnd.GetWindowRect();
            ScreenToClient(&rc);
            return pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
        };
        if (m_listAccount.IsWindowVisible() && !contains(m_listAccount)) {
            m_listAccount.ShowWindow(SW_HIDE);
            m_bAccountListOpen = false;
        }
        // NOTE: the language button's rectangle is compared in the same client coordinates as the lists.
        if (m_listLanguage.IsWindowVisible() && !contains(m_listLanguage) && !contains(m_btnLanguage)) {
            m_listLanguage.ShowWindow(SW_HIDE);
            m_bLanguageListOpen = false;
        }
    }
    return CSimDialog::PreTranslateMessage(pMsg);
}

void CDlgNewFlashLogin::HideOpenLists() {
    if (m_listAccount.IsWindowVisible()) m_listAccount.ShowWindow(SW_HIDE);
    if (m_listLanguage.IsWindowVisible()) m_listLanguage.ShowWindow(SW_HIDE);
    m_bAccountListOpen = false;
    m_bLanguageListOpen = false;
}

// ---- handlers ------------------------------------------------------------------------------------

bool CDlgNewFlashLogin::IsLocked() {
    const IScreenContext* pContext = ScreenContext();
    return !pContext || pContext->IsRegisterOpen();
}

bool CDlgNewFlashLogin::IsPlatformModeActive() {
    IScreenContext* pContext = ScreenContext();
    return pContext && (pContext->IsPlatformModeA() || pContext->IsPlatformModeB());
}

bool CDlgNewFlashLogin::EnsureAgreement() {
    IScreenContext* pContext = ScreenContext();
    if (IsAgreementChecked()) return true;
    pContext->SetVariable("SetLoginError", pContext->GetStr(STR_AGREEMENT_NOT_TICKED));
    return false;
}

void CDlgNewFlashLogin::OnEnter() {
    Login(true);
}

void CDlgNewFlashLogin::Login(bool bFromButton) {
    if (IsLocked()) return;
    IScreenContext* pContext = ScreenContext();
    if (!pContext->IsPlatformModeA()) {
        if (!EnsureAgreement()) return;
        if (RoleDataQueryEn()->GetSetting("Check", 0) != 1) RoleDataQueryEn()->SetSetting("Check", 1);
    }
    // NOTE: the button sends the record command once more than the host's Enter key does.
    if (bFromButton) pContext->NotifyHost("CMD_RECORDACCOUNT", "");
    pContext->NotifyHost(IsRememberChecked() ? "CMD_RECORDACCOUNT" : "CMD_CLEARACCOUNT", "");
    CommitGroupSelection();
    pContext->NotifyHost("BURYING_POINT", "115");
    pContext->NotifyHost("CMD_ENTERGAME", "0");
}

void CDlgNewFlashLogin::CommitGroupSelection() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    // SetGroup stores the group and sends CMD_SELECTGROUP with its number.
    if (m_nChosenGroup != pContext->GetCurGroup() && m_nChosenGroup < pContext->GetGroupCount() &&
        m_nChosenGroup < 3)
        pContext->SetGroup(m_nChosenGroup);
}

void CDlgNewFlashLogin::OnToggleRemember() {
    if (IsLocked()) return;
    SetChecked(m_btnRemember, !IsRememberChecked());
}

void CDlgNewFlashLogin::OnToggleAgreement() {
    if (IsLocked()) return;
    const bool bChecked = !IsAgreementChecked();
    SetChecked(m_btnAgreement, bChecked);
    UpdateAgreementRow(bChecked ? AGREEMENT_CHECKED_COLOUR : AGREEMENT_UNCHECKED_COLOUR);
}

void CDlgNewFlashLogin::OnAccountListButton() {
    if (IsLocked()) return;
    if (m_listAccount.IsWindowVisible()) {
        m_listAccount.ShowWindow(SW_HIDE);
        m_bAccountListOpen = false;
        return;
    }
    IScreenContext* pContext = ScreenContext();
    m_listAccount.ResetContent();
    for (int i = 0; i < pContext->GetRecAccountCount(); ++i)
        m_listAccount.AddString(pContext->GetRecAccount(i));
    m_listAccount.ShowWindow(SW_SHOW);
    m_bAccountListOpen = true;
}

void CDlgNewFlashLogin::OnAccountRowChosen(int nRow) {
    if (!ScreenContext()) return;
    m_bAccountListOpen = false;
    const std::string account = accountrows::ChooseRow(m_listAccount, m_editAccount, nRow);
    SetChecked(m_btnRemember, !account.empty());
}

void CDlgNewFlashLogin::OnAccountRowDeleted(int nRow) {
    if (!ScreenContext()) return;
    m_bAccountListOpen = false;
    accountrows::DeleteRow(m_listAccount, nRow);
}

void CDlgNewFlashLogin::OnLanguageListButton() {
    if (m_listLanguage.IsWindowVisible()) {
        m_listLanguage.ShowWindow(SW_HIDE);
        m_bLanguageListOpen = false;
        return;
    }
    FillLanguageList();
    m_listLanguage.ShowWindow(SW_SHOW);
    m_bLanguageListOpen = true;
}

void CDlgNewFlashLogin::FillLanguageList() {
    m_listLanguage.ResetContent();
    for (const SLanguageInfo& info : g_objMultiLang.Infos()) m_listLanguage.AddString(info.strName.c_str());
    const int nCurrent = g_objMultiLang.GetCurIndex();
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_LANGUAGE_ICON_OFFSET, offset);
    m_listLanguage.SetItemStyle(nCurrent, LANGUAGE_CURRENT_COLOUR, LANGUAGE_CURRENT_BG, LANGUAGE_CURRENT_ICON,
                                POINT{offset[0], offset[1]});
    m_listLanguage.SetCurSel(nCurrent);
}

void CDlgNewFlashLogin::OnLanguageRowChosen(int nRow) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_bLanguageListOpen = false;
    m_listLanguage.ShowWindow(SW_HIDE);
    m_staLanguageName.SetWindowTextA(m_listLanguage.GetText(nRow));
    if (nRow == g_objMultiLang.GetCurIndex()) return;
    g_objMultiLang.SetInfo(g_objMultiLang.GetInfo(nRow));
    m_listLanguage.ResetContent();
    pContext->ReloadStrings();
    Reset();
    pContext->ShowSwitchLanguage();
    pContext->NotifyHost("CMD_SWITCH_LANGUAGE", "0");
}

void CDlgNewFlashLogin::OnScanCode() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    if (!IsPlatformModeActive() && !EnsureAgreement()) return;
    pContext->ShowScreen(CDlgScanCodeLoginEn::IDD, true);
}

void CDlgNewFlashLogin::OnForgetPassword() {
    if (IsLocked()) return;
    IScreenContext* pContext = ScreenContext();
    ShellExecuteA(nullptr, nullptr, pContext->GetStr(STR_FORGET_URL), nullptr, nullptr, SW_SHOW);
    pContext->NotifyHost("BURYING_POINT", "118");
}

void CDlgNewFlashLogin::OnTokenHelp() {
    if (IsLocked()) return;
    char szUrl[URL_READ] = {};
    MyGetPrivateProfileString("loginUrl", "tokenQuestion", "", szUrl, sizeof szUrl, g_pszIniServerState);
    if (szUrl[0]) ShellExecuteA(nullptr, nullptr, szUrl, nullptr, nullptr, SW_SHOW);
}

void CDlgNewFlashLogin::OnOpenStringPage(std::uint32_t nUrlId) {
    if (IsLocked()) return;
    ShellExecuteA(nullptr, nullptr, ScreenContext()->GetStr(nUrlId), nullptr, nullptr, SW_SHOW);
}

void CDlgNewFlashLogin::OnReload() {
    if (IScreenContext* pContext = ScreenContext()) pContext->ReloadStrings();
}

void CDlgNewFlashLogin::OnSelectLink() {
    if (IsLocked()) return;
    if (IScreenContext* pContext = ScreenContext()) pContext->ShowScreen(CDlgFlashLoginEn::IDD, true);
}

void CDlgNewFlashLogin::OnPanelClose() {
    if (IsLocked()) return;
    m_staPanelBg.ShowWindow(SW_HIDE);
}

void CDlgNewFlashLogin::OnFieldFocus(int nField) {
    m_nFocusField = nField;
}

// ---- operations for the simulator ----------------------------------------------------------------

CSimEdit* CDlgNewFlashLogin::EditOfField(int nField, bool bAllowAccountFields) {
    if (nField == INPUT_ACCOUNT && bAllowAccountFields) return &m_editAccount;
    if (nField == INPUT_PASSWORD && bAllowAccountFields) return &m_editPassword;
    if (nField == INPUT_TOKEN) return &m_editToken;
    return nullptr;
}

void CDlgNewFlashLogin::SetInputText(const char* szText, int nField) {
    if (!szText || nField < 0) return;
    switch (nField) {
    case INPUT_ACCOUNT:
        m_editAccount.SetWindowTextA(szText);
        SetChecked(m_btnRemember, true);
        return;
    case INPUT_PASSWORD:
        m_editPassword.SetWindowTextA(szText);
        return;
    case INPUT_TOKEN:
        m_editToken.SetWindowTextA(szText);
        return;
    default:
        LogMsg("ASSERT(false) in %d line of %s", __LINE__, __FILE__);
    }
}

void CDlgNewFlashLogin::FocusInput(int nField) {
    CSimEdit* pEdit = EditOfField(nField, !IsPlatformModeActive());
    if (!pEdit) return;
    pEdit->SetFocus();
    char szText[FIELD_READ];
    const int nLength = pEdit->GetWindowText(szText, sizeof szText);
    pEdit->SetSel(nLength, nLength);
    ScreenContext()->NotifyHost("CMD_TEXTSELECT", "");
}

void CDlgNewFlashLogin::SetSelectionEdge(bool bEnd, int nValue) {
    if (!bEnd) {
        m_nSelStart = nValue;
        DebugMsg("Get Setting Start = %d", nValue);
        return;
    }
    m_nSelEnd = nValue;
    DebugMsg("Get Setting End = %d", nValue);
    if (m_nFocusField != INPUT_ACCOUNT && m_nFocusField != INPUT_PASSWORD && m_nFocusField != INPUT_TOKEN) {
        LogMsg("ASSERT(false) in %d line of %s", __LINE__, __FILE__);
        return;
    }
    if (CSimEdit* pEdit = EditOfField(m_nFocusField, !IsPlatformModeActive()))
        pEdit->SetSel(m_nSelStart, m_nSelEnd);
}

int CDlgNewFlashLogin::GetSelectionEdge(bool bEnd) {
    if (bEnd) return m_nSelEnd;
    if (CSimEdit* pEdit = EditOfField(m_nFocusField, !IsPlatformModeActive())) {
        const DWORD dwSel = pEdit->GetSel();
        m_nSelStart = LOWORD(dwSel);
        m_nSelEnd = HIWORD(dwSel);
    }
    return m_nSelStart;
}

void CDlgNewFlashLogin::ShowTokenRow(bool bShow) {
    for (LuGui::CLuBaseWindow* pWnd :
         std::initializer_list<LuGui::CLuBaseWindow*>{&m_editToken, &m_btnTokenHelp, &m_staTokenLabel})
        pWnd->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
}

void CDlgNewFlashLogin::OnBackToLogin(bool bFirst) {
    if (!bFirst || RoleDataQueryEn()->GetSetting("Register", 0) != 0 || IsPlatformModeActive()) return;
    OpenRegisterPage(false);
    RoleDataQueryEn()->SetSetting("Register", 1);
}

// ---- checked looks -------------------------------------------------------------------------------

bool CDlgNewFlashLogin::IsAgreementChecked() const {
    return std::strcmp(m_btnAgreement.GetBackGroundAni(), CHECKED_LOOK) == 0;
}

bool CDlgNewFlashLogin::IsRememberChecked() const {
    return std::strcmp(m_btnRemember.GetBackGroundAni(), CHECKED_LOOK) == 0;
}

void CDlgNewFlashLogin::SetChecked(CSimButton& button, bool bChecked) {
    button.SetBackGroundAni(bChecked ? CHECKED_LOOK : "");
}

void CDlgNewFlashLogin::ShowAndEnable(LuGui::CLuBaseWindow& wnd, bool bOn) {
    wnd.EnableWindow(bOn ? TRUE : FALSE);
    wnd.ShowWindow(bOn ? SW_SHOW : SW_HIDE);
}
