// The main login screen's texts and placements: the text refresh, the last server and the server label with
// its load picture, the agreement row, the platform-mode layout and the account-creation page.
#include <cstring>
#include <string>
#include <vector>

#include "login/DlgNewFlashLogin.h"
#include "platform/GameData.h"
#include "resources/MyString.h"
#include "resources/TextScan.h"
#include "screen/LayoutNumbers.h"

namespace {

constexpr std::uint32_t STR_DEFAULT_LAST_SERVER = 8000060;
constexpr std::uint32_t STR_LOAD_PICTURE_X = 3000187;
constexpr std::uint32_t STR_SELECT_LINK_X = 3000190;
constexpr std::uint32_t STR_ACCOUNT_TIP_OFFSET = 3000192;
constexpr std::uint32_t STR_PASSWORD_TIP_OFFSET = 3000193;
constexpr std::uint32_t STR_TOKEN_TIP_OFFSET = 8000019;
constexpr std::uint32_t STR_RES_REGISTER_URL = 6124050;
constexpr std::uint32_t STR_RES_EMBEDDED_BROWSER = 3001192;
constexpr int WEB_REGISTER_KIND = 7;
constexpr int WEB_REGISTER_LAYOUT = 1000;
constexpr int LAST_LOGIN_READ = 255;
constexpr std::size_t NAME_LIMIT = 255;
constexpr int INI_READ = 1024;
constexpr int URL_LIMIT = 256;
constexpr int PATH_LIMIT = 512;
constexpr const char* BROWSER_FOLDER = "\\Chrome";

// Texts of the labels and links, by control.
struct SControlText {
    UINT nId;
    std::uint32_t nStrId;
};
constexpr SControlText CONTROL_TEXTS[] = {{CDlgNewFlashLogin::IDC_ACCOUNT_LABEL, 3110021},
                                          {CDlgNewFlashLogin::IDC_ACCOUNT_HINT, 7100000},
                                          {CDlgNewFlashLogin::IDC_PASSWORD_LABEL, 3110022},
                                          {CDlgNewFlashLogin::IDC_PASSWORD_HINT, 7100001},
                                          {CDlgNewFlashLogin::IDC_TOKEN_LABEL, 3110024},
                                          {CDlgNewFlashLogin::IDC_SAVE_TEXT, 8000011},
                                          {CDlgNewFlashLogin::IDC_AGREEMENT_LINK, 8000100},
                                          {CDlgNewFlashLogin::IDC_AGREEMENT_LINE, 8000101},
                                          {CDlgNewFlashLogin::IDC_JOIN_WORD, 9000108},
                                          {CDlgNewFlashLogin::IDC_PRIVACY_LINK, 9000100},
                                          {CDlgNewFlashLogin::IDC_PRIVACY_LINE, 9000101},
                                          {CDlgNewFlashLogin::IDC_CREATE_LINK, 8000004},
                                          {CDlgNewFlashLogin::IDC_CREATE_LINE, 8000009},
                                          {CDlgNewFlashLogin::IDC_FORGET_LINK, 8000012},
                                          {CDlgNewFlashLogin::IDC_FORGET_LINE, 8000013},
                                          {CDlgNewFlashLogin::IDC_SELECT_LINK, 8000003},
                                          {CDlgNewFlashLogin::IDC_SELECT_LINE, 8000010},
                                          {CDlgNewFlashLogin::IDC_DESCRIPTION1, 8000110},
                                          {CDlgNewFlashLogin::IDC_DESCRIPTION2, 8000111},
                                          {CDlgNewFlashLogin::IDC_LANGUAGE_LABEL, 9000115},
                                          {CDlgNewFlashLogin::IDC_PANEL_CAPTIONS[0], 8000109},
                                          {CDlgNewFlashLogin::IDC_PANEL_CAPTIONS[1], 8000106},
                                          {CDlgNewFlashLogin::IDC_PANEL_CAPTIONS[2], 8000107},
                                          {1138, 8000005},
                                          {1140, 8000006},
                                          {1142, 8000007},
                                          {1144, 8000008}};

// Load pictures of the server label, by the displayed-load level (maintenance apart).
constexpr const char* LOAD_PICTURE_FULL = "NewLogin_serfullPic";
constexpr const char* LOAD_PICTURE_MEDIUM = "NewLogin_serMediumPic";
constexpr const char* LOAD_PICTURE_LOW = "NewLogin_serlowPic";
constexpr const char* LOAD_PICTURE_MAINTENANCE = "NewLogin_serMaintenancePic";

// The agreement row's elements: text control, its underline (0: none), the string of its place and width,
// and the string of its font size (0: none).
struct SAgreementElement {
    UINT nId;
    UINT nLineId;
    std::uint32_t nPlaceId;
    std::uint32_t nFontId;
};
constexpr SAgreementElement AGREEMENT_ROW[] = {
    {CDlgNewFlashLogin::IDC_AGREEMENT_LINK, CDlgNewFlashLogin::IDC_AGREEMENT_LINE, 9000104, 0},
    {CDlgNewFlashLogin::IDC_JOIN_WORD, 0, 9000107, 9000109},
    {CDlgNewFlashLogin::IDC_PRIVACY_LINK, CDlgNewFlashLogin::IDC_PRIVACY_LINE, 9000105, 0},
    {CDlgNewFlashLogin::IDC_UPDATE_DATE, 0, 9000106, 9000110}};
constexpr std::uint32_t STR_UPDATE_DATE_FORMAT = 9000103;

// Where each element of the agreement row stood at the first layout: kept for the life of the process.
struct SFirstPlace {
    bool bKnown = false;
    POINT pt{0, 0};
};
SFirstPlace g_firstPlaces[std::size(AGREEMENT_ROW)];

std::string Label(const char* szGroup, const char* szServer) {
    return std::string(szGroup ? szGroup : "") + " -> " + (szServer ? szServer : "");
}

// "%d_%d_%d_%s": three numbers and the rest of the record; false when the numbers are not all there.
bool ParseLastLogin(std::string_view record, int& nModel, int& nGroup, int& nServer, std::string& strRest) {
    const auto numbers = textscan::ReadIntsSeparated(record, '_', 3);
    if (numbers.size() != 3) return false;
    nModel = numbers[0];
    nGroup = numbers[1];
    nServer = numbers[2];
    std::size_t nUnderscores = 0, pos = 0;
    while (nUnderscores < 3 && (pos = record.find('_', pos)) != std::string_view::npos) {
        ++nUnderscores;
        ++pos;
    }
    strRest = nUnderscores == 3 ? std::string(record.substr(pos, 256)) : std::string();
    // NOTE: "%s" stops at the first blank.
    strRest = strRest.substr(0, strRest.find_first_of(" \t"));
    return true;
}

} // namespace

