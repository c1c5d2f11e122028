// The classic login's pages and layouts: the password and QR pages, the keyboard switch, the token-only and
// platform layouts, the quick entry and its tip, the texts, the QR picture and the account list's delete
// mark.
#include <initializer_list>
#include <string_view>

#include "login/DlgFlashLogin.h"
#include "login/RecordedAccountRows.h"
#include "platform/GameData.h"
#include "platform/GameGraphic.h"
#include "platform/Graphics.h"
#include "platform/Input.h"
#include "platform/LuGui.h"
#include "resources/MyString.h"
#include "screen/LayoutNumbers.h"

namespace {

constexpr std::uint32_t STR_QUICK_ENTRY_ADDED = 3110006;
constexpr std::uint32_t STR_QUICK_ENTRY_PRESENT = 3110007;
constexpr std::uint32_t STR_QR_TITLE = 4000000;
constexpr std::uint32_t STR_QR_EXPLAIN = 4000001;
constexpr std::uint32_t STR_QR_OFFSET = 4000002;
constexpr std::uint32_t STR_QR_ERROR_OFFSET = 4000003;
constexpr std::uint32_t STR_QR_SIZE = 4000009;
constexpr std::uint32_t STR_EXTERNAL_LABEL = 4000010;
constexpr std::uint32_t STR_WECHAT = 4000011;
constexpr std::uint32_t STR_TOKEN_ONLY_OFFSET = 4100009;
constexpr int INI_READ = 1024;
constexpr const char* QR_EXPIRED_ANI = "Newlogin_NoQRCodeBG";
constexpr const char* DELETE_MARK_ANI = "Login_SliceBtn";

// The four labels of the password page, by control.
struct SLabelText {
    UINT nId;
    std::uint32_t nStrId;
};
constexpr SLabelText FIELD_LABELS[] = {{CDlgFlashLogin::IDC_ACCOUNT_LABEL, 3110021},
                                       {CDlgFlashLogin::IDC_PASSWORD_LABEL, 3110022},
                                       {CDlgFlashLogin::IDC_PROTECT_LABEL, 3110023},
                                       {CDlgFlashLogin::IDC_TOKEN_LABEL, 3110024}};

std::string ServerLabel(const char* szGroup, const char* szServer) {
    return std::string(szGroup ? szGroup : "") + " -> " + (szServer ? szServer : "");
}

} // namespace

// ---- pages ---------------------------------------------------------------------------------------

void CDlgFlashLogin::SetLoginPage(int nPage) {
    const bool bPassword = nPage == PAGE_PASSWORD;
    ShowPasswordColumn(bPassword);
    if (bPassword) {
        ApplySoftKeySwitch();
    } else {
        ShowAndEnable(m_chkSoftKey, false);
        ShowSoftKeyboard(false);
    }
    m_listAccount.ShowWindow(SW_HIDE);
    m_bAccountListOpen = false;
    m_staTip.ShowWindow(SW_HIDE);
    ShowQRColumn(!bPassword);
    ShowExternalRow(bPassword && RoleDataQueryEx()->IsWeChatLoginEnabled());
    // NOTE: the layouts that hide fields hold on every page change, not only at initialisation.
    if (bPassword) ApplyAccountLayouts();
}

void CDlgFlashLogin::ShowPasswordColumn(bool bShow) {
    for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
             &m_staBackground, &m_staAccountLabel, &m_staPasswordLabel, &m_staProtectLabel, &m_staTokenLabel,
             &m_editAccount, &m_editPassword, &m_editProtect, &m_editToken, &m_btnAccountList, &m_btnRegister,
             &m_btnProtectHelp, &m_btnProtectApply, &m_btnTokenHelp, &m_btnTokenApply, &m_btnEnter,
             &m_btnRemember, &m_btnPhoneProtect, &m_btnAccountHelp})
        ShowAndEnable(*pWnd, bShow);
}

void CDlgFlashLogin::ShowQRColumn(bool bShow) {
    ShowAndEnable(m_staQRBackground, bShow);
    if (!m_bQRLogin) return;
    for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
             &m_staQRHint, &m_staQRTitle, &m_staQRExplain, &m_btnPhoneSite, &m_btnQRPicture, &m_btnQRRefresh,
             &m_staQRExample})
        ShowAndEnable(*pWnd, bShow);
}

