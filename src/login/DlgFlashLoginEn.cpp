// The international server and character picker: three zones and "Mine", ten servers a page with load,
// new-server and special icons, the account's characters on the chosen server, start and close.
//
// Index:
//   controls     bindings and handlers
//   opening      texts, the zone buttons' style, the new-server search
//   zones        zone and "Mine" choice, the pages, the rows
//   characters   the character slots of the chosen server
//   start/close  start, close and the last choice
#include "login/DlgFlashLoginEn.h"

#include <algorithm>
#include <string>

#include "platform/BaseLib.h"
#include "platform/GameData.h"
#include "platform/GameLogic.h"
#include "platform/Log.h"
#include "resources/MyString.h"
#include "resources/TextScan.h"
#include "screen/LayoutNumbers.h"
#include "screen/RoleRowTexts.h"
#include "screen/ScreenContext.h"
#include "screen/ServerLoad.h"

namespace {

constexpr std::uint32_t STR_LEGEND_FIRST = 8000005;                         // full, medium, low, maintenance
constexpr std::uint32_t STR_ZONE_CAPTIONS[3] = {8000109, 8000106, 8000107}; // captions 1157, 1158, 1159
constexpr std::uint32_t STR_MINE = 8000160;
constexpr std::uint32_t STR_ZONE_BG_OFFSET = 8000161;
constexpr std::uint32_t STR_ZONE_TEXT_OFFSET = 8000162;
constexpr std::uint32_t STR_MINE_TEXT_OFFSET = 8000163;
constexpr std::uint32_t STR_PAGE_FORMAT = 8000166;
constexpr std::uint32_t STR_COUNT_FORMAT = 8000167;
constexpr std::uint32_t STR_NO_ROLE = 8000170;
constexpr std::uint32_t STR_DIALOG_BG_OFFSET = 8000173;
constexpr std::uint32_t STR_ZONE_FONT_SIZE = 8000174;
constexpr std::uint32_t STR_MY_ROLES = 8000175;
constexpr std::uint32_t STR_ZONE_ANI_OFFSET = 8000178;
constexpr std::uint32_t STR_ZONE_FONT_COLOUR = 8000180;
constexpr std::uint32_t STR_DEFAULT_SERVER = 8000060;
constexpr std::uint32_t STR_EMPTY_NAME = 3110018;
constexpr std::uint32_t STR_ROW_TEXT_OFFSET = 3000188;

constexpr const char* ZONE_SELECTED = "fwqopt_leftdb";
constexpr const char* ROW_SELECTED = "fwqopt_onfwqlbdb";
constexpr const char* ROW_UNSELECTED = "fwqopt_unfwqlbdb";
constexpr const char* NEW_ICON = "fwqopt_newico";
constexpr const char* SPECIAL_ICON = "NewLogin_serArcherIco";

constexpr const char* EVENT = "BURYING_POINT";
constexpr const char* EVENT_ZONE = "113";
constexpr const char* EVENT_SERVER = "114";
constexpr const char* CMD_SELECTGROUP = "CMD_SELECTGROUP";

// "More" appears from this many roles on the server: one more than the slots hold.
constexpr int ROLES_FOR_MORE = 5;
constexpr std::size_t LAST_LOGIN_READ = 255;
constexpr std::size_t LAST_LOGIN_TEXT_LIMIT = 128;

int PageCountOf(int nItems) {
    return std::max(1, static_cast<int>((static_cast<long long>(std::max(nItems, 0)) + 9) / 10));
}

void ShowAndEnable(LuGui::CLuBaseWindow& wnd, bool bOn) {
    wnd.ShowWindow(bOn ? SW_SHOW : SW_HIDE);
    wnd.EnableWindow(bOn ? TRUE : FALSE);
}

// The group and server numbers (1-based) of the game set-up file's last login, when its text names both.
bool ReadLastLogin(int& nGroup, int& nServer) {
    char szRecord[LAST_LOGIN_READ + 1] = {};
    MyGetPrivateProfileString("LastLogin", "Record", "", szRecord, sizeof szRecord, g_pszIniGameSetup);
    const std::string_view record(szRecord);
    const auto numbers = textscan::ReadIntsSeparated(record, '_', 3);
    if (numbers.size() != 3) return false;
    std::size_t pos = 0;
    for (int i = 0; i < 3 && pos != std::string_view::npos; ++i) {
        pos = record.find('_', pos);
        if (pos != std::string_view::npos) ++pos;
    }
    if (pos == std::string_view::npos) return false;
    std::string text(record.substr(pos, LAST_LOGIN_TEXT_LIMIT));
    text = text.substr(0, text.find_first_of(" \t"));
    std::vector<CZrString> parts;
    Split(parts, text.c_str(), "$", 65001);
    if (parts.size() < 2) return false;
    nGroup = numbers[1];
    nServer = numbers[2];
    return true;
}

} // namespace

