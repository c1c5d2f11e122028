// The server screen: up to 15 servers of the chosen group with their load bars, marks, music, back and exit.
#pragma once

#include <cstdint>
#include <vector>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimProgress.h"
#include "controls/SimStatic.h"
#include "screen/ScreenFrame.h"

class CDlgSelectServer : public CSimDialog {
public:
    static constexpr UINT IDD = 1002;
    static constexpr int MAX_SERVER_BUTTONS = 15;

    static constexpr UINT IDC_GROUP_TITLE = 1009;
    static constexpr UINT IDC_SERVER_FIRST = 1223;
    static constexpr UINT IDC_LOAD_FIRST = 1048;
    static constexpr UINT IDC_BACK = 1089;
    static constexpr UINT IDC_EXIT = 1090;
    static constexpr UINT IDC_SOUND = 1099;
    static constexpr UINT IDC_TOP1 = 1113;
    static constexpr UINT IDC_TOP2 = 1114;
    static constexpr UINT IDC_BOTTOM1 = 1115;
    static constexpr UINT IDC_BOTTOM2 = 1116;
    static constexpr UINT IDC_VERSION = 1128;
    static constexpr UINT IDC_LOGO = 1132;

    static constexpr std::uint32_t STR_NO_ENTRY = 3110018;
    static constexpr std::uint32_t STR_LOAD_TIP = 3110030;
    static constexpr std::uint32_t STR_MAINTENANCE_TIP = 3110031;
    static constexpr std::uint32_t STR_MARK_TIP = 5000003;
    static constexpr std::uint32_t STR_MARK_EFFECT = 5000013;
    static constexpr std::uint32_t STR_MARK_OFFSET = 5000014;
    /// The load bars' range: a tenth of a per cent per step.
    static constexpr int LOAD_BAR_MAX = 1000;
    static constexpr DWORD TIP_COLOUR = 0xFFFFFFFF;

    CDlgSelectServer();
    ~CDlgSelectServer() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    void PreSetParam() override;
    /// Fills the whole dialog for the current group, each time it is shown.
    BOOL OnInitDialog() override;
    /// A left press on a load bar selects its server.
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;

    void ShowMarkTips();
    /// The server buttons, back and exit.
    void EnableButtons(bool bEnable);

    const CSimButton& GetServerButton(int nIndex) const { return m_btnServer[nIndex]; }
    const CSimProgress& GetLoadBar(int nIndex) const { return m_prgLoad[nIndex]; }
    const std::vector<std::int32_t>& GetServerMarks() const { return m_vecServerMarked; }
    const CScreenFrame& GetFrame() const { return m_frame; }

private:
    void OnServerClick(int nIndex);

    /// Name, mark and load bar of server i of the current group (or the empty look when there is none).
    void FillServer(int nIndex, int nServers, const char* szEffect, POINT markOffset);
    void FillLoadBar(int nIndex);
    /// Selects server i when the current group has it.
    void SelectServer(int nIndex);

    CSimStatic m_staGroupTitle;
    CSimButton m_btnServer[MAX_SERVER_BUTTONS];
    CSimProgress m_prgLoad[MAX_SERVER_BUTTONS];
    CScreenFrame m_frame;
    std::vector<std::int32_t> m_vecServerMarked;
};