void CDlgFlashLogin::ShowExternalRow(bool bShow) {
    for (LuGui::CLuBaseWindow* pWnd :
         std::initializer_list<LuGui::CLuBaseWindow*>{&m_staExternalLabel, &m_staExternalIcon, &m_staWeChat})
        ShowAndEnable(*pWnd, bShow);
}

void CDlgFlashLogin::ApplySoftKeySwitch() {
    ShowAndEnable(m_chkSoftKey, m_bSoftKeyAllowed);
    m_chkSoftKey.SetChecked(m_bSoftKeyAllowed);
    ShowSoftKeyboard(m_bSoftKeyAllowed);
}

void CDlgFlashLogin::ShowSoftKeyboard(bool bShow) {
    for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
             &m_staSoftKeyBg, &m_staSoftKeyArea, &m_btnSoftKeyBackspace, &m_btnSoftKeyEnter})
        pWnd->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    if (!bShow) m_softKey.ClearHover();
}

// ---- token-only and platform layouts -------------------------------------------------------------

void CDlgFlashLogin::ApplyAccountLayouts() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    ApplyTokenOnlyLayout(pContext->IsClassicTokenOnly());
    if (pContext->IsPlatformModeA())
        for (CSimEdit* pEdit : {&m_editAccount, &m_editPassword, &m_editProtect, &m_editToken})
            ShowAndEnable(*pEdit, false);
}

void CDlgFlashLogin::ApplyTokenOnlyLayout(bool bTokenOnly) {
    LuGui::CLuCtrl* row[] = {&m_staTokenLabel, &m_editToken, &m_btnTokenHelp, &m_btnTokenApply};
    if (!m_tokenRowOrigin.bKnown) {
        for (std::size_t i = 0; i < std::size(row); ++i) {
            RECT rc = row[i]->GetWindowRect();
            ScreenToClient(&rc);
            m_tokenRowOrigin.points[i] = POINT{rc.left, rc.top};
        }
        m_tokenRowOrigin.bKnown = true;
    }
    int offset[2] = {0, 0};
    if (bTokenOnly) {
        for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
                 &m_staAccountLabel, &m_staPasswordLabel, &m_editAccount, &m_editPassword, &m_btnAccountList,
                 &m_btnRegister, &m_btnRemember, &m_btnAccountHelp, &m_chkQRTab})
            pWnd->ShowWindow(SW_HIDE);
        READ_LAYOUT_NUMBERS(STR_TOKEN_ONLY_OFFSET, offset);
    } else if (m_bQRLogin) {
        m_chkQRTab.ShowWindow(SW_SHOW);
    }
    // The row moves from where the layout put it, so that opening the dialog again does not move it further.
    for (std::size_t i = 0; i < std::size(row); ++i) {
        const POINT origin = m_tokenRowOrigin.points[i];
        row[i]->MoveWindow(origin.x + offset[0], origin.y + offset[1], row[i]->GetWidth(),
                           row[i]->GetHeight(), FALSE);
    }
}

// ---- quick entry and its tip ---------------------------------------------------------------------

void CDlgFlashLogin::RecordQuickEntry() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    SQuickEntry entry;
    pContext->FillQuickEntry(entry);
    switch (pContext->AddQuickEntry(entry)) {
    case 0:
        ShowTip(STR_QUICK_ENTRY_ADDED);
        break;
    case 1:
        ShowTip(STR_QUICK_ENTRY_PRESENT);
        break;
    case 2:
        pContext->ShowScreen(IDD_QUICK_ENTRY_EDITOR, true);
        break;
    default:
        break;
    }
}

void CDlgFlashLogin::ShowTip(std::uint32_t nStrId) {
    m_staTip.SetWindowTextA(ScreenContext()->GetStr(nStrId));
    m_staTip.ShowWindow(SW_SHOW);
    m_dwTipShown = GetTickCount();
}

void CDlgFlashLogin::HideExpiredTip() {
    if (m_staTip.IsWindowVisible() && GetTickCount() - m_dwTipShown >= TIP_SHOWN_MS)
        m_staTip.ShowWindow(SW_HIDE);
}

// ---- texts ---------------------------------------------------------------------------------------