CDlgFlashLoginEn::CDlgFlashLoginEn() : CSimDialog(IDD) {
    m_rowPairs.fill({-1, -1});
}

CDlgFlashLoginEn::~CDlgFlashLoginEn() = default;

// ---- controls --------------------------------------------------------------------------------------

void CDlgFlashLoginEn::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    DDX_Control(pDX, IDC_MINE, m_btnMine);
    for (int i = 0; i < ZONES; ++i) {
        DDX_Control(pDX, IDC_ZONE + i, m_btnZone[static_cast<std::size_t>(i)]);
        DDX_Control(pDX, IDC_ZONE_CAPTION + i, m_staZone[static_cast<std::size_t>(i)]);
    }
    for (std::size_t i = 0; i < IDC_SEPARATORS.size(); ++i) {
        DDX_Control(pDX, IDC_SEPARATORS[i], m_staSeparator[i]);
        DDX_Control(pDX, IDC_LEGEND_PICS[i], m_staLegendPic[i]);
        DDX_Control(pDX, IDC_LEGEND_TEXTS[i], m_staLegendText[i]);
    }
    for (int i = 0; i < ROWS; ++i) {
        SRow& row = m_rows[static_cast<std::size_t>(i)];
        DDX_Control(pDX, IDC_SERVER + i, row.btnServer);
        DDX_Control(pDX, IDC_SERVER_STATE + i, row.staState);
        DDX_Control(pDX, IDC_SERVER_NEW + i, row.staNew);
        DDX_Control(pDX, IDC_SERVER_SPECIAL + i, row.staSpecial);
    }
    DDX_Control(pDX, IDC_PAGE, m_staPage);
    DDX_Control(pDX, IDC_PREV, m_btnPrevPage);
    DDX_Control(pDX, IDC_NEXT, m_btnNextPage);
    DDX_Control(pDX, IDC_MORE, m_btnMore);
    DDX_Control(pDX, IDC_START, m_btnStart);
    DDX_Control(pDX, IDC_CLOSE, m_btnClose);
    DDX_Control(pDX, IDC_MY_ROLES, m_staMyRoles);
    DDX_Control(pDX, IDC_NO_ROLE, m_staNoRole);
    DDX_Control(pDX, IDC_ROLE_BG, m_staRoleBg);
    DDX_Control(pDX, IDC_ROLE_COUNT, m_staRoleCount);
    for (int i = 0; i < SLOTS; ++i) {
        SSlot& slot = m_slots[static_cast<std::size_t>(i)];
        DDX_Control(pDX, IDC_SLOT_BG + i, slot.staBg);
        DDX_Control(pDX, IDC_SLOT_NAME + i, slot.staName);
        DDX_Control(pDX, IDC_SLOT_LEVEL + i, slot.staLevel);
        DDX_Control(pDX, IDC_SLOT_PRO + i, slot.staPro);
        DDX_Control(pDX, IDC_SLOT_POWER + i, slot.staPower);
    }
}

