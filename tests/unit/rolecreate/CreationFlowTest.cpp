// The standard creation screen driven through the simulator: registration gates the scenarios cannot
// reach, the head grid's lists, the profession boxes' places and marks, and what closing the screen does.
#include <gtest/gtest.h>

#include <string>

#include "SimulatorFixture.h"
#include "hostlibs/HostEnv.h"
#include "resources/SelectHeadMgr.h"

namespace {

constexpr const char* STRINGS =
    "5000006=Archer closed\n5000007=New\n5000008=Locked\n5000009=1 2\n5000010=3 4\n"
    "5000011=5 6\n7000000=0 0 10 10\n7000001=0 20 10 10\n7000002=0 40 10 10\n"
    "7000003=0 60 10 10\n7000004=0 80 10 10\n7000005=0 100 10 10\n"
    "7000006=0 120 10 10\n7000050=100 0 12 12\n7000051=100 30 12 12\n"
    "7000052=100 60 12 12\n7000053=100 90 12 12\n7000054=100 120 12 12\n"
    "7000055=100 150 12 12\n7000056=100 180 12 12\n6000002=50 50 20 20\n"
    "7000200=-2 -3\n";

constexpr const char* LAYOUT = "[Dialog1010]\nRect = 100 100 300 300\nOpenInactive = 500\n"
                               "[Dialog1010.1059]\nRect = 10 100 40 40\n[Dialog1010.1162]\nRect = 0 0 44 44\n"
                               "[Dialog1008.1062]\nRect = 10 10 200 20\n";

class CreationFlowTest : public SimulatorFixture {
protected:
    void Open(const std::string& heads, const std::string& serverCfg = "") {
        CSelectHeadMgr::DestroyInstance();
        m_dir.Write("FlashGui.ini", LAYOUT);
        m_dir.Write("ini/SelectHead.ini", heads);
        for (const int key : {11, 12, 21, 22, 81})
            host::SetData("roledata." + std::to_string(key),
                          std::to_string(1000 + key) + " 1 2 3 4 5 6 7 8 100 T");
        Create(0, STRINGS, serverCfg);
        m_sim->SetSceneType(EST_ROLE_CREATE);
        Set("SetMainPath", "1024-768-0");
        TakeCommands();
    }
    void TearDown() override {
        SimulatorFixture::TearDown();
        CSelectHeadMgr::DestroyInstance();
    }
    CDlgFlashCreateRole& CreateRole() { return m_sim->Dialogs().m_dlgCreateRole; }
    CDlgFlashSelectPro& SelectPro() { return m_sim->Dialogs().m_dlgSelectPro; }
    CDlgFlashSelectHead& SelectHead() { return m_sim->Dialogs().m_dlgSelectHead; }
    void Command(CSimDialog& dlg, UINT nId) { dlg.WindowProc(WM_COMMAND, nId, 0); }
    void Register() { Command(CreateRole(), CDlgFlashCreateRole::IDC_CREATE); }
    static RECT RectOf(const LuGui::CLuBaseWindow& wnd) {
        RECT rc{};
        wnd.GetWindowRect(&rc);
        return rc;
    }
};

constexpr const char* SAMPLE_HEADS = "[ProHeadSet]\nProHeadAni_11=9000\nProHeadAni_81=10081\n";

TEST_F(CreationFlowTest, Switch_A_OpensTheArcherOnlyOnAServerWithItsAchievementTip) {
    Open(SAMPLE_HEADS,
         "[Header]\nGroupAmount=1\n[Group1]\nServerAmount=2\nServer1=1\nAchTips1=1\nServer2=2\n");
    m_sim->SetSceneType(EST_LOGIN); // the lists are login-scene variables
    Set("VAR_SERVER_AREA", "1#East|");
    Set("VAR_SERVER_NAME", "2#A|B|");
    Set("VAR_CUR_VER", "2");
    m_sim->SetSceneType(EST_ROLE_CREATE);
    m_sim->State().m_nGroup = 0;
    m_sim->State().m_nServer = 1;
    m_sim->SetCreateRoleParam(0, 1, 0, 1, 0, false, 0, 0);
    SelectPro().Select(CProfessionTable::INDEX_ARCHER);
    TakeCommands();
    Register();
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"SendNewwerAction 10200"}) << "server 2 has no tip";
    EXPECT_EQ(m_sim->Dialogs().m_dlgConfirm.GetType(), MSGBOX_ERROR);
    m_sim->State().m_nServer = 0;
    m_sim->SetCreateRoleParam(0, 1, 0, 1, 0, false, 0, 0);
    SelectPro().Select(CProfessionTable::INDEX_ARCHER);
    TakeCommands();
    Register();
    const std::vector<std::string> expected{"SendNewwerAction 10200", "RoleProfession 80", "SetLook 81",
                                            "SetName ", "RoleRigister 1"};
    EXPECT_EQ(TakeCommands(), expected);
}

