// The international picker's close without start (remembered selection, last login, string 8000060, none),
// the role rows' texts and our game logic's lists under bad host data.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SimulatorFixture.h"
#include "hostlibs/HostEnv.h"
#include "login/DlgFlashLoginEn.h"
#include "platform/GameLogic.h"
#include "rolecreate/DlgFlashCharacterEn.h"
#include "screen/RoleRowTexts.h"

namespace {

class InternationalPickerTest : public SimulatorFixture {
protected:
    void Start(const std::string& strings, const char* szLastLogin) {
        if (szLastLogin)
            m_dir.Write("ini/GameSetup.ini", std::string("[LastLogin]\nRecord=") + szLastLogin + "\n");
        Create(0, strings);
        Set("VAR_SERVER_AREA", "2#A|B|");
        Set("VAR_SERVER_NAME", "3#A1|A2|A3|");
        Set("VAR_SERVER_NAME", "2#B1|B2|");
        TakeCommands();
    }
    CDlgFlashLoginEn& Picker() { return m_sim->Dialogs().m_dlgFlashLoginEn; }
};

TEST_F(InternationalPickerTest, CloseWithoutStartSendsOneServerOfTheFirstUsableChoice) {
    struct SCase {
        const char* szStrings;
        const char* szLastLogin;
        std::vector<std::string> expected;
    };
    const SCase cases[] = {
        {"8000060=2 1 B B1\n", "2_1_3_A$A3", {"CMD_SELECTSERVER 3"}}, // the record names both
        {"8000060=2 1 B B1\n", "2_1_3_A3", {"CMD_SELECTSERVER 1"}},   // no "$": the default
        {"8000060=2 1 B B1\n", "x_1_3_A$A3", {"CMD_SELECTSERVER 1"}}, // malformed record
        {"8000060=0 1 B B1\n", nullptr, {}},                          // default below 1: nothing
        {"8000060=%s %n\n", "2_1", {}},                               // nothing usable anywhere
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(std::string(c.szStrings) + (c.szLastLogin ? c.szLastLogin : "-"));
        Start(c.szStrings, c.szLastLogin);
        Picker().ClosePanel(false);
        EXPECT_EQ(TakeCommands(), c.expected);
        EXPECT_FALSE(Picker().IsWindowEnabled());
        FlashSimDestroy();
    }
}

TEST_F(InternationalPickerTest, CloseAfterStartUsesTheRememberedSelectionOnly) {
    Start("", "2_1_3_A$A3");
    m_sim->SetSelection(true, 1, 1);
    Picker().ClosePanel(false);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CMD_SELECTSERVER 2"});
    Picker().ClosePanel(true);
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(InternationalPickerTest, ZonesOfNoneToTenThousandServersPageWithoutGaps) {
    Create(0, "8000166=%d/%d\n");
    Picker().ShowWindow(SW_SHOW); // no groups: "Mine" with nothing in it
    TakeCommands();
    Picker().SelectZone(0);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"BURYING_POINT 113"}) << "an absent zone stops there";
    std::string names;
    for (int i = 0; i < 10000; ++i) names += "S" + std::to_string(i) + "|";
    Set("VAR_SERVER_AREA", "1#Big|");
    Set("VAR_SERVER_NAME", ("10000#" + names).c_str());
    Picker().SelectZone(0);
    EXPECT_EQ(Picker().GetPageCount(), 1000);
    for (int i = 0; i < 999; ++i) Picker().WindowProc(WM_COMMAND, CDlgFlashLoginEn::IDC_NEXT, 0);
    EXPECT_EQ(Picker().GetPage(), 1000);
    TakeCommands();
    Picker().SelectServerRow(9);
    EXPECT_EQ(TakeCommands(), (std::vector<std::string>{"BURYING_POINT 114", "CMD_SELECTSERVER 10000",
                                                        "CMD_SELECTGROUP 1", "CMD_SELECTSERVER 10000"}));
    Picker().WindowProc(WM_COMMAND, CDlgFlashLoginEn::IDC_NEXT, 0); // past the last page: nothing
    EXPECT_EQ(Picker().GetPage(), 1000);
}

