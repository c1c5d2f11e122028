// The back button of the English creation layout.
#pragma once

#include "controls/SimButton.h"
#include "controls/SimDialog.h"

class CDlgFlashBack : public CSimDialog {
public:
    static constexpr UINT IDD = 1019;
    static constexpr UINT IDC_BACK = 1021;

    CDlgFlashBack();
    ~CDlgFlashBack() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;

private:
    /// Leaves character creation: the usage events, then the return command.
    void OnBack();

    CSimButton m_btnBack;
};
