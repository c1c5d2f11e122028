// The security-token dialog that follows a password login when the host asks for the token.
#pragma once

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimEdit.h"
#include "controls/SimStatic.h"

class CDlgWardSafeToken : public CSimDialog {
public:
    static constexpr UINT IDD = 1015;
    enum EPage : int { PAGE_ENTRY = 2, PAGE_ERROR = 3 };

    static constexpr UINT IDC_CLOSE = 1147, IDC_TOKEN_CAPTION = 1152, IDC_TOKEN = 1016;
    static constexpr UINT IDC_TOKEN_HINT = 1158, IDC_OK = 1154, IDC_ERROR = 1156, IDC_BACK = 1157;
    /// The token field takes at most this many characters.
    static constexpr int TOKEN_LIMIT = 8;

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
    /// The host's (already masked) text for field 6; another field number is an assertion.
    void SetInputText(const char* szText, int nField);
    /// The host's selection edges of the token field; the end selects from start to end.
    void SetSelectionEdge(bool bEnd, int nValue);
    /// "VAR_STARTTOVC" (reads the field's selection, answers its start) and "VAR_ENDTOVC" (the end read
    /// then).
    int GetSelectionEdge(bool bEnd);

    void SetPage(int nPage);
    int GetPage() const { return m_nPage; }

private:
    void OnOK();
    void OnBack();
    void OnClose();

    int m_nSelStart = 0;
    int m_nSelEnd = 0;
    int m_nPage = 0;

    CSimButton m_btnClose;
    CSimStatic m_staTokenCaption;
    CSimEdit m_editToken;
    CSimStatic m_staTokenHint;
    CSimButton m_btnOK;
    CSimStatic m_staError;
    CSimButton m_btnBack;
};