// ---- texts -----------------------------------------------------------------------------------------

void CDlgNewFlashLogin::RefreshTexts() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_staDescription1.SetWindowTextA(pContext->GetStr(8000110));
    m_staDescription2.SetWindowTextA(pContext->GetStr(8000111));
    int nModel = 0;
    int nGroup = m_nLastGroup, nServer = m_nLastServer;
    RestoreLastServer(nModel, nGroup, nServer);
    m_nLastGroup = nGroup;
    m_nLastServer = nServer;
    SetChecked(m_btnAgreement, RoleDataQueryEn()->GetSetting("Check", 0) == 1);
    UpdateAgreementRow(IsAgreementChecked() ? AGREEMENT_CHECKED_COLOUR : AGREEMENT_UNCHECKED_COLOUR);
    RefreshEmbeddedBrowserSwitch();
    PlaceLoadPicture(pContext->GetServerLoad(pContext->GetCurServer()), true);
    for (const SControlText& text : CONTROL_TEXTS)
        if (LuGui::CLuCtrl* pCtrl = GetControl(text.nId))
            pCtrl->SetWindowTextA(pContext->GetStr(text.nStrId));
    for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
             &m_staAccountHint, &m_staPasswordHint, &m_btnCreateLink, &m_staCreateLine, &m_staLanguageLabel,
             &m_staLanguageName})
        ShowAndEnable(*pWnd, false);
    const bool bForget = m_bShowForgetPwd && !IsPlatformModeActive();
    ShowAndEnable(m_btnForgetLink, bForget);
    ShowAndEnable(m_staForgetLine, bForget);
    if (bForget) m_bShowForgetPwd = false;

    const std::pair<CSimEdit*, std::pair<const char*, std::uint32_t>> tips[] = {
        {&m_editAccount, {"zrAccount", STR_ACCOUNT_TIP_OFFSET}},
        {&m_editPassword, {"zrPassword", STR_PASSWORD_TIP_OFFSET}},
        {&m_editToken, {"zrTel", STR_TOKEN_TIP_OFFSET}}};
    for (const auto& [pEdit, source] : tips) {
        char szTip[INI_READ] = {};
        MyGetPrivateProfileString(source.first, "normalTxt", "", szTip, sizeof szTip, g_pszIniServerState);
        pEdit->SetLostFocusTip(szTip);
        int offset[2] = {0, 0};
        READ_LAYOUT_NUMBERS(source.second, offset);
        pEdit->SetLostFocusTipOffset(offset[0], offset[1]);
    }
}