void CDlgFlashLoginEn::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_MINE, MsgHandler([this] { SelectZone(MINE); }));
    for (int i = 0; i < ZONES; ++i)
        PushMsgMap(WM_COMMAND, IDC_ZONE + i, MsgHandler([this, i] { SelectZone(i); }));
    for (int i = 0; i < ROWS; ++i)
        PushMsgMap(WM_COMMAND, IDC_SERVER + i, MsgHandler([this, i] { SelectServerRow(i); }));
    PushMsgMap(WM_COMMAND, IDC_PREV, &CDlgFlashLoginEn::OnPrevPage);
    PushMsgMap(WM_COMMAND, IDC_NEXT, &CDlgFlashLoginEn::OnNextPage);
    PushMsgMap(WM_COMMAND, IDC_MORE, &CDlgFlashLoginEn::OnMore);
    PushMsgMap(WM_COMMAND, IDC_START, &CDlgFlashLoginEn::OnStart);
    PushMsgMap(WM_COMMAND, IDC_CLOSE, &CDlgFlashLoginEn::OnClose);
}

bool CDlgFlashLoginEn::IsLocked() const {
    const IScreenContext* pContext = ScreenContext();
    return !pContext || pContext->IsRegisterOpen();
}

// ---- opening ---------------------------------------------------------------------------------------

BOOL CDlgFlashLoginEn::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    SetTexts();
    StyleZoneButtons();
    FindNewServer();
    m_btnMine.SetWindowTextA(pContext->GetStr(STR_MINE));
    int textOffset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_MINE_TEXT_OFFSET, textOffset);
    m_btnMine.SetTextOffset(textOffset[0], textOffset[1]);
    textOffset[0] = textOffset[1] = 0;
    READ_LAYOUT_NUMBERS(STR_ZONE_TEXT_OFFSET, textOffset);
    for (int i = 0; i < ZONES; ++i) {
        const char* szName = i < pContext->GetGroupCount() ? pContext->GetGroupName(i) : nullptr;
        CSimButton& btnZone = m_btnZone[static_cast<std::size_t>(i)];
        btnZone.SetWindowTextA(szName ? szName : pContext->GetStr(STR_EMPTY_NAME));
        btnZone.SetTextOffset(textOffset[0], textOffset[1]);
    }
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_DIALOG_BG_OFFSET, offset);
    SetBackGroundOffset(offset[0], offset[1]);
    SelectZone(MINE);
    return TRUE;
}

void CDlgFlashLoginEn::SetTexts() {
    IScreenContext* pContext = ScreenContext();
    for (int i = 0; i < ZONES; ++i)
        m_staZone[static_cast<std::size_t>(i)].SetWindowTextA(pContext->GetStr(STR_ZONE_CAPTIONS[i]));
    for (std::size_t i = 0; i < m_staLegendText.size(); ++i)
        m_staLegendText[i].SetWindowTextA(pContext->GetStr(STR_LEGEND_FIRST + static_cast<std::uint32_t>(i)));
    m_staMyRoles.SetWindowTextA(pContext->GetStr(STR_MY_ROLES));
    m_staNoRole.SetWindowTextA(pContext->GetStr(STR_NO_ROLE));
    ShowAndEnable(m_staMyRoles, false);
    ShowAndEnable(m_staNoRole, false);
}

void CDlgFlashLoginEn::StyleZoneButtons() {
    IScreenContext* pContext = ScreenContext();
    int size[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_ZONE_FONT_SIZE, size);
    int aniOffset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_ZONE_ANI_OFFSET, aniOffset);
    int bgOffset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_ZONE_BG_OFFSET, bgOffset);
    const DWORD dwColour = static_cast<DWORD>(SafeStrtoul(pContext->GetStr(STR_ZONE_FONT_COLOUR), 16));
    std::array<CSimButton*, ZONES + 1> buttons{&m_btnZone[0], &m_btnZone[1], &m_btnZone[2], &m_btnMine};
    for (CSimButton* pButton : buttons) {
        if (size[0] > 0 && size[1] > 0) pButton->SetFontSize(size[0], size[1]);
        pButton->SetBackGroundAniOffset(aniOffset[0], aniOffset[1]);
        pButton->SetBackGroundOffset(bgOffset[0], bgOffset[1]);
        pButton->SetFontColor(dwColour);
    }
    MarkZoneButton(m_nZone);
}

