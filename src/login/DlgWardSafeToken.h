// The security-token dialog that follows a password login when the host asks for the token.
#pragma once

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"
#include "login/TokenField.h"

class CDlgWardSafeToken : public CSimDialog {
public:
    static constexpr UINT IDD = 1015;
    enum EPage : int { PAGE_ENTRY = 2, PAGE_ERROR = 3 };

    static constexpr UINT IDC_CLOSE = 1147, IDC_TOKEN_CAPTION = 1152, IDC_TOKEN = 1016;
    static constexpr UINT IDC_TOKEN_HINT = 1158, IDC_OK = 1154, IDC_ERROR = 1156, IDC_BACK = 1157;
    CDlgWardSafeToken();
    ~CDlgWardSafeToken() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    void PreSetParam() override;
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;

    // ---- operations for the simulator ----
    /// The host asks for the token: the entry page, unless disabled or already there.
    void StartEntry();
    /// The host refused the token: shown, enabled, on the error page.
    void ShowTokenError();
    /// Field 6: the host's (already masked) text and its selection edges ("VAR_STARTTOVC", "VAR_ENDTOVC").
    CTokenField& TokenField() { return m_editToken; }

    void SetPage(int nPage);
    int GetPage() const { return m_nPage; }

private:
    void OnOK();
    void OnBack();
    void OnClose();

    int m_nPage = 0;

    CSimButton m_btnClose;
    CSimStatic m_staTokenCaption;
    CTokenField m_editToken;
    CSimStatic m_staTokenHint;
    CSimButton m_btnOK;
    CSimStatic m_staError;
    CSimButton m_btnBack;
};
