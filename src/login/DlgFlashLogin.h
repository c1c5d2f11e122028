// The classic login shown after a server choice: a password page (account, password, protection code,
// security token, an on-screen keyboard) and a QR page behind two tabs, help pages, the recorded accounts, a
// quick entry of the current server, the WeChat row, music, back and exit.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "controls/SimButton.h"
#include "controls/SimCheck.h"
#include "controls/SimDialog.h"
#include "controls/SimEdit.h"
#include "controls/SimList.h"
#include "controls/SimStatic.h"
#include "login/ClassicLoginAssets.h"
#include "login/ClassicLoginSources.h"
#include "login/LoginInput.h"
#include "login/SoftKeyboard.h"
#include "screen/ScreenFrame.h"

class CMyBitmap;

class CDlgFlashLogin : public CSimDialog {
public:
    static constexpr UINT IDD = 1003;
    /// The servers' quick-entry editor, opened by its template id when the records are full.
    static constexpr UINT IDD_QUICK_ENTRY_EDITOR = 1007;
    /// Posted by the keyboard picture's download: first parameter 1 on success, 0 on failure.
    static constexpr UINT WM_SOFTKEY_DOWNLOADED = 12135;
    /// The quick-entry tip disappears at the first frame this long after it was shown.
    static constexpr DWORD TIP_SHOWN_MS = 2000;

    enum EPage : int { PAGE_PASSWORD = 0, PAGE_QR = 1 };
    /// QR states: no code (requested), code shown, code expired; other values from the host draw like 1.
    enum EQRStatus : int { QR_REQUESTED = 0, QR_SHOWN = 1, QR_EXPIRED = 2 };

    // ---- control ids ----
    static constexpr UINT IDC_BACKGROUND = 1011, IDC_QR_BACKGROUND = 1022, IDC_SERVER_LABEL = 1012;
    static constexpr UINT IDC_RECORD_ENTRY = 1001, IDC_TIP = 1046;
    static constexpr UINT IDC_ACCOUNT_LABEL = 1123, IDC_PASSWORD_LABEL = 1124, IDC_PROTECT_LABEL = 1125;
    static constexpr UINT IDC_TOKEN_LABEL = 1126;
    static constexpr UINT IDC_ACCOUNT = 1013, IDC_PASSWORD = 1014, IDC_PROTECT = 1015, IDC_TOKEN = 1016;
    static constexpr UINT IDC_ACCOUNT_LIST_BUTTON = 1003, IDC_ACCOUNT_LIST = 1027, IDC_REGISTER = 1002;
    static constexpr UINT IDC_SOFTKEY_SWITCH = 1004;
    static constexpr UINT IDC_PROTECT_HELP = 1005, IDC_PROTECT_APPLY = 1007;
    static constexpr UINT IDC_TOKEN_HELP = 1006, IDC_TOKEN_APPLY = 1008;
    static constexpr UINT IDC_ENTER = 1017, IDC_REMEMBER = 1018, IDC_PHONE_PROTECT = 1019;
    static constexpr UINT IDC_ACCOUNT_HELP = 1020;
    static constexpr UINT IDC_SOFTKEY_BG = 1100, IDC_SOFTKEY_AREA = 1101;
    static constexpr UINT IDC_SOFTKEY_BACKSPACE = 1102, IDC_SOFTKEY_ENTER = 1103;
    static constexpr UINT IDC_PASSWORD_TAB = 1134, IDC_QR_TAB = 1135;
    static constexpr UINT IDC_QR_HINT = 1136, IDC_QR_TITLE = 1140, IDC_QR_EXPLAIN = 1138;
    static constexpr UINT IDC_PHONE_SITE = 1139, IDC_QR_PICTURE = 1141, IDC_QR_REFRESH = 1093;
    static constexpr UINT IDC_QR_EXAMPLE = 1142;
    static constexpr UINT IDC_EXTERNAL_LABEL = 1148, IDC_EXTERNAL_ICON = 1149, IDC_WECHAT = 1150;
    static constexpr UINT IDC_SOUND = 1099, IDC_VERSION = 1129, IDC_LOGO = 1133;
    static constexpr UINT IDC_PLATES[4] = {1117, 1118, 1091, 1092};
    static constexpr UINT IDC_BACK = 1021, IDC_EXIT = 1090;

    CDlgFlashLogin();
    ~CDlgFlashLogin() override;

    // ---- toolkit operations ----
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    void PreSetParam() override;
    BOOL OnInitDialog() override;
    int Show() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    // ---- operations for the simulator ----
    /// The host's focus request for field 1 to 4: focus, caret at the end, and the host is told.
    void FocusInput(int nField);
    /// The host's text for field 1 to 4 (the protection code arrives as field 3).
    void SetInputText(const char* szText, int nField);
    /// String 3110000 filled printf-style with the version.
    void SetVersionText(const char* szVersion) { m_frame.SetVersionText(szVersion); }
    /// Fetches the keyboard picture named by the host from the "softKeySite" address.
    void SetPicKey(const char* szName);
    /// The host allows the on-screen keyboard; a visible password page follows at once.
    void SetSoftKeyAllowed(bool bAllowed);
    /// Renders the key as the QR page's picture (the previous picture stays when that fails).
    void SetQRKey(const char* szKey, int nScale);
    void SetQRStatus(int nStatus) { m_nQRStatus = nStatus; }