void CDlgFlashLoginEn::FindNewServer() {
    IScreenContext* pContext = ScreenContext();
    const int nZones = std::min(ZONES, pContext->GetGroupCount());
    for (int z = 0; z < nZones; ++z) {
        // NOTE: the search walks the simulator's group without telling the host; finding nothing leaves
        // the group at the last zone tried (docs/DECISIONS.md).
        pContext->StoreCurGroup(z);
        for (int row = 0; row < ROWS; ++row) {
            const char* szName = row < pContext->GetServerCountOf(z) ? pContext->GetServerName(z, row)
                                                                     : pContext->GetStr(STR_EMPTY_NAME);
            if (!szName || !RoleDataQueryEx()->IsNewServer(szName)) continue;
            m_nZone = z;
            m_nZoneServer = row;
            SelectZone(z);
            return;
        }
    }
}

// ---- zones -----------------------------------------------------------------------------------------

void CDlgFlashLoginEn::MarkZoneButton(int nZone) {
    for (int i = 0; i < ZONES; ++i)
        m_btnZone[static_cast<std::size_t>(i)].SetBackGroundAni(i == nZone ? ZONE_SELECTED : "");
    m_btnMine.SetBackGroundAni(nZone == MINE ? ZONE_SELECTED : "");
}

void CDlgFlashLoginEn::SelectZone(int nZone) {
    if (IsLocked()) return;
    IScreenContext* pContext = ScreenContext();
    if (nZone == MINE) {
        MarkZoneButton(MINE);
        m_bMineMode = true;
        if (!FillMinePage(true)) {
            SelectServerRow(0);
            return;
        }
        for (int i = 0; i < ROWS; ++i) ShowRow(i, false);
        FillCharacterList();
        ShowAndEnable(m_staMyRoles, true);
        ShowAndEnable(m_staNoRole, true);
        return;
    }
    if (nZone < 0 || nZone > MINE) return;
    ShowAndEnable(m_staMyRoles, false);
    ShowAndEnable(m_staNoRole, false);
    pContext->NotifyHost(EVENT, EVENT_ZONE);
    if (nZone >= pContext->GetGroupCount()) return;
    MarkZoneButton(nZone);
    m_bMineMode = false;
    m_nPage = 1;
    m_nZone = nZone;
    pContext->StoreCurGroup(nZone);
    FillZonePage();
    pContext->NotifyHostInt(CMD_SELECTGROUP, nZone);
    SelectServerRow(0);
    SetPaging(pContext->GetServerCountOf(nZone));
}

void CDlgFlashLoginEn::SetPaging(int nItems) {
    m_nPageCount = PageCountOf(nItems);
    UpdatePageLabel();
    m_btnPrevPage.EnableWindow(FALSE);
    m_btnNextPage.EnableWindow(m_nPageCount >= 2 ? TRUE : FALSE);
}

void CDlgFlashLoginEn::UpdatePageLabel() {
    m_staPage.SetWindowTextA(
        CMyString::Format(ScreenContext()->GetStr(STR_PAGE_FORMAT), m_nPage, m_nPageCount).c_str());
}

void CDlgFlashLoginEn::TurnPage(int nStep) {
    if ((nStep < 0 && m_nPage <= 1) || (nStep > 0 && m_nPage >= m_nPageCount)) return;
    m_nPage += nStep;
    m_btnPrevPage.EnableWindow(m_nPage > 1 ? TRUE : FALSE);
    m_btnNextPage.EnableWindow(m_nPage < m_nPageCount ? TRUE : FALSE);
    UpdatePageLabel();
    if (m_bMineMode)
        FillMinePage(false);
    else
        FillZonePage();
}

void CDlgFlashLoginEn::ShowRow(int nRow, bool bShow) {
    SRow& row = m_rows[static_cast<std::size_t>(nRow)];
    for (LuGui::CLuBaseWindow* pWnd :
         std::array<LuGui::CLuBaseWindow*, 4>{&row.btnServer, &row.staState, &row.staNew, &row.staSpecial})
        ShowAndEnable(*pWnd, bShow);
}

