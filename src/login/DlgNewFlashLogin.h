// The main login screen: account, password and token fields, the server label, the agreement, the recorded
// accounts and languages, web links, music, back and exit.
#pragma once

#include <cstdint>
#include <string>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimEdit.h"
#include "controls/SimList.h"
#include "controls/SimStatic.h"
#include "login/LoginInput.h"
#include "screen/ScreenFrame.h"

class CDlgNewFlashLogin : public CSimDialog {
public:
    static constexpr UINT IDD = 1013;
    /// The checked look of the check-like buttons, which keep no state of their own.
    static constexpr const char* CHECKED_LOOK = "NewLogin_HookPic";
    static constexpr int PANEL_SERVERS = 10;
    static constexpr int PANEL_TABS = 3;

    // ---- control ids ----
    static constexpr UINT IDC_BACKGROUND = 1011, IDC_PLATE1 = 1117, IDC_PLATE2 = 1118;
    static constexpr UINT IDC_ACCOUNT_LABEL = 1123, IDC_ACCOUNT_HINT = 1181, IDC_ACCOUNT = 1013;
    static constexpr UINT IDC_ACCOUNT_LIST_BUTTON = 1003, IDC_ACCOUNT_LIST = 1027;
    static constexpr UINT IDC_PASSWORD_LABEL = 1124, IDC_PASSWORD_HINT = 1182, IDC_PASSWORD = 1014;
    static constexpr UINT IDC_PASSWORD_HELP = 1007;
    static constexpr UINT IDC_TOKEN_LABEL = 1126, IDC_TOKEN = 1016, IDC_TOKEN_HELP = 1006;
    static constexpr UINT IDC_ENTER = 1017, IDC_REMEMBER = 1018, IDC_SAVE_TEXT = 1179, IDC_SAVE_BG = 1180;
    static constexpr UINT IDC_AGREEMENT = 1019, IDC_AGREEMENT_BG = 1183, IDC_AGREEMENT_LINK = 1155;
    static constexpr UINT IDC_AGREEMENT_LINE = 1156, IDC_JOIN_WORD = 2005, IDC_PRIVACY_LINK = 2002;
    static constexpr UINT IDC_PRIVACY_LINE = 2003, IDC_UPDATE_DATE = 2004;
    static constexpr UINT IDC_CREATE_LINK = 1135, IDC_CREATE_LINE = 1174;
    static constexpr UINT IDC_FORGET_LINK = 1136, IDC_FORGET_LINE = 1177;
    static constexpr UINT IDC_SERVER_LABEL = 1012, IDC_LOAD_PICTURE = 1178;
    static constexpr UINT IDC_SELECT_LINK = 1134, IDC_SELECT_LINE = 1173;
    static constexpr UINT IDC_DESCRIPTION1 = 1130, IDC_DESCRIPTION2 = 1131, IDC_DECORATION = 1132;
    static constexpr UINT IDC_VERSION = 1129, IDC_LOGO = 1133, IDC_SOUND = 1099;
    static constexpr UINT IDC_BACK = 1021, IDC_EXIT = 1090, IDC_RELOAD = 1002, IDC_HELP_LINK = 1101,
                          IDC_SITE = 1100;
    static constexpr UINT IDC_QR_PICTURE = 1022, IDC_QR_CAPTION = 1023;
    static constexpr UINT IDC_LANGUAGE_LABEL = 1125, IDC_LANGUAGE_NAME = 1127;
    static constexpr UINT IDC_LANGUAGE_BUTTON = 1004, IDC_LANGUAGE_LIST = 1293, IDC_LOGIN_STATE = 1184;
    static constexpr UINT IDC_PANEL_CLOSE = 1102, IDC_PANEL_TAB_FIRST = 1008;
    static constexpr UINT IDC_PANEL_CAPTIONS[3] = {1157, 1158, 1159};
    static constexpr UINT IDC_PANEL_DIVIDER1 = 1175, IDC_PANEL_DIVIDER2 = 1176, IDC_PANEL_BG = 1172;
    static constexpr UINT IDC_PANEL_SERVER_FIRST = 1223, IDC_PANEL_LOAD_FIRST = 1145;
    static constexpr UINT IDC_PANEL_NEW_FIRST = 1200, IDC_PANEL_SPECIAL_FIRST = 1240;
    static constexpr UINT IDC_LEGEND_FIRST = 1137, IDC_LEGEND_LAST = 1144;
    static constexpr DWORD AGREEMENT_CHECKED_COLOUR = 0xB09E68;
    static constexpr DWORD AGREEMENT_UNCHECKED_COLOUR = 0xFF0000;
    /// Notification code of an edit that received the focus.
    static constexpr UINT EN_SETFOCUS_CODE = 0x0100;

    CDlgNewFlashLogin();
    ~CDlgNewFlashLogin() override;

    // ---- toolkit operations ----
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    void PreSetParam() override;
    BOOL OnInitDialog() override;
    int Show() override;
    void Reset() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    // ---- operations for the simulator ----
    /// The host's text of field 1 (account; gives the remember check the checked look), 2 or 4.
    void SetInputText(const char* szText, int nField);
    /// Gives a field the focus with the caret at its end and tells the host.
    void FocusInput(int nField);
    /// The host's selection edges; the end selects from the stored start in the focused field.
    void SetSelectionEdge(bool bEnd, int nValue);
    int GetFocusField() const { return m_nFocusField; }
    /// Makes a field the current one for the host's focus and selection reads, without moving the caret.
    void SetCurrentField(int nField) { m_nFocusField = nField; }
    int GetSelectionEdge(bool bEnd);
    /// The last login the client remembers: model, 1-based group and server; sets the server label.
    void RestoreLastServer(int& nModel, int& nGroup, int& nServer);
    /// Shows the simulator's current group and server and tells the host.
    void UpdateServerLabel();
    /// Shows a group and server as the chosen ones (label and load picture) without telling the host.
    void ShowChosenServer(int nGroup, int nServer);
    /// The login: the agreement (unless platform mode A), the account choice, the group chosen here, the
    /// login event and the enter command. The enter button (bFromButton) sends one record command more than
    /// the host's Enter key.
    void Login(bool bFromButton);
    /// Hands the group chosen here to the simulator (before the enter command).
    void CommitGroupSelection();
    void ShowTokenRow(bool bShow);
    void MarkPasswordIncorrect() { m_bShowForgetPwd = true; }
    /// Back from the game; the first time opens the account-creation page once per installation.
    void OnBackToLogin(bool bFirst);
    const CScreenFrame& GetFrame() const { return m_frame; }