TEST_F(CreationFlowTest, AFaceBelow10000IsSentAsLook0) {
    Open(SAMPLE_HEADS);
    Register();
    const std::vector<std::string> expected{"SendNewwerAction 10200", "RoleProfession 10", "SetLook 0",
                                            "SetName ", "RoleRigister 1"};
    EXPECT_EQ(TakeCommands(), expected);
}

TEST_F(CreationFlowTest, TheGridShowsTheDefaultFaceThenTheListWithoutItsLastFace) {
    std::string heads = "[ProHeadSet]\nProHeadAni_11=10011\n[MaleHeadSet]\nMaleHeadAmount=20\n";
    for (int i = 1; i <= 20; ++i)
        heads += "MaleHead_" + std::to_string(i) + "=" + std::to_string(20000 + i) + "\n";
    heads += "[FemaleHeadSet]\nFemaleHeadAmount=0\n";
    Open(heads);
    SelectHead().ShowWindow(SW_SHOW);
    EXPECT_EQ(SelectHead().GetCount(), 20);
    // Button 0 the default face, buttons 1 to 15 list faces 0 to 14.
    const auto title = [this](int i) {
        const UINT id = CDlgFlashSelectHead::FACE_BUTTON_IDS[i];
        return std::string(static_cast<const CSimImage*>(SelectHead().GetControl(id))->GetAniTitle());
    };
    EXPECT_EQ(title(0), "Face10011");
    EXPECT_EQ(title(1), "Face20001");
    EXPECT_EQ(title(15), "Face20015");
    // The chosen index survives a change of sex; the face then comes from the other (empty) list.
    Command(SelectHead(), CDlgFlashSelectHead::FACE_BUTTON_IDS[5]);
    EXPECT_EQ(SelectHead().GetHead(), 5);
    EXPECT_EQ(SelectHead().FaceOf(5), 20005);
    Command(SelectPro(), CDlgFlashSelectPro::IDC_FEMALE);
    EXPECT_EQ(SelectHead().GetHead(), 5);
    EXPECT_EQ(SelectHead().FaceOf(5), 0);
    EXPECT_EQ(SelectHead().FaceOf(16), SelectHead().FaceOf(0)) << "16 or more counts as 0";
    // No face for the sex: no button, and hovering shows no frame.
    SelectHead().ShowWindow(SW_SHOW);
    EXPECT_EQ(SelectHead().GetCount(), 0);
    for (const UINT id : CDlgFlashSelectHead::FACE_BUTTON_IDS)
        EXPECT_FALSE(SelectHead().GetControl(id)->IsWindowVisible());
    MSG move{nullptr, WM_MOUSEMOVE, 0, 0, 0, POINT{130, 220}};
    SelectHead().PreTranslateMessage(&move);
    EXPECT_FALSE(SelectHead().GetControl(CDlgFlashSelectHead::IDC_HOVER_FRAME)->IsWindowVisible());
}

TEST_F(CreationFlowTest, GridPressesWaitForActivationButTheButtonsCommandsDoNot) {
    Open("[MaleHeadSet]\nMaleHeadAmount=2\nMaleHead_1=1\nMaleHead_2=2\n");
    SelectHead().ShowWindow(SW_SHOW);
    ASSERT_TRUE(SelectHead().IsOpenInactive());
    MSG press{nullptr, WM_LBUTTONDOWN, 0, 0, 0, POINT{130, 220}}; // inside button 0
    EXPECT_FALSE(SelectHead().PreTranslateMessage(&press));
    EXPECT_TRUE(SelectHead().IsWindowVisible());
    // The hover frame follows the pointer even before activation, shifted by string 7000200.
    MSG move{nullptr, WM_MOUSEMOVE, 0, 0, 0, POINT{130, 220}};
    SelectHead().PreTranslateMessage(&move);
    const RECT frame = RectOf(*SelectHead().GetControl(CDlgFlashSelectHead::IDC_HOVER_FRAME));
    EXPECT_EQ(frame.left, 100 + 10 - 2);
    EXPECT_EQ(frame.top, 100 + 100 - 3);
    SelectHead().WindowProc(LuGui::LU_MSG_ACTIVATE, 0, 0);
    EXPECT_TRUE(SelectHead().PreTranslateMessage(&press));
    EXPECT_FALSE(SelectHead().IsWindowVisible());
    EXPECT_TRUE(SelectPro().IsWindowVisible());
    EXPECT_TRUE(TakeCommands().empty()) << "back to the profession step sends nothing";
}