void CDlgFlashLoginEn::FillRow(int nRow, int nGroup, int nServer) {
    IScreenContext* pContext = ScreenContext();
    SRow& row = m_rows[static_cast<std::size_t>(nRow)];
    const char* szName = pContext->GetServerName(nGroup, nServer);
    row.btnServer.SetWindowTextA(szName ? szName : "");
    row.staNew.SetBackGroundAni(szName && RoleDataQueryEx()->IsNewServer(szName) ? NEW_ICON : "");
    row.btnServer.SetBackGroundAni(nServer == m_nZoneServer && nGroup == m_nZone ? ROW_SELECTED
                                                                                 : ROW_UNSELECTED);
    row.staSpecial.SetBackGroundAni(pContext->IsServerAchTipOf(nGroup, nServer) ? SPECIAL_ICON : "");
    row.staState.SetBackGroundAni(
        LoadPictureOf(ComputeLoadDisplay(pContext->GetServerLoadOf(nGroup, nServer))));
}

void CDlgFlashLoginEn::FillZonePage() {
    const int nCount = ScreenContext()->GetServerCountOf(m_nZone);
    const long long first = (static_cast<long long>(m_nPage) - 1) * ROWS;
    for (int k = 0; k < ROWS; ++k) {
        const long long s = first + k;
        const bool bShown = s < nCount;
        ShowRow(k, bShown);
        if (bShown) FillRow(k, m_nZone, static_cast<int>(s));
    }
}

bool CDlgFlashLoginEn::FillMinePage(bool bFirst) {
    IScreenContext* pContext = ScreenContext();
    for (int k = 0; k < ROWS; ++k) {
        ShowRow(k, false);
        SRow& row = m_rows[static_cast<std::size_t>(k)];
        row.btnServer.SetWindowTextA("");
        for (LuGui::CLuBaseWindow* pWnd :
             std::array<LuGui::CLuBaseWindow*, 3>{&row.staState, &row.staNew, &row.staSpecial})
            pWnd->SetBackGroundAni("");
    }
    m_rowPairs.fill({-1, -1});
    int nCount = 0;
    const SMineRole* pRoles = GameLogicEnGet()->GetMineList(nCount);
    if (!pRoles) nCount = 0;
    const std::int64_t nAccount = RoleDataQueryEx()->GetAccountValue();
    const long long first = (static_cast<long long>(m_nPage) - 1) * ROWS;
    int nMapped = 0;
    int nRow = 0;
    for (int i = 0; i < nCount; ++i) {
        const SMineRole& role = pRoles[i];
        const int nServer = GameLogicEnGet()->MapServerId(role.nGroup, role.nServerId, nAccount);
        const int nGroup = role.nGroup - 1;
        if (nServer < 0 || nGroup < 0 || nServer >= pContext->GetServerCountOf(nGroup)) continue;
        if (nMapped++ < first || nRow >= ROWS) continue;
        m_rowPairs[static_cast<std::size_t>(nRow)] = {nGroup, nServer};
        ShowRow(nRow, true);
        FillRow(nRow, nGroup, nServer);
        ++nRow;
    }
    int rowTextOffset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_ROW_TEXT_OFFSET, rowTextOffset);
    for (SRow& row : m_rows) row.btnServer.SetTextOffset(rowTextOffset[0], rowTextOffset[1]);
    if (bFirst) {
        m_nPage = 1;
        SetPaging(nMapped);
    }
    return nMapped == 0;
}

void CDlgFlashLoginEn::MarkSelectedRow(int nRow) {
    for (int k = 0; k < ROWS; ++k)
        m_rows[static_cast<std::size_t>(k)].btnServer.SetBackGroundAni(k == nRow ? ROW_SELECTED
                                                                                 : ROW_UNSELECTED);
}

void CDlgFlashLoginEn::SelectServerRow(int nRow) {
    if (IsLocked() || nRow < 0 || nRow >= ROWS) return;
    IScreenContext* pContext = ScreenContext();
    pContext->NotifyHost(EVENT, EVENT_SERVER);
    if (m_bMineMode) {
        const auto [nGroup, nServer] = m_rowPairs[static_cast<std::size_t>(nRow)];
        if (nGroup < 0) return;
        m_nZone = nGroup;
        m_nZoneServer = nServer;
        pContext->StoreCurGroup(nGroup);
        pContext->SelectServer(nServer);
    } else {
        const long long s = (static_cast<long long>(m_nPage) - 1) * ROWS + nRow;
        if (s >= pContext->GetServerCountOf(m_nZone)) return;
        m_nZoneServer = static_cast<int>(s);
        pContext->SelectServer(m_nZoneServer);
    }
    MarkSelectedRow(nRow);
    pContext->NotifyHostIndex(CMD_SELECTGROUP, pContext->GetCurGroup());
    pContext->NotifyHostIndex("CMD_SELECTSERVER", pContext->GetCurServer());
    m_nGroupSent = pContext->GetCurGroup();
    FillCharacterList();
}

