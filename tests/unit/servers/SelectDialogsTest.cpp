// The group and server dialogs on a simulator: filling, special backgrounds, marks, tips, selection.
#include <gtest/gtest.h>

#include "SimulatorFixture.h"
#include "hostlibs/HostCanvas.h"
#include "platform/Gui3DEffect.h"

namespace {

constexpr const char* STRINGS = "3110000=Version {}\n3110018=-\n3110026=Quiet\n3110027=Very busy\n"
                                "3110028=Busy\n3110029=Maintenance\n3110030={0}: {1}%\n3110031={0}!\n"
                                "5000000=Group mark\n5000001=2 3\n5000003=Server mark\n5000012=mark\n"
                                "5000013=mark\n5000014=1 1\n6000005=5 6\n";

// Group 1 is special; its first server celebrates from minute 29000000 to 30000000 (the test clock is
// inside).
constexpr const char* SERVER_CFG = "[Header]\nGroupAmount=1\n[Group1]\nServerAmount=2\nGroupTips=Special!\n"
                                   "Server1=1\nAchTime1=29000000-30000000\nAchTips1=1\n"
                                   "Server2=2\nSpecialMark2=1\nAchTime2=1-2\nAchTips2=1\n";

std::string Layout() {
    std::string text = "[Dialog1001]\nRect = 0 0 800 600\n[Dialog1002]\nRect = 0 0 800 600\n";
    for (int i = 0; i < 80; ++i)
        text += "[Dialog1001." + std::to_string(1008 + i) + "]\nRect = " + std::to_string(i / 16 * 150) +
                " " + std::to_string(i % 16 * 30) + " 140 28\nBackground = Plain\nBackgroundOffset = 1 1\n";
    for (int i = 0; i < 15; ++i) {
        text +=
            "[Dialog1002." + std::to_string(1223 + i) + "]\nRect = 0 " + std::to_string(i * 30) + " 200 28\n";
        text += "[Dialog1002." + std::to_string(1048 + i) + "]\nRect = 300 " + std::to_string(i * 30) +
                " 300 14\n";
    }
    return text;
}

class SelectDialogsTest : public SimulatorFixture {
protected:
    void SetUp() override {
        m_dir.Write("FlashGui.ini", Layout());
        Create(0, STRINGS, SERVER_CFG);
        // The host answers CMD_SELECTMODEL with the lists; the dialog is filled again afterwards.
        m_sim->OnSelectModel(2);
        Set("VAR_SERVER_AREA", "3#Dragon|Phoenix|Tiger|");
        Set("VAR_SERVER_NAME", "2#Dragon 1|Dragon 2|");
        Set("VAR_CUR_VER", "2");
        Set("VAR_AREA_ACH_TIPS", "1|0|0");
        Groups().RefillGroups();
        TakeCommands();
    }
    CDlgSelectGroup& Groups() { return m_sim->Dialogs().m_dlgSelectGroup; }
    CDlgSelectServer& Servers() { return m_sim->Dialogs().m_dlgSelectServer; }
    void Click(int x, int y) {
        host::SetCursor(x, y);
        m_sim->WindowProc(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        m_sim->WindowProc(nullptr, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    void ClickWindow(const LuGui::CLuBaseWindow& wnd) {
        const RECT rc = wnd.GetWindowRect();
        Click((rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2);
    }
    std::vector<host::DrawOp> TipsAt(const LuGui::CLuBaseWindow& wnd) {
        const RECT rc = wnd.GetWindowRect();
        host::SetCursor(rc.left + 1, rc.top + 1);
        host::UseCanvas(host::CanvasKind::Recording);
        host::BeginFrame();
        m_sim->Process();
        m_sim->Show();
        std::vector<host::DrawOp> tips;
        for (const host::DrawOp& op : host::GetRecordedOps())
            if (op.kind == "text" && op.y == rc.bottom) tips.push_back(op);
        return tips;
    }
};

TEST_F(SelectDialogsTest, GroupsFillTheirButtonsAndTheRestShowTheEmptyText) {
    EXPECT_STREQ(Groups().GetGroupButton(0).GetWindowTextA(), "Dragon");
    EXPECT_EQ(Groups().GetGroupButton(2).GetExtData(), 2);
    EXPECT_STREQ(Groups().GetGroupButton(3).GetWindowTextA(), "-");
    EXPECT_EQ(Groups().GetGroupButton(79).GetExtData(), -1);
    ClickWindow(Groups().GetGroupButton(3));
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"BURYING_POINT 113"});
    EXPECT_TRUE(Groups().IsWindowVisible());
}

TEST_F(SelectDialogsTest, SpecialGroupBackgroundIsUndoneByTheNextFill) {
    EXPECT_STREQ(Groups().GetGroupButton(0).GetBackGroundAni(), CDlgSelectGroup::SPECIAL_GROUP_BG);
    EXPECT_EQ(Groups().GetGroupButton(0).GetBackGroundOffset().x, 5);
    EXPECT_STREQ(Groups().GetGroupButton(1).GetBackGroundAni(), "Plain");
    m_sim->OnSelectModel(1); // no configuration for this edition
    Set("VAR_SERVER_AREA", "1#Other|");
    Groups().RefillGroups();
    EXPECT_STREQ(Groups().GetGroupButton(0).GetBackGroundAni(), "Plain");
    EXPECT_EQ(Groups().GetGroupButton(0).GetBackGroundOffset().y, 1);
}

TEST_F(SelectDialogsTest, MarksNeedTheGroupFlagAndAServerInsideItsWindowAndAreAddedOnce) {
    ASSERT_EQ(Groups().GetGroupMarks().size(), 3u);
    EXPECT_EQ(Groups().GetGroupMarks()[0], 1);
    EXPECT_EQ(Groups().GetGroupMarks()[1], 0);
    Groups().RefreshGroupMarks();
    Groups().RefreshGroupMarks();
    ASSERT_NE(Groups().GetGroupButton(0).GetFgEffect(), nullptr);
    EXPECT_EQ(Groups().GetGroupButton(0).GetFgEffect()->GetAmount(), 1);
    Set("VAR_AREA_ACH_TIPS", "0|0|0");
    Groups().RefreshGroupMarks();
    EXPECT_EQ(Groups().GetGroupMarks()[0], 0);
    EXPECT_EQ(Groups().GetGroupButton(0).GetFgEffect()->GetAmount(), 0);
    host::SetLocalTime(SLocalTime{2030, 1, 1, 0, 0, 0}); // after the window (minute 30000000 is in 2027)
    Set("VAR_AREA_ACH_TIPS", "1|0|0");
    Groups().RefreshGroupMarks();
    EXPECT_EQ(Groups().GetGroupMarks()[0], 0);
}

TEST_F(SelectDialogsTest, GroupTipsShowOnlyUnderTheCursor) {
    const auto tips = TipsAt(Groups().GetGroupButton(0));
    ASSERT_EQ(tips.size(), 2u); // the mark tip (asked in Process) and the special group's own (in Show)
    EXPECT_EQ(tips[0].text, "Group mark");
    EXPECT_EQ(tips[1].text, "Special!");
    EXPECT_TRUE(TipsAt(Groups().GetGroupButton(1)).empty());
}

TEST_F(SelectDialogsTest, VersionAndMusicFollowTheHostWhileVisible) {
    Set("VAR_VERSION", "2.5");
    Set("VAR_MUSIC", "0");
    ClickWindow(Groups().GetGroupButton(0));
    EXPECT_FALSE(Groups().IsWindowVisible());
    ASSERT_TRUE(Servers().IsWindowVisible());
    const LuGui::CLuCtrl* pVersion = Servers().GetControl(CDlgSelectServer::IDC_VERSION);
    EXPECT_STREQ(pVersion->GetWindowTextA(), "Version 2.5");
    EXPECT_FALSE(Servers().GetFrame().GetMusicCheck().GetCheckValue());
    Set("VAR_MUSIC", "1");
    EXPECT_TRUE(Servers().GetFrame().GetMusicCheck().GetCheckValue());
    EXPECT_FALSE(Groups().GetFrame().GetMusicCheck().GetCheckValue()) << "hidden screens catch up when shown";
    Set("VAR_VERSION", "");
    EXPECT_STREQ(pVersion->GetWindowTextA(), "Version 2.5") << "an empty version is no version";
}

TEST_F(SelectDialogsTest, WithoutAVersionTheLabelKeepsItsLayoutText) {
    const LuGui::CLuCtrl* pGroupVersion = Groups().GetControl(CDlgSelectGroup::IDC_VERSION);
    EXPECT_STRNE(pGroupVersion->GetWindowTextA(), "Version ");
    ClickWindow(Groups().GetGroupButton(0));
    ASSERT_TRUE(Servers().IsWindowVisible());
    EXPECT_STRNE(Servers().GetControl(CDlgSelectServer::IDC_VERSION)->GetWindowTextA(), "Version ");
}

TEST_F(SelectDialogsTest, ServersShowDisplayedLoadsWordsAndTips) {
    Set("VAR_SERVERSTATUS", "1#1_646_1000_1|2_0_1000_0|");
    ClickWindow(Groups().GetGroupButton(0));
    EXPECT_EQ(TakeCommands(), (std::vector<std::string>{"BURYING_POINT 113", "CMD_SELECTGROUP 1"}));
    const CSimProgress& bar = Servers().GetLoadBar(0); // 64.6 raw shows 74.6: still busy, rounded to 75
    EXPECT_EQ(bar.GetMax(), 1000);
    EXPECT_EQ(bar.GetPos(), 746);
    EXPECT_STREQ(bar.GetBackGroundAni(), "Server_Status_Busy");
    EXPECT_STREQ(bar.GetTipText(), "Busy: 75%");
    const CSimProgress& down = Servers().GetLoadBar(1);
    EXPECT_STREQ(down.GetBackGroundAni(), "Server_Status_Idle");
    EXPECT_STREQ(down.GetTipText(), "Maintenance!");
    EXPECT_EQ(down.GetPos(), 0);
    EXPECT_STREQ(Servers().GetLoadBar(2).GetTipText(), "");
    EXPECT_STREQ(Servers().GetServerButton(2).GetWindowTextA(), "-");
    ASSERT_EQ(Servers().GetServerMarks().size(), 2u);
    EXPECT_EQ(Servers().GetServerMarks()[0], 1);
    EXPECT_EQ(Servers().GetServerMarks()[1], 0); // its window is long over
}

TEST_F(SelectDialogsTest, ALoadBarClickSelectsItsServerAndOnlyTheFirstFifteenCount) {
    std::string names = "20#";
    for (int i = 1; i <= 20; ++i) names += "S" + std::to_string(i) + "|";
    m_sim->OnSelectModel(2);
    Set("VAR_SERVER_AREA", "1#Big|");
    Set("VAR_SERVER_NAME", names.c_str());
    Groups().RefillGroups();
    ClickWindow(Groups().GetGroupButton(0));
    TakeCommands();
    ClickWindow(Servers().GetLoadBar(14));
    const auto commands = TakeCommands();
    ASSERT_FALSE(commands.empty());
    EXPECT_EQ(commands.front(), "CMD_SELECTSERVER 15");
    EXPECT_FALSE(Servers().IsWindowVisible());
}

} // namespace