void CDlgFlashLogin::RefreshTexts() {
    IScreenContext* pContext = ScreenContext();
    m_staServerLabel.SetWindowTextA(
        ServerLabel(pContext->GetCurGroupName(), pContext->GetCurServerName()).c_str());
    for (const SLabelText& label : FIELD_LABELS)
        if (LuGui::CLuCtrl* pCtrl = GetControl(label.nId))
            pCtrl->SetWindowTextA(pContext->GetStr(label.nStrId));
    if (m_bQRLogin) {
        m_staQRExplain.SetWindowTextA(pContext->GetStr(STR_QR_EXPLAIN));
        m_staQRTitle.SetWindowTextA(pContext->GetStr(STR_QR_TITLE));
    }
    m_staExternalLabel.SetWindowTextA(pContext->GetStr(STR_EXTERNAL_LABEL));
    m_staWeChat.SetWindowTextA(pContext->GetStr(STR_WECHAT));
    const std::pair<CSimEdit*, const char*> placeholders[] = {{&m_editProtect, "zrKey"},
                                                              {&m_editToken, "zrTel"}};
    for (const auto& [pEdit, szSection] : placeholders) {
        char szTip[INI_READ] = {};
        MyGetPrivateProfileString(szSection, "normalTxt", "", szTip, sizeof szTip, g_pszIniServerState);
        pEdit->SetLostFocusTip(szTip);
    }
    char szTel[INI_READ] = {};
    MyGetPrivateProfileString("topClick", "tel", "", szTel, sizeof szTel, g_pszIniServerState);
    m_btnPhoneProtect.SetTipText(szTel);
}

std::string CDlgFlashLogin::VersionLabelText(IScreenContext& context, const char* szVersion) {
    const std::string_view format = context.GetStr(CScreenFrame::STR_VERSION_FORMAT);
    if (CMyString::IsOldFormatStr(format)) return CMyString::Format(format, szVersion ? szVersion : "");
    // printf leaves a format without conversions as it is, braces included, but for its "%%".
    std::string text;
    for (std::size_t i = 0; i < format.size(); ++i) {
        text += format[i];
        if (format[i] == '%' && i + 1 < format.size() && format[i + 1] == '%') ++i;
    }
    return text;
}

// ---- drawing -------------------------------------------------------------------------------------

void CDlgFlashLogin::ReadQRLayout() {
    if (m_qrLayout.bRead) return;
    // NOTE: read once per opening, so that a missing entry is logged once, not every frame.
    m_qrLayout = SQRLayout{};
    m_qrLayout.bRead = true;
    READ_LAYOUT_NUMBERS(STR_QR_OFFSET, m_qrLayout.offset);
    READ_LAYOUT_NUMBERS(STR_QR_SIZE, m_qrLayout.size);
    READ_LAYOUT_NUMBERS(STR_QR_ERROR_OFFSET, m_qrLayout.errorOffset);
}

void CDlgFlashLogin::DrawQRPicture() {
    if (!m_bQRLogin || !m_chkQRTab.GetCheckValue() || m_nQRStatus == QR_REQUESTED) return;
    CMyBitmap* pBitmap = GetQRBitmap();
    if (!pBitmap) return;
    ReadQRLayout();
    const RECT rc = m_btnQRPicture.GetWindowRect();
    pBitmap->Show(rc.left + m_qrLayout.offset[0], rc.top + m_qrLayout.offset[1], 0, m_qrLayout.size[0],
                  m_qrLayout.size[1]);
    if (m_nQRStatus == QR_EXPIRED)
        CGameGraphic::ShowAni(CONTROL_ANI_FILE, QR_EXPIRED_ANI, rc.left + m_qrLayout.errorOffset[0],
                              rc.top + m_qrLayout.errorOffset[1], 0);
}

void CDlgFlashLogin::DrawDeleteMark() {
    if (m_bAccountListOpen) accountrows::DrawDeleteMark(m_listAccount, DELETE_MARK_ANI);
}

void CDlgFlashLogin::ShowAndEnable(LuGui::CLuBaseWindow& wnd, bool bOn) {
    wnd.EnableWindow(bOn ? TRUE : FALSE);
    wnd.ShowWindow(bOn ? SW_SHOW : SW_HIDE);
}