    bool IsAgreementChecked() const;
    bool IsRememberChecked() const;
    int GetChosenGroup() const { return m_nChosenGroup; }
    const char* GetAccountText() const { return m_editAccount.GetWindowTextA(); }
    const char* GetPasswordText() const { return m_editPassword.GetWindowTextA(); }
    const char* GetTokenText() const { return m_editToken.GetWindowTextA(); }
    const char* GetServerLabel() const { return m_staServerLabel.GetWindowTextA(); }

private:
    // ---- handlers ----
    void OnEnter();
    void OnToggleRemember();
    void OnToggleAgreement();
    void OnAccountListButton();
    void OnLanguageListButton();
    void OnScanCode();
    void OnCreateLink() { OpenRegisterPage(true); }
    void OnForgetPassword();
    void OnTokenHelp();
    void OnOpenStringPage(std::uint32_t nUrlId);
    void OnReload();
    void OnSelectLink();
    void OnPanelClose();
    void OnFieldFocus(int nField);
    void OnAccountRowChosen(int nRow);
    void OnAccountRowDeleted(int nRow);
    void OnLanguageRowChosen(int nRow);
    void HideOpenLists();

    // ---- algorithms ----
    /// The register-open lock of the simulator: while set, the handlers do nothing.
    static bool IsLocked();
    static bool IsPlatformModeActive();
    bool EnsureAgreement();
    void OpenRegisterPage(bool bFromClick);
    void RefreshTexts();
    void UpdateAgreementRow(DWORD dwColour);
    void PlaceLoadPicture(float fLoad, bool bWithBonus);
    void ApplyPlatformLayout();
    void RefreshEmbeddedBrowserSwitch();
    void UpdateCreateLinkTimer();
    void ShowDeleteMark();
    void FillLanguageList();
    CSimEdit* EditOfField(int nField, bool bAllowAccountFields);
    static void SetChecked(CSimButton& button, bool bChecked);
    static void ShowAndEnable(LuGui::CLuBaseWindow& wnd, bool bOn);

    int m_nChosenGroup = 0;
    int m_nLastGroup = 0;
    int m_nLastServer = 0;
    bool m_bAccountListOpen = false;
    bool m_bLanguageListOpen = false;
    int m_nFocusField = 0;
    int m_nSelStart = 0;
    int m_nSelEnd = 0;
    DWORD m_dwEmptySince = 0;
    bool m_bCreateLinkWait = true;
    bool m_bShowForgetPwd = false;

    CSimStatic m_staBackground, m_staPlate1, m_staPlate2;
    CSimStatic m_staAccountLabel, m_staAccountHint;
    CSimEdit m_editAccount;
    CSimButton m_btnAccountList;
    CSimList m_listAccount;
    CSimStatic m_staPasswordLabel, m_staPasswordHint;
    CSimEdit m_editPassword;
    CSimButton m_btnPasswordHelp;
    CSimStatic m_staTokenLabel;
    CSimEdit m_editToken;
    CSimButton m_btnTokenHelp;
    CSimButton m_btnEnter, m_btnRemember;
    CSimStatic m_staSaveText, m_staSaveBg;
    CSimButton m_btnAgreement;
    CSimStatic m_staAgreementBg;
    CSimButton m_btnAgreementLink;
    CSimStatic m_staAgreementLine, m_staJoinWord;
    CSimButton m_btnPrivacyLink;
    CSimStatic m_staPrivacyLine, m_staUpdateDate;
    CSimButton m_btnCreateLink;
    CSimStatic m_staCreateLine;
    CSimButton m_btnForgetLink;
    CSimStatic m_staForgetLine;
    CSimStatic m_staServerLabel, m_staLoadPicture;
    CSimButton m_btnSelectLink;
    CSimStatic m_staSelectLine;
    CSimStatic m_staDescription1, m_staDescription2, m_staDecoration;
    CScreenFrame m_frame;
    CSimButton m_btnReload, m_btnHelp, m_btnSite, m_btnQrPicture, m_btnQrCaption;
    CSimStatic m_staLanguageLabel, m_staLanguageName;
    CSimButton m_btnLanguage;
    CSimList m_listLanguage;
    CSimStatic m_staLoginState;
    CSimButton m_btnPanelClose;
    CSimButton m_btnPanelTab[PANEL_TABS];
    CSimStatic m_staPanelCaption[3];
    CSimStatic m_staPanelDivider1, m_staPanelDivider2;
    CSimButton m_btnPanelServer[PANEL_SERVERS];
    CSimStatic m_staPanelLoad[PANEL_SERVERS], m_staPanelNew[PANEL_SERVERS], m_staPanelSpecial[PANEL_SERVERS];
    CSimStatic m_staLegend[IDC_LEGEND_LAST - IDC_LEGEND_FIRST + 1];
    CSimStatic m_staPanelBg;
};