    /// Where the QR picture and the keyboard picture come from: the dialog's own renderer and downloader
    /// unless a test plugs in others (null: none); not owned.
    void SetSources(IClassicLoginSources* pSources) { m_pSources = pSources; }

    int GetQRStatus() const { return m_nQRStatus; }
    CMyBitmap* GetQRBitmap() const { return m_pSources ? m_pSources->GetQRBitmap() : nullptr; }
    int GetPage() const { return m_nPage; }
    int GetFocusField() const { return m_nFocusField; }
    bool IsQRLoginBound() const { return m_bQRLogin; }
    const CSoftKeyboard& GetSoftKeyboard() const { return m_softKey; }
    const CScreenFrame& GetFrame() const { return m_frame; }

    /// String 3110000 as the classic login fills it: printf-style, so that a "{}" format shows as it is; a
    /// format with other conversions than one "%s" is filled as the typed formats are, never by printf.
    static std::string VersionLabelText(IScreenContext& context, const char* szVersion);

private:
    // ---- handlers ----
    void OnEnter();
    void OnSoftKeyBackspace();
    void OnAccountListButton();
    void OnSoftKeySwitch();
    void OnRemember();
    void OnAccountHelp();
    void OnOpenLoginPage(const char* szKey);
    void OnRegister();
    void OnRecordEntry();
    void OnPasswordTab();
    void OnQRTab();
    void OnQRPicture();
    void OnQRRefresh();
    void OnWeChat();
    void OnFieldFocus(int nField);
    void OnAccountRowChosen(int nRow);
    void OnAccountRowDeleted(int nRow);

    // ---- presses (PreTranslateMessage) ----
    void OnLeftButtonDown(POINT pt);
    /// A press on the QR picture or the WeChat row acts at once; the command that follows the same click
    /// must not act again. True when the press just acted for this control (and forgets it).
    bool TakePressAction(UINT nId);
    bool IsPasswordFocused() const;

    // ---- algorithms (DlgFlashLoginPages.cpp) ----
    void SetLoginPage(int nPage);
    void ShowPasswordColumn(bool bShow);
    void ShowQRColumn(bool bShow);
    void ShowExternalRow(bool bShow);
    /// The keyboard switch shown and ticked as the host allows, the keyboard following the tick.
    void ApplySoftKeySwitch();
    void ShowSoftKeyboard(bool bShow);
    /// The token-only layout and platform mode A, over whatever page was laid out last.
    void ApplyAccountLayouts();
    void ApplyTokenOnlyLayout(bool bTokenOnly);
    void RecordQuickEntry();
    void ShowTip(std::uint32_t nStrId);
    void HideExpiredTip();
    void RefreshTexts();
    void DrawQRPicture();
    void DrawDeleteMark();
    void ReadQRLayout();
    CSimEdit* EditOfField(int nField);
    static void ShowAndEnable(LuGui::CLuBaseWindow& wnd, bool bOn);

    bool m_bAccountListOpen = false;
    bool m_bSoftKeyAllowed = false;
    int m_nFocusField = 0;
    DWORD m_dwTipShown = 0;
    CSoftKeyboard m_softKey;
    int m_nPage = PAGE_PASSWORD;
    int m_nQRStatus = QR_REQUESTED;
    /// The QR-login switch as it was when the controls were bound.
    bool m_bQRLogin = false;
    CClassicLoginAssets m_assets;
    IClassicLoginSources* m_pSources = &m_assets;
    UINT m_nPressActedOn = 0;
    /// Where the token row stood in the layout, before a token-only offset moved it.
    struct STokenRowOrigin {
        bool bKnown = false;
        std::array<POINT, 4> points{};
    } m_tokenRowOrigin;
    /// The QR picture's offset and size and the expiry overlay's offset, read when the page first draws.
    struct SQRLayout {
        bool bRead = false;
        int offset[2] = {0, 0};
        int size[2] = {0, 0};
        int errorOffset[2] = {0, 0};
    } m_qrLayout;

    CSimStatic m_staBackground, m_staQRBackground;
    CScreenFrame m_frame;
    CSimStatic m_staServerLabel;
    CSimButton m_btnRecordEntry;
    CSimStatic m_staAccountLabel, m_staPasswordLabel, m_staProtectLabel, m_staTokenLabel;
    CSimEdit m_editAccount, m_editPassword, m_editProtect, m_editToken;
    CSimButton m_btnAccountList, m_btnRegister;
    CSimCheck m_chkSoftKey;
    CSimButton m_btnProtectHelp, m_btnProtectApply, m_btnTokenHelp, m_btnTokenApply;
    CSimButton m_btnEnter, m_btnRemember, m_btnPhoneProtect, m_btnAccountHelp;
    CSimStatic m_staSoftKeyBg, m_staSoftKeyArea;
    CSimButton m_btnSoftKeyBackspace, m_btnSoftKeyEnter;
    CSimCheck m_chkPasswordTab, m_chkQRTab;
    CSimStatic m_staQRHint, m_staQRTitle, m_staQRExplain;
    CSimButton m_btnPhoneSite, m_btnQRPicture, m_btnQRRefresh;
    CSimStatic m_staQRExample;
    CSimStatic m_staExternalLabel, m_staExternalIcon, m_staWeChat;
    CSimStatic m_staTip;
    CSimList m_listAccount;
};
