// The international server and character picker: three zones and "Mine", ten servers a page with load,
// new-server and special icons, the account's characters on the chosen server, start and close.
#pragma once

#include <array>
#include <cstdint>
#include <utility>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"

class CDlgFlashLoginEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1023;
    static constexpr int ZONES = 3;
    static constexpr int MINE = 3; ///< the zone number of "Mine"
    static constexpr int ROWS = 10;
    static constexpr int SLOTS = 4;
    /// The server role list "More" opens (a screen of its own, reached by its template id).
    static constexpr UINT IDD_ROLE_LIST = 1024;

    static constexpr UINT IDC_MINE = 1008, IDC_ZONE = 1009, IDC_ZONE_CAPTION = 1157;
    static constexpr UINT IDC_SERVER = 1223, IDC_SERVER_STATE = 1145, IDC_SERVER_NEW = 1200,
                          IDC_SERVER_SPECIAL = 1240;
    static constexpr UINT IDC_PAGE = 1294, IDC_PREV = 1293, IDC_NEXT = 1178, IDC_MORE = 1179,
                          IDC_START = 1017, IDC_CLOSE = 1090;
    static constexpr UINT IDC_MY_ROLES = 1014, IDC_NO_ROLE = 1296, IDC_ROLE_BG = 1013, IDC_ROLE_COUNT = 1295;
    static constexpr UINT IDC_SLOT_BG = 1300, IDC_SLOT_NAME = 1316, IDC_SLOT_LEVEL = 1330,
                          IDC_SLOT_PRO = 1346, IDC_SLOT_POWER = 1360;
    static constexpr std::array<UINT, 4> IDC_SEPARATORS = {1175, 1176, 1177, 1180};
    static constexpr std::array<UINT, 4> IDC_LEGEND_PICS = {1137, 1139, 1141, 1143};
    static constexpr std::array<UINT, 4> IDC_LEGEND_TEXTS = {1138, 1140, 1142, 1144};

    CDlgFlashLoginEn();
    ~CDlgFlashLoginEn() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL OnInitDialog() override;

    /// A zone (0-2) or "Mine" (3); nothing while the registration page is open.
    void SelectZone(int nZone);
    /// A row of the page (0-9); nothing while the registration page is open.
    void SelectServerRow(int nRow);
    void Start();
    /// Closes the picker and the role list; without start the last choice is applied.
    void ClosePanel(bool bStarted);

    int GetZone() const { return m_nZone; }
    int GetZoneServer() const { return m_nZoneServer; }
    int GetPage() const { return m_nPage; }
    int GetPageCount() const { return m_nPageCount; }
    bool IsMineMode() const { return m_bMineMode; }

private:
    struct SRow {
        CSimButton btnServer;
        CSimStatic staState, staNew, staSpecial;
    };
    struct SSlot {
        CSimStatic staBg, staName, staLevel, staPro, staPower;
    };

    void OnPrevPage() { TurnPage(-1); }
    void OnNextPage() { TurnPage(+1); }
    void OnMore();
    void OnStart() { Start(); }
    void OnClose() { ClosePanel(false); }

    void SetTexts();
    void StyleZoneButtons();
    void FindNewServer();
    void MarkZoneButton(int nZone);
    void FillZonePage();
    /// Fills the "Mine" page; whether the role list was empty.
    bool FillMinePage(bool bFirst);
    void FillRow(int nRow, int nGroup, int nServer);
    void ShowRow(int nRow, bool bShow);
    void MarkSelectedRow(int nRow);
    void FillCharacterList();
    void ShowSlot(SSlot& slot, bool bShow);
    void SetPaging(int nItems);
    void UpdatePageLabel();
    void TurnPage(int nStep);
    void ApplyLastChoice();
    bool IsLocked() const;

    int m_nZone = 0;
    int m_nGroupSent = 0;
    int m_nZoneServer = 0;
    int m_nPage = 1;
    int m_nPageCount = 1;
    bool m_bMineMode = false;
    /// Per row in "Mine" mode: the (zone, server) it shows; (-1, -1) for none.
    std::array<std::pair<int, int>, ROWS> m_rowPairs{};

    CSimButton m_btnMine;
    std::array<CSimButton, ZONES> m_btnZone;
    std::array<CSimStatic, ZONES> m_staZone;
    std::array<CSimStatic, 4> m_staSeparator;
    std::array<SRow, ROWS> m_rows;
    std::array<CSimStatic, 4> m_staLegendPic;
    std::array<CSimStatic, 4> m_staLegendText;
    CSimStatic m_staPage;
    CSimButton m_btnPrevPage;
    CSimButton m_btnNextPage;
    CSimButton m_btnMore;
    CSimButton m_btnStart;
    CSimButton m_btnClose;
    CSimStatic m_staMyRoles;
    CSimStatic m_staNoRole;
    CSimStatic m_staRoleBg;
    CSimStatic m_staRoleCount;
    std::array<SSlot, SLOTS> m_slots;
};