void CDlgNewFlashLogin::RefreshEmbeddedBrowserSwitch() {
    RoleDataQueryEx()->SetEmbeddedBrowser(SafeAtoi(RoleDataQueryEx()->GetStrRes(STR_RES_EMBEDDED_BROWSER)) ==
                                          1);
}

// ---- last server and server label ------------------------------------------------------------------

void CDlgNewFlashLogin::RestoreLastServer(int& nModel, int& nGroup, int& nServer) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    char szRecord[LAST_LOGIN_READ] = {};
    MyGetPrivateProfileString("LastLogin", "Record", "", szRecord, sizeof szRecord, g_pszIniGameSetup);
    std::string strGroupName, strServerName, strRest;
    int nRecModel = 0, nRecGroup = 0, nRecServer = 0;
    bool bFound = false;
    if (ParseLastLogin(szRecord, nRecModel, nRecGroup, nRecServer, strRest)) {
        nModel = nRecModel;
        std::vector<CZrString> pieces;
        Split(pieces, strRest.c_str(), "$", 65001);
        if (pieces.size() == 2) {
            nGroup = nRecGroup;
            nServer = nRecServer;
            strGroupName = std::string(pieces[0].c_str()).substr(0, NAME_LIMIT);
            strServerName = std::string(pieces[1].c_str()).substr(0, NAME_LIMIT);
            bFound = true;
        }
    }
    if (!bFound) {
        // "%d %d %s %s" of the string table's default.
        const std::string def = pContext->GetStr(STR_DEFAULT_LAST_SERVER);
        const auto numbers = textscan::ReadInts(def, 2);
        if (numbers.size() == 2 && numbers[0] >= 1 && numbers[1] >= 1) {
            std::size_t pos = 0;
            textscan::ReadInt(def, pos);
            textscan::ReadInt(def, pos);
            std::string names[2];
            for (std::string& name : names) {
                pos = def.find_first_not_of(" \t", pos);
                if (pos == std::string::npos) break;
                const std::size_t end = std::min(def.find_first_of(" \t", pos), def.size());
                name = def.substr(pos, end - pos).substr(0, NAME_LIMIT);
                pos = end;
            }
            nGroup = numbers[0];
            nServer = numbers[1];
            strGroupName = names[0];
            strServerName = names[1];
            bFound = true;
        }
    }
    if (!bFound) {
        for (int g = 0; g < 3 && !bFound; ++g)
            for (int s = 0; s < 10 && !bFound; ++s) {
                const char* szName = pContext->GetServerName(g, s);
                if (!szName || !RoleDataQueryEx()->IsNewServer(szName)) continue;
                nGroup = g + 1;
                nServer = s + 1;
                strGroupName = pContext->GetGroupName(g) ? pContext->GetGroupName(g) : "";
                strServerName = szName;
                bFound = true;
            }
        if (!bFound) {
            nGroup = 1;
            nServer = 1;
            if (pContext->GetGroupName(0) && pContext->GetServerName(0, 0)) {
                strGroupName = pContext->GetGroupName(0);
                strServerName = pContext->GetServerName(0, 0);
            }
        }
    }
    if (!strGroupName.empty() && !strServerName.empty()) {
        m_staServerLabel.SetWindowTextA(Label(strGroupName.c_str(), strServerName.c_str()).c_str());
        m_nChosenGroup = ZeroBased(nGroup);
        pContext->NotifyHostInt("CMD_SELECTGROUP", nGroup);
        pContext->NotifyHostInt("CMD_EX_SELECTSERVER", nServer);
        return;
    }
    m_staServerLabel.SetWindowTextA(Label(pContext->GetCurGroupName(), pContext->GetCurServerName()).c_str());
    m_nChosenGroup = pContext->GetCurGroup();
    nGroup = OneBased(pContext->GetCurGroup());
    nServer = OneBased(pContext->GetCurServer());
}