TEST_F(CreationFlowTest, TheBoxesTakeSevenOrEightPlacesAndTheArcherIsMarked) {
    Open(SAMPLE_HEADS);
    const auto box = [this](int i) {
        return RectOf(*SelectPro().GetControl(CDlgFlashSelectPro::PROFESSION_IDS[i]));
    };
    EXPECT_EQ(box(1).top, 30);
    EXPECT_EQ(box(6).left, 100);
    EXPECT_FALSE(SelectPro().GetControl(1058)->IsWindowVisible());
    m_sim->SetCreateRoleParam(1, 0, 0, 1, 0, false, 0, 0);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"SendNewwerAction 10101"});
    EXPECT_EQ(box(1).top, 20);
    EXPECT_EQ(box(6).top, 120);
    EXPECT_STREQ(SelectPro().GetControl(1058)->GetTipText(), "New");
    EXPECT_TRUE(SelectPro().GetEffectA().TestEffect("newserver_light"));
    EXPECT_TRUE(SelectPro().GetEffectB().TestEffect("bowman_nor"));
    m_sim->SetCreateRoleParam(0, 0, 0, 1, 0, false, 0, 0);
    EXPECT_STREQ(SelectPro().GetControl(1058)->GetTipText(), "Locked");
    EXPECT_TRUE(SelectPro().GetEffectA().TestEffect("spllock"));
    // A forced profession moves its box alone to string 6000002.
    m_sim->SetCreateRoleParam(0, 0, 0, 0, 9, false, 0, 0);
    EXPECT_EQ(SelectPro().GetProfession(), 30);
    EXPECT_EQ(box(3).left, 50);
    EXPECT_FALSE(SelectPro().GetControl(1049)->IsWindowVisible());
}

TEST_F(CreationFlowTest, TheMarksWait400MsOnlyWhenASwitchOpensTheArcher) {
    Open(SAMPLE_HEADS);
    const auto drawn = [this](DWORD ms) {
        const int before = host::JournalCount("effect3d.show");
        host::AdvanceClock(ms);
        m_sim->Show();
        return host::JournalCount("effect3d.show") - before;
    };
    m_sim->SetCreateRoleParam(0, 0, 1, 1, 0, false, 0, 0);
    EXPECT_EQ(drawn(16), 1) << "the ground only";
    EXPECT_EQ(drawn(390), 3) << "the ground and the two marks";
    m_sim->SetCreateRoleParam(1, 0, 0, 1, 0, false, 0, 0);
    EXPECT_EQ(drawn(16), 3);
}

TEST_F(CreationFlowTest, HidingTheCreationDialogRestoresTheVolumeAndForgetsTheHeads) {
    host::SetData("volume", "35");
    Open(SAMPLE_HEADS);
    EXPECT_EQ(host::GetDataInt("volume"), 100);
    CSelectHeadMgr::GetInstance();
    CreateRole().ShowWindow(SW_HIDE);
    EXPECT_EQ(host::GetDataInt("volume"), 35);
    EXPECT_FALSE(CSelectHeadMgr::HasInstance());
    EXPECT_FALSE(SelectPro().IsWindowVisible());
    EXPECT_EQ(host::JournalCount("sound.closeall"), 1);
}

TEST_F(CreationFlowTest, TheFlagShowsTheCurrentNationalitysPictureOrTheFallback) {
    Open(SAMPLE_HEADS);
    const auto flag = [this] {
        return std::string(static_cast<const CSimImage*>(SelectPro().GetControl(CDlgFlashSelectPro::IDC_FLAG))
                               ->GetAniTitle());
    };
    EXPECT_EQ(flag(), "Nationality_UNPic");
    host::SetData("nationality", "3 Nationality_Blue");
    m_sim->Show();
    EXPECT_EQ(flag(), "Nationality_Blue");
    host::SetData("nationality", "4");
    m_sim->Show();
    EXPECT_EQ(flag(), "Nationality_Blue") << "a nationality without a record keeps the picture";
}

} // namespace
