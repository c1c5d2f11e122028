// The roles an account already has on the chosen international server: up to ten rows with name, level,
// profession and power, the server's name and load; start confirms the server for the main login.
#pragma once

#include <array>
#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"

class CDlgFlashCharacterEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1024;
    static constexpr int ROWS = 10;
    static constexpr UINT IDC_ROW_BG = 1300, IDC_ROW_NAME = 1316, IDC_ROW_LEVEL = 1330, IDC_ROW_PRO = 1346,
                          IDC_ROW_POWER = 1360;
    static constexpr UINT IDC_TITLE = 1024, IDC_LOAD = 1178, IDC_LABEL = 1012, IDC_START = 1017,
                          IDC_CLOSE = 1090;
    static constexpr std::uint32_t STR_TITLE = 8000168;
    /// "%s %s"-style: group name, server name.
    static constexpr std::uint32_t STR_LABEL = 8000169;
    static constexpr std::uint32_t STR_EMPTY_NAME = 3110018;
    static constexpr const char* DIM_ANI = "DialogNorMsg";

    CDlgFlashCharacterEn();
    ~CDlgFlashCharacterEn() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL OnInitDialog() override;
    int Show() override;

    /// The group and server the list is for; sets the label and the load picture.
    void SetGroupServer(int nGroup, int nServer);
    /// Every row hidden, then the roles of the list's group and server, at most ten.
    void FillRoles();
    int GetGroup() const { return m_nGroup; }
    int GetServer() const { return m_nServer; }

private:
    struct SRow {
        CSimStatic staBg, staName, staLevel, staPro, staPower;
    };
    void OnStart();
    void OnClose();
    void ShowRow(SRow& row, bool bShow);

    std::int32_t m_nGroup = 0;
    std::int32_t m_nServer = 0;
    std::array<SRow, ROWS> m_rows;
    CSimStatic m_staTitle;
    CSimStatic m_staLoad;
    CSimStatic m_staLabel;
    CSimButton m_btnStart;
    CSimButton m_btnClose;
};