void CDlgNewFlashLogin::UpdateServerLabel() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_nChosenGroup = pContext->GetCurGroup();
    m_staServerLabel.SetWindowTextA(Label(pContext->GetCurGroupName(), pContext->GetCurServerName()).c_str());
    PlaceLoadPicture(pContext->GetServerLoad(pContext->GetCurServer()), false);
    pContext->NotifyHostIndex("CMD_SELECTGROUP", pContext->GetCurGroup());
    pContext->NotifyHostIndex("CMD_SELECTSERVER", pContext->GetCurServer());
}

void CDlgNewFlashLogin::ShowChosenServer(int nGroup, int nServer) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    m_nChosenGroup = nGroup;
    const char* szGroup = pContext->GetGroupName(nGroup);
    const char* szServer = pContext->GetServerName(nGroup, nServer);
    m_staServerLabel.SetWindowTextA(Label(szGroup ? szGroup : "", szServer ? szServer : "").c_str());
    PlaceLoadPicture(pContext->GetServerLoadOf(nGroup, nServer), false);
}

void CDlgNewFlashLogin::PlaceLoadPicture(float fLoad, bool bWithBonus) {
    // The bonus table and thresholds are the server dialog's, with this screen's own pictures.
    float f = fLoad;
    if (bWithBonus && f >= 0.000001f) {
        if (f < 50.0f)
            f += 20.0f;
        else if (f < 60.0f)
            f += 15.0f;
        else if (f < 70.0f)
            f += 10.0f;
        else if (f < 80.0f)
            f += 5.0f;
    }
    if (f > 100.0f) f = 100.0f;
    const char* szPicture = f >= 75.0f   ? LOAD_PICTURE_FULL
                            : f >= 50.0f ? LOAD_PICTURE_MEDIUM
                            : f >= 0.0f  ? LOAD_PICTURE_LOW
                                         : LOAD_PICTURE_MAINTENANCE;
    m_staLoadPicture.SetBackGroundAni(szPicture);

    const POINT origin = m_staServerLabel.GetOrigin();
    int pictureX[1] = {0};
    READ_LAYOUT_NUMBERS(STR_LOAD_PICTURE_X, pictureX);
    const POINT picture = m_staLoadPicture.GetOrigin();
    m_staLoadPicture.MoveWindow(origin.x + pictureX[0], picture.y, m_staLoadPicture.GetWidth(),
                                m_staLoadPicture.GetHeight(), TRUE);
    int link[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_SELECT_LINK_X, link);
    const int nLength = static_cast<int>(std::strlen(m_staServerLabel.GetWindowTextA()));
    const int x = origin.x + link[0] + nLength * link[1];
    for (LuGui::CLuCtrl* pCtrl : std::initializer_list<LuGui::CLuCtrl*>{&m_btnSelectLink, &m_staSelectLine}) {
        RECT rc = pCtrl->GetWindowRect();
        ScreenToClient(&rc);
        pCtrl->MoveWindow(x, rc.top, rc.right - rc.left, rc.bottom - rc.top, TRUE);
    }
}

// ---- agreement row ---------------------------------------------------------------------------------

