// The edition screen: five editions with descriptions and up to three quick-entry records.
#pragma once

#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"
#include "resources/ServerTypes.h"
#include "screen/ScreenFrame.h"
#include "servers/EditionInfo.h"

class CDlgSelectEdition : public CSimDialog {
public:
    static constexpr UINT IDD = 1000;

    static constexpr UINT IDC_EDITION_FIRST = 1001;
    static constexpr UINT IDC_EDITION_TIPS[EDITION_COUNT] = {1007, 1006, 1008, 1009, 1010};
    static constexpr UINT IDC_RECORDS[MAX_QUICK_ENTRY_AMOUNT] = {1022, 1024, 1025};
    static constexpr UINT IDC_DELETE_RECORDS[MAX_QUICK_ENTRY_AMOUNT] = {1047, 1049, 1050};
    static constexpr UINT IDC_VERSION = 1020;
    static constexpr UINT IDC_BACK = 1021;
    static constexpr UINT IDC_EXIT = 1090;
    static constexpr UINT IDC_SOUND = 1099;
    static constexpr UINT IDC_EDITION_BG = 1023;
    static constexpr UINT IDC_BOTTOM1 = 1108;
    static constexpr UINT IDC_BOTTOM2 = 1026;
    static constexpr UINT IDC_LOGO = 1130;

    static constexpr std::uint32_t STR_EMPTY_RECORD = 3110019;
    static constexpr DWORD RECORD_COLOUR = 0xFFA2FEFF;
    static constexpr DWORD EMPTY_RECORD_COLOUR = 0xFFFFFFFF;

    CDlgSelectEdition();
    ~CDlgSelectEdition() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;

    /// Shows the current quick-entry records on the three record buttons.
    void RefreshRecordButtons();
    /// The edition and record buttons, back and exit.
    void EnableButtons(bool bEnable);

    const CSimButton& GetRecordButton(int nSlot) const { return m_btnRecord[nSlot]; }
    const CSimButton& GetDeleteButton(int nSlot) const { return m_btnDeleteRecord[nSlot]; }
    const CSimStatic& GetEditionTip(int nIndex) const { return m_staEditionTip[nIndex]; }
    const CScreenFrame& GetFrame() const { return m_frame; }

private:
    void OnEdition(int nIndex);
    void OnRecord(int nSlot);
    void OnDeleteRecord(int nSlot);

    CSimButton m_btnEdition[EDITION_COUNT];
    CSimStatic m_staEditionTip[EDITION_COUNT];
    CSimButton m_btnRecord[MAX_QUICK_ENTRY_AMOUNT];
    CSimButton m_btnDeleteRecord[MAX_QUICK_ENTRY_AMOUNT];
    CSimStatic m_staEditionBg;
    CScreenFrame m_frame;
};