TEST_F(InternationalPickerTest, NewServerSearchSeesTenRowsAndOtherwiseLeavesTheLastZoneTried) {
    std::string names;
    for (int i = 0; i < 12; ++i) names += "N" + std::to_string(i) + "|";
    host::SetData("newservers", "N10|B2");
    Create(0, "");
    Set("VAR_SERVER_AREA", "2#A|B|");
    Set("VAR_SERVER_NAME", ("12#" + names).c_str());
    Set("VAR_SERVER_NAME", "3#B1|B2|B3|");
    TakeCommands();
    Picker().ShowWindow(SW_SHOW);
    EXPECT_EQ(TakeCommands()[0], "BURYING_POINT 113") << "B2 found in zone 1 (N10 lies past row 9)";
    EXPECT_EQ(Picker().GetZone(), 1);
    Picker().ShowWindow(SW_HIDE);
    host::SetData("newservers", "N10");
    m_sim->StoreCurGroup(0);
    Picker().ShowWindow(SW_SHOW);
    EXPECT_EQ(m_sim->GetCurGroup(), 1) << "nothing found: the group stays at the last zone tried";
    EXPECT_TRUE(Picker().IsMineMode());
    host::SetData("newservers", "");
}

TEST_F(InternationalPickerTest, ZoneMineAndRowTextsTakeTheirOwnOffsets) {
    Start("8000162=5 1\n8000163=-3 2\n3000188=7 -1\n8000161=1 1\n8000178=2 0\n", nullptr);
    Picker().ShowWindow(SW_SHOW);
    const auto offsetOf = [&](UINT nId) {
        const POINT pt = Picker().GetControl(nId)->GetTextOffset();
        return std::to_string(pt.x) + "," + std::to_string(pt.y);
    };
    for (UINT i = 0; i < 3; ++i) EXPECT_EQ(offsetOf(CDlgFlashLoginEn::IDC_ZONE + i), "5,1");
    EXPECT_EQ(offsetOf(CDlgFlashLoginEn::IDC_MINE), "-3,2");
    for (UINT i = 0; i < 10; ++i) EXPECT_EQ(offsetOf(CDlgFlashLoginEn::IDC_SERVER + i), "7,-1") << i;
    const LuGui::CLuCtrl* pMine = Picker().GetControl(CDlgFlashLoginEn::IDC_MINE);
    EXPECT_EQ(pMine->GetBackGroundOffset().x + pMine->GetBackGroundAniOffset().x, 3)
        << "both background offsets count";
}

TEST_F(InternationalPickerTest, RoleListLabelsAndLoadsTheCurrentGroupsServerAndShowsTenRoles) {
    Start("8000169=%s / %s\n3110018=-\n", nullptr);
    Set("VAR_SERVERSTATUS", "1#1_450_1000_1|2_720_1000_1|3_0_1000_0|");
    m_sim->StoreCurGroup(0);
    std::string roles;
    for (int i = 0; i < 12; ++i) roles += "1:1:1:1:1:R" + std::to_string(i) + "|";
    host::SetData("en.account", "5");
    host::SetData("en.roles", roles);
    CDlgFlashCharacterEn& list = m_sim->Dialogs().m_dlgCharacterEn;
    const auto loadOf = [&](int nServer) {
        list.SetGroupServer(0, nServer);
        return std::string(list.GetControl(CDlgFlashCharacterEn::IDC_LOAD)->GetBackGroundAni());
    };
    EXPECT_EQ(loadOf(0), "NewLogin_serMediumPic") << "45 % shows as 65";
    EXPECT_EQ(loadOf(1), "NewLogin_serfullPic") << "72 % shows as 77";
    EXPECT_EQ(loadOf(2), "NewLogin_serMaintenancePic") << "state 0: maintenance";
    list.SetGroupServer(7, 1);
    EXPECT_STREQ(list.GetControl(CDlgFlashCharacterEn::IDC_LABEL)->GetWindowTextA(), "- / A2");
    EXPECT_EQ(std::string(list.GetControl(CDlgFlashCharacterEn::IDC_LOAD)->GetBackGroundAni()),
              "NewLogin_serfullPic")
        << "the load is still the current group's";
    list.SetGroupServer(0, 0);
    m_sim->ShowServerRoleList(0, 0);
    for (int i = 0; i < CDlgFlashCharacterEn::ROWS; ++i)
        EXPECT_STREQ(list.GetControl(CDlgFlashCharacterEn::IDC_ROW_NAME + i)->GetWindowTextA(),
                     ("R" + std::to_string(i)).c_str());
    host::SetData("en.account", "");
    host::SetData("en.roles", "");
}