void CDlgNewFlashLogin::UpdateAgreementRow(DWORD dwColour) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    const DWORD dwOpaque = dwColour | 0xFF000000;
    for (std::size_t i = 0; i < std::size(AGREEMENT_ROW); ++i) {
        const SAgreementElement& element = AGREEMENT_ROW[i];
        LuGui::CLuCtrl* pCtrl = GetControl(element.nId);
        if (!pCtrl) continue;
        RECT rc = pCtrl->GetWindowRect();
        ScreenToClient(&rc);
        SFirstPlace& first = g_firstPlaces[i];
        if (!first.bKnown) first = SFirstPlace{true, POINT{rc.left, rc.top}};
        int place[3] = {0, 0, 0};
        READ_LAYOUT_NUMBERS(element.nPlaceId, place);
        if (element.nFontId) {
            int font[2] = {0, 0};
            READ_LAYOUT_NUMBERS(element.nFontId, font);
            if (font[1] > 0) pCtrl->SetFontSize(font[0], font[1]);
        }
        // NOTE: the joining word is anchored to its first-layout y; the other elements move from where
        // they are, so a non-zero dy moves them again at each toggle.
        const int y = (element.nId == IDC_JOIN_WORD ? first.pt.y : rc.top) + place[1];
        const int nWidth = place[2] > 0 ? place[2] : rc.right - rc.left;
        pCtrl->MoveWindow(first.pt.x + place[0], y, nWidth, rc.bottom - rc.top, TRUE);
        pCtrl->SetFontColor(dwOpaque);
        if (LuGui::CLuCtrl* pLine = element.nLineId ? GetControl(element.nLineId) : nullptr) {
            RECT rcLine = pLine->GetWindowRect();
            ScreenToClient(&rcLine);
            pLine->MoveWindow(first.pt.x + place[0], rcLine.top + place[1], nWidth,
                              rcLine.bottom - rcLine.top, TRUE);
            pLine->SetFontColor(dwOpaque);
        }
    }
    const int nDate = RoleDataQueryEn()->GetSetting("UpdateTime", 0);
    m_staUpdateDate.SetWindowTextA(
        CMyString::Format(pContext->GetStr(STR_UPDATE_DATE_FORMAT), (nDate % 10000) / 100, nDate % 100)
            .c_str());
}

// ---- platform modes --------------------------------------------------------------------------------

void CDlgNewFlashLogin::ApplyPlatformLayout() {
    IScreenContext* pContext = ScreenContext();
    m_staAccountLabel.EnableWindow(FALSE);
    ShowAndEnable(m_staAccountHint, true);
    for (LuGui::CLuBaseWindow* pWnd :
         std::initializer_list<LuGui::CLuBaseWindow*>{&m_editAccount, &m_listAccount, &m_btnQrPicture,
                                                      &m_btnQrCaption, &m_editPassword, &m_btnAccountList})
        ShowAndEnable(*pWnd, false);
    m_staPasswordLabel.EnableWindow(FALSE);
    ShowAndEnable(m_staPasswordHint, true);
    if (pContext->IsPlatformModeA() && !pContext->IsPlatformModeB())
        for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
                 &m_btnAgreement, &m_btnAgreementLink, &m_staAgreementLine, &m_staAgreementBg,
                 &m_btnPrivacyLink, &m_staJoinWord, &m_staPrivacyLine, &m_staUpdateDate})
            ShowAndEnable(*pWnd, false);
    for (LuGui::CLuBaseWindow* pWnd : std::initializer_list<LuGui::CLuBaseWindow*>{
             &m_btnRemember, &m_staSaveText, &m_staSaveBg, &m_btnCreateLink, &m_staCreateLine,
             &m_btnForgetLink, &m_staForgetLine, &m_frame.GetBackButton(), &m_btnPasswordHelp, &m_btnReload})
        ShowAndEnable(*pWnd, false);
}

// ---- account-creation page -------------------------------------------------------------------------

void CDlgNewFlashLogin::OpenRegisterPage(bool bFromClick) {
    if (IsLocked()) return;
    IScreenContext* pContext = ScreenContext();
    std::string folder = GetClientDirectory().substr(0, PATH_LIMIT) + BROWSER_FOLDER;
    // NOTE: the client names the folder with a backslash; on this platform the test takes it as a separator.
    for (char& c : folder)
        if (c == '\\') c = '/';
    const bool bBrowserFolder = PathFileExistsA(folder.c_str()) != FALSE;
    if (!bBrowserFolder) RoleDataQueryEx()->SetEmbeddedBrowser(false);
    const std::string url = CMyString::Format(RoleDataQueryEx()->GetStrRes(STR_RES_REGISTER_URL),
                                              MyGameDataEnQuery()->GetRegisterArg())
                                .substr(0, URL_LIMIT - 1);
    if (RoleDataQueryEx()->IsEmbeddedBrowser())
        pContext->OpenWebRegisterPage(WEB_REGISTER_KIND, WEB_REGISTER_LAYOUT, url.c_str());
    else if (!url.empty()) // a client without the address has no page to open
        ShellExecuteA(nullptr, "open", url.c_str(), nullptr, nullptr, SW_SHOW);
    pContext->SetRegisterOpen(bBrowserFolder);
    if (bFromClick) pContext->NotifyHost("BURYING_POINT", "117");
}
