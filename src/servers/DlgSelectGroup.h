// The server-group screen: up to 80 group buttons of the chosen edition, with marks, tips, music, back, exit.
#pragma once

#include <cstdint>
#include <vector>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"
#include "screen/ScreenFrame.h"

class CDlgSelectGroup : public CSimDialog {
public:
    static constexpr UINT IDD = 1001;
    static constexpr int MAX_GROUP_BUTTONS = 80;

    static constexpr UINT IDC_GROUP_FIRST = 1008;
    static constexpr UINT IDC_JOINED_SERVER = 1088;
    static constexpr UINT IDC_BACK = 1089;
    static constexpr UINT IDC_EXIT = 1090;
    static constexpr UINT IDC_SOUND = 1099;
    static constexpr UINT IDC_TOP1 = 1109;
    static constexpr UINT IDC_TOP2 = 1110;
    static constexpr UINT IDC_BOTTOM1 = 1111;
    static constexpr UINT IDC_BOTTOM2 = 1112;
    static constexpr UINT IDC_VERSION = 1127;
    static constexpr UINT IDC_LOGO = 1131;

    static constexpr std::uint32_t STR_NO_ENTRY = 3110018;
    static constexpr std::uint32_t STR_MARK_TIP = 5000000;
    static constexpr std::uint32_t STR_MARK_OFFSET = 5000001;
    static constexpr std::uint32_t STR_MARK_EFFECT = 5000012;
    static constexpr std::uint32_t STR_SPECIAL_BG_OFFSET = 6000005;
    /// Background of groups the server configuration marks as special.
    static constexpr const char* SPECIAL_GROUP_BG = "Newlogin_UniqueBG";
    static constexpr DWORD TIP_COLOUR = 0xFFFFFFFF;

    CDlgSelectGroup();
    ~CDlgSelectGroup() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL OnInitDialog() override;
    /// The library's drawing, then the tips of special groups under the cursor.
    int Show() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;

    /// Fills the 80 buttons from the simulator's group list (names, extra data, special backgrounds).
    void FillGroupButtons();
    /// Recomputes which groups are marked and gives their buttons the mark effect once.
    void RefreshGroupMarks();
    /// FillGroupButtons, then RefreshGroupMarks.
    void RefillGroups();
    /// Per frame, after every dialog is drawn: the tip of a marked group under the cursor.
    void ShowMarkTips();
    /// The group buttons, back and exit.
    void EnableButtons(bool bEnable);

    const CSimButton& GetGroupButton(int nIndex) const { return m_btnGroup[nIndex]; }
    const std::vector<std::int32_t>& GetGroupMarks() const { return m_vecGroupMarked; }
    const CScreenFrame& GetFrame() const { return m_frame; }

private:
    void OnGroupClick(int nIndex);
    void OnJoinedServer();

    /// The group of a button's extra data, or -1.
    static int GroupOfButton(const CSimButton& button);
    /// Whether the cursor lies inside the button.
    static bool IsCursorOver(const CSimButton& button);
    /// Asks the dialog manager for a tip under the button.
    void ShowTipUnder(const CSimButton& button, const char* szTip);

    CSimButton m_btnGroup[MAX_GROUP_BUTTONS];
    CSimButton m_btnJoinedServer;
    CScreenFrame m_frame;
    std::vector<std::int32_t> m_vecGroupMarked;
};
