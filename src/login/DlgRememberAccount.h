// The dialog that offers to remember or bind the account.
#pragma once

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"

class CDlgRememberAccount : public CSimDialog {
public:
    static constexpr UINT IDD = 1006;
    static constexpr UINT IDC_BACKGROUND = 1122, IDC_TITLE = 1024, IDC_EXPLAIN = 1018;
    static constexpr UINT IDC_REMEMBER = 1025, IDC_REMEMBER_AND_BIND = 1026, IDC_CANCEL = 1019;

    CDlgRememberAccount();
    ~CDlgRememberAccount() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL OnInitDialog() override;

private:
    void OnRemember();
    void OnRememberAndBind();
    void OnCancel();

    /// The texts are read the first time the dialog opens only.
    bool m_bTextsSet = false;
    CSimStatic m_staBackground, m_staTitle, m_staExplain;
    CSimButton m_btnRemember, m_btnRememberAndBind, m_btnCancel;
};
