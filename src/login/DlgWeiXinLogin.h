// WeChat login: the QR page (the host lays its web page over it) and the security-code pages.
#pragma once

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"
#include "login/TokenField.h"

class CDlgWeiXinLogin : public CSimDialog {
public:
    static constexpr UINT IDD = 1011;
    enum EPage : int { PAGE_QR = 1, PAGE_TOKEN = 2, PAGE_TOKEN_ERROR = 3 };

    static constexpr UINT IDC_WEB_AREA = 1160, IDC_SCAN_AGAIN = 1161;
    static constexpr UINT IDC_GROUP_CAPTION = 1145, IDC_GROUP_NAME = 1146;
    static constexpr UINT IDC_SERVER_CAPTION = 1148, IDC_SERVER_NAME = 1150, IDC_CURRENT = 1144;
    static constexpr UINT IDC_CLOSE = 1147, IDC_TITLE = 1159, IDC_TOKEN_CAPTION = 1152, IDC_TOKEN = 1016;
    static constexpr UINT IDC_TOKEN_HINT = 1158, IDC_OK = 1154, IDC_CANCEL = 1019;
    static constexpr UINT IDC_ERROR = 1156, IDC_CONFIRM = 1157;
    CDlgWeiXinLogin();
    ~CDlgWeiXinLogin() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    void PreSetParam() override;
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;

    // ---- operations for the simulator ----
    /// The classic login's WeChat button: shown on the QR page, the host told to lay its page over it.
    void Open();
    /// The host asks for the security code; nothing when hidden, disabled or already asking.
    void AskForToken();
    /// The host refused the security code: shown, enabled, on the error page.
    void ShowTokenError();
    /// Field 5: the host's (unmasked) text and its selection edges.
    CTokenField& TokenField() { return m_editToken; }

    void SetPage(int nPage);
    int GetPage() const { return m_nPage; }

private:
    void OnOK();
    void OnBackToQR();
    void OnClose();

    void ShowPageQR();
    void ShowPageToken();
    void ShowPageError();

    int m_nPage = 0;

    CSimStatic m_staWebArea, m_staScanAgain;
    CSimStatic m_staGroupCaption, m_staGroupName, m_staServerCaption, m_staServerName, m_staCurrent;
    CSimButton m_btnClose;
    CSimStatic m_staTitle, m_staTokenCaption;
    CTokenField m_editToken;
    CSimStatic m_staTokenHint;
    CSimButton m_btnOK, m_btnCancel;
    CSimStatic m_staError;
    CSimButton m_btnConfirm;
};