TEST(RoleRowTexts, NamesKeepWellFormedUtf8AndMarkEveryBadByte) {
    EXPECT_EQ(SRoleRowTexts::ToCodePage("Hero"), "Hero");
    EXPECT_EQ(SRoleRowTexts::ToCodePage("\xE5\x8B\x87\xE8\x80\x85"), "\xE5\x8B\x87\xE8\x80\x85");
    EXPECT_EQ(SRoleRowTexts::ToCodePage("a\xFF"
                                        "b"),
              "a?b");
    EXPECT_EQ(SRoleRowTexts::ToCodePage("\xE5\x8B"), "??");      // cut short
    EXPECT_EQ(SRoleRowTexts::ToCodePage("\xC0\xAF"), "??");      // overlong
    EXPECT_EQ(SRoleRowTexts::ToCodePage("\xED\xA0\x80"), "???"); // surrogate
    EXPECT_EQ(SRoleRowTexts::ToCodePage(std::string("a\0b", 3)), std::string("a\0b", 3));
    const std::string longName(300, 'x');
    EXPECT_EQ(SRoleRowTexts::ToCodePage(longName).size(), SRoleRowTexts::MAX_NAME_BYTES);
    std::string cut(254, 'x');
    cut += "\xE5\x8B\x87";
    EXPECT_EQ(SRoleRowTexts::ToCodePage(cut), std::string(254, 'x')); // never half a character
}

TEST(RoleRowTexts, ProfessionIdIsTenTimesTheCodeWithoutOverflow) {
    EXPECT_EQ(SRoleRowTexts::ProfessionOf(5), 50);
    EXPECT_EQ(SRoleRowTexts::ProfessionOf(-3), -30);
    EXPECT_EQ(SRoleRowTexts::ProfessionOf(INT32_MAX), INT32_MAX);
    EXPECT_EQ(SRoleRowTexts::ProfessionOf(INT32_MIN), INT32_MIN);
}

TEST(GameLogicLists, ReadsRolesAndIdsAndSkipsWhatItCannotRead) {
    host::SetData("en.account", "9");
    host::SetData("en.serverids.1", "50|x|70|");
    host::SetData("en.roles", "1:70:2:300:4:A:b|1:70:x:1:1:Bad|1:70:1:1:99999999999:Big|:::::|1:50:1:1:1:Z");
    host::SetData("en.nolist", "");
    EXPECT_EQ(GameLogicGet()->GetRoleListKey(8, 1, 3, true), 0) << "another account";
    const std::int64_t nKey = GameLogicGet()->GetRoleListKey(9, 1, 3, true);
    int nCount = -1;
    const SServerRole* pRoles = GameLogicEnGet()->GetRoleList(1, nKey, nCount);
    ASSERT_NE(pRoles, nullptr);
    ASSERT_EQ(nCount, 1);
    EXPECT_STREQ(pRoles[0].szName, "A:b");
    EXPECT_EQ(pRoles[0].nPower, 300);
    EXPECT_EQ(GameLogicEnGet()->MapServerId(1, 70, 9), 2);
    EXPECT_EQ(GameLogicEnGet()->MapServerId(1, 60, 9), -1);
    EXPECT_EQ(GameLogicEnGet()->MapServerId(2, 4, 9), 3) << "without ids the id is the number";
    EXPECT_EQ(GameLogicEnGet()->MapServerId(2, 0, 9), -1);
    host::SetData("en.nolist", "1");
    EXPECT_EQ(GameLogicEnGet()->GetRoleList(1, nKey, nCount), nullptr);
    EXPECT_EQ(nCount, 0);
    for (const char* key : {"en.account", "en.serverids.1", "en.roles", "en.nolist"}) host::SetData(key, "");
}

} // namespace
