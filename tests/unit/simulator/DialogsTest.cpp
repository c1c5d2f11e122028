// Small dialogs driven through the simulator's window procedure: the message box, the back button, the
// backdrop.
#include <gtest/gtest.h>

#include <cstdlib>

#include "SimulatorFixture.h"
#include "hostlibs/HostCanvas.h"
#include "platform/Graphics.h"

namespace {

constexpr const char* LAYOUT = R"(
[Dialog1005]
Rect = 362 304 300 160
TopMost = 1
[Dialog1005.1018]
Rect = 60 20 224 80
MultiLine = 1
[Dialog1005.1001]
Rect = 110 116 80 28
[Dialog1005.1019]
Rect = 170 116 80 28
[Dialog1019]
Rect = 20 700 120 40
[Dialog1019.1021]
Rect = 0 0 120 40
[Dialog1004]
Rect = 0 0 1024 768
Background = Backdrop
)";

constexpr const char* STRINGS = "3110002=Leave?\n3110003=Forget?\n6660004=50 116\n6660005=110 116\n";

class DialogsTest : public SimulatorFixture {
protected:
    void SetUp() override {
        m_dir.Write("FlashGui.ini", LAYOUT);
        m_dir.Write("ani/Control.ani", "[Backdrop]\nFrame0=box 8 8 FF102030\n");
        host::ClearGraphicsCaches();
        Create(0, STRINGS);
    }
    /// A left click at a screen point, through the host's window procedure.
    void Click(int x, int y) {
        host::SetCursor(x, y);
        m_sim->WindowProc(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        m_sim->WindowProc(nullptr, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    /// The centre of a control on the screen.
    static POINT Centre(const LuGui::CLuBaseWindow& wnd) {
        const RECT rc = wnd.GetWindowRect();
        return POINT{(rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2};
    }
    void TearDown() override {
        SimulatorFixture::TearDown();
        host::ClearGraphicsCaches();
    }
    void ClickControl(LuGui::CLuDialog& dlg, UINT nId) {
        const LuGui::CLuCtrl* pCtrl = dlg.GetControl(nId);
        ASSERT_NE(pCtrl, nullptr);
        const POINT pt = Centre(*pCtrl);
        Click(pt.x, pt.y);
    }
};

TEST_F(DialogsTest, ExitQuestionHasTwoButtonsAndOkSendsExitOnce) {
    CDlgFlashConfirm& box = m_sim->Dialogs().m_dlgConfirm;
    box.Show(CDlgFlashConfirm::TYPE_EXIT, nullptr);
    EXPECT_STREQ(box.GetText(), "Leave?");
    const LuGui::CLuCtrl* pOk = box.GetControl(CDlgFlashConfirm::IDC_OK);
    const LuGui::CLuCtrl* pCancel = box.GetControl(CDlgFlashConfirm::IDC_CANCEL);
    EXPECT_EQ(pOk->GetWindowRect().left, 362 + 50);
    EXPECT_TRUE(pCancel->IsWindowVisible());
    ClickControl(box, CDlgFlashConfirm::IDC_OK);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CMD_EXITOK "});
    EXPECT_FALSE(box.IsWindowVisible());
    ClickControl(box, CDlgFlashConfirm::IDC_OK); // hidden: nothing more
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(DialogsTest, ClearAccountOkSendsClearAndCancelSendsNothing) {
    CDlgFlashConfirm& box = m_sim->Dialogs().m_dlgConfirm;
    box.Show(CDlgFlashConfirm::TYPE_CLEAR_ACCOUNT, nullptr);
    EXPECT_STREQ(box.GetText(), "Forget?");
    ClickControl(box, CDlgFlashConfirm::IDC_CANCEL);
    EXPECT_TRUE(TakeCommands().empty());
    EXPECT_FALSE(box.IsWindowVisible());
    box.Show(CDlgFlashConfirm::TYPE_CLEAR_ACCOUNT, nullptr);
    ClickControl(box, CDlgFlashConfirm::IDC_OK);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CMD_CLEARACCOUNT "});
}

TEST_F(DialogsTest, NameRefusalReopensCreationOnlyInTheStandardLayout) {
    CDlgFlashConfirm& box = m_sim->Dialogs().m_dlgConfirm;
    box.Show(CDlgFlashConfirm::TYPE_ERROR, "Error: Illegal Name!");
    EXPECT_EQ(box.GetType(), CDlgFlashConfirm::TYPE_NAME_REFUSED);
    ClickControl(box, CDlgFlashConfirm::IDC_OK);
    const auto commands = TakeCommands();
    ASSERT_FALSE(commands.empty());
    EXPECT_EQ(commands.back(), "CLOSE_BACK ");

    host::SetData("language", "English");
    box.Show(CDlgFlashConfirm::TYPE_ERROR, "Error: Illegal Name!");
    EXPECT_EQ(box.GetType(), CDlgFlashConfirm::TYPE_ERROR);
}

TEST_F(DialogsTest, BoxIsCentredOnTheMainWindowAtEverySize) {
    CDlgFlashConfirm& box = m_sim->Dialogs().m_dlgConfirm;
    const std::pair<int, int> sizes[] = {{800, 600}, {1024, 768}, {1280, 800}, {1920, 1080}};
    for (const auto& [nWidth, nHeight] : sizes) {
        Set("ResetMainPath", (std::to_string(nWidth) + "-" + std::to_string(nHeight) + "-1").c_str());
        for (int nKind :
             {CDlgFlashConfirm::TYPE_ERROR, CDlgFlashConfirm::TYPE_INPUT, CDlgFlashConfirm::TYPE_EXIT}) {
            box.Show(nKind, "x");
            const RECT rc = box.GetWindowRect();
            SCOPED_TRACE(std::to_string(nWidth) + "x" + std::to_string(nHeight) + " kind " +
                         std::to_string(nKind));
            EXPECT_GE(rc.left, 0);
            EXPECT_GE(rc.top, 0);
            EXPECT_LE(rc.right, nWidth);
            EXPECT_LE(rc.bottom, nHeight);
            EXPECT_LE(std::abs((rc.left + rc.right) - nWidth), 1) << "centred across";
            EXPECT_LE(std::abs((rc.top + rc.bottom) - nHeight), 1) << "centred down";
            const RECT ok = box.GetControl(CDlgFlashConfirm::IDC_OK)->GetWindowRect();
            EXPECT_TRUE(ok.left >= rc.left && ok.right <= rc.right && ok.top >= rc.top &&
                        ok.bottom <= rc.bottom)
                << "OK lies inside the box";
        }
    }
}

TEST_F(DialogsTest, HugeMainWindowSizesDoNotOverflowThePlacement) {
    Set("ResetMainPath", "2147483647-2147483647-0");
    m_sim->Dialogs().m_dlgConfirm.Show(CDlgFlashConfirm::TYPE_ERROR, "x");
    EXPECT_GT(m_sim->Dialogs().m_dlgConfirm.GetWindowRect().left, 0);
}

TEST_F(DialogsTest, BackButtonSendsThreeCommandsInOrder) {
    CDlgFlashBack& back = m_sim->Dialogs().m_dlgBack;
    back.ShowWindow(SW_SHOW);
    ClickControl(back, CDlgFlashBack::IDC_BACK);
    EXPECT_EQ(TakeCommands(),
              (std::vector<std::string>{"BURYING_POINT 416", "SendNewwerAction 10102", "RoleReturn "}));
}

TEST_F(DialogsTest, BackdropPlacesTheCameraAndDrawsItsLayoutBackground) {
    host::UseCanvas(host::CanvasKind::Recording);
    host::BeginFrame();
    m_sim->Dialogs().m_dlgBG.ShowWindow(SW_SHOW);
    m_sim->Show();
    int x = 0, y = 0, mode = 0;
    double distance = 0;
    CMyBitmap::GameCameraGet(x, y, distance, mode);
    EXPECT_EQ(x, 512);
    EXPECT_EQ(y, 384);
    EXPECT_DOUBLE_EQ(distance, -1000.0);
    EXPECT_EQ(mode, 3);
    const auto ops = host::GetRecordedOps();
    ASSERT_FALSE(ops.empty());
    EXPECT_EQ(ops[0].kind, "nine");
    EXPECT_EQ(ops[0].name, "Backdrop");
}

} // namespace