// ---- characters ------------------------------------------------------------------------------------

void CDlgFlashLoginEn::ShowSlot(SSlot& slot, bool bShow) {
    for (CSimStatic* pControl : {&slot.staBg, &slot.staName, &slot.staLevel, &slot.staPro, &slot.staPower})
        ShowAndEnable(*pControl, bShow);
}

void CDlgFlashLoginEn::FillCharacterList() {
    IScreenContext* pContext = ScreenContext();
    for (SSlot& slot : m_slots) ShowSlot(slot, false);
    const std::int64_t nKey = GameLogicGet()->GetRoleListKey(RoleDataQueryEx()->GetAccountValue(),
                                                             m_nZone + 1, m_nZoneServer + 1, true);
    int nCount = 0;
    const SServerRole* pRoles = GameLogicEnGet()->GetRoleList(m_nZone + 1, nKey, nCount);
    if (!pRoles) nCount = 0;
    for (int k = 0; k < std::min(nCount, SLOTS); ++k) {
        SSlot& slot = m_slots[static_cast<std::size_t>(k)];
        const SRoleRowTexts texts = SRoleRowTexts::Of(pRoles[k]);
        slot.staName.SetWindowTextA(texts.strName.c_str());
        slot.staLevel.SetWindowTextA(texts.strLevel.c_str());
        slot.staPro.SetWindowTextA(texts.strProfession.c_str());
        slot.staPower.SetWindowTextA(texts.strPower.c_str());
        ShowSlot(slot, true);
    }
    m_staRoleCount.SetWindowTextA(CMyString::Format(pContext->GetStr(STR_COUNT_FORMAT), nCount).c_str());
    ShowAndEnable(m_btnMore, nCount >= ROLES_FOR_MORE);
}

void CDlgFlashLoginEn::OnMore() {
    if (IScreenContext* pContext = ScreenContext()) pContext->ShowServerRoleList(m_nZone, m_nZoneServer);
}

// ---- start/close -----------------------------------------------------------------------------------

void CDlgFlashLoginEn::Start() {
    if (IsLocked()) return;
    IScreenContext* pContext = ScreenContext();
    pContext->RememberSelection(pContext->GetCurGroup(), pContext->GetCurServer());
    pContext->RefreshServerLabel();
    ClosePanel(true);
}

void CDlgFlashLoginEn::ClosePanel(bool bStarted) {
    if (!bStarted) ApplyLastChoice();
    if (IScreenContext* pContext = ScreenContext()) pContext->ShowScreen(IDD_ROLE_LIST, false);
    EnableWindow(FALSE);
    ShowWindow(SW_HIDE);
}

void CDlgFlashLoginEn::ApplyLastChoice() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    int nGroup = 0, nServer = 0;
    if (pContext->GetRememberedSelection(nGroup, nServer)) {
        pContext->SelectServer(nServer);
        pContext->ShowChosenServer(nGroup, nServer);
        return;
    }
    if (!ReadLastLogin(nGroup, nServer)) {
        const auto numbers = textscan::ReadInts(pContext->GetStr(STR_DEFAULT_SERVER), 2);
        if (numbers.size() == 2 && numbers[0] >= 1 && numbers[1] >= 1) {
            nGroup = numbers[0];
            nServer = numbers[1];
        }
    }
    if (nGroup < 1 || nServer < 1) {
        LogMsg("server picker closed without a server to choose: no remembered, recorded or default one");
        return;
    }
    pContext->SelectServer(nServer - 1);
    pContext->ShowChosenServer(nGroup - 1, nServer - 1);
}
