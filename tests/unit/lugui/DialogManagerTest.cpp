// The dialog manager: creating registered dialogs, showing and hiding them, routing the host's mouse and key
// messages by z-order, the attention and activation messages, reset and release.
#include <gmock/gmock.h>

#include "GuiTestFixture.h"
#include "lugui/LuGui_internal.h"

namespace luguitest {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

using DialogManagerTest = GuiTest;

// A point of dialog 2000 that no other dialog or control covers, and the same for 2001.
constexpr POINT ONLY_MAIN{105, 240};
constexpr POINT ONLY_OTHER{440, 290};

// ---- creation --------------------------------------------------------------------------------------

TEST_F(DialogManagerTest, RegistrationCreatesTheDialogInOrderAndLeavesItHidden) {
    m_dir.Write("FlashGui.ini", LAYOUT);
    StartManager("FlashGui.ini");
    ASSERT_TRUE(m_mgr->RegisterDialog(&m_dlg, 0, 0));
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("PreSetParam", "PreInitData", "DoDataExchange", "MessageMap"));
    EXPECT_FALSE(m_dlg.IsWindowVisible()) << "hidden even though its layout says Visible";
    EXPECT_EQ(m_dlg.GetGuiMgr(), m_mgr);
    EXPECT_EQ(host::JournalCount("gui.register"), 1);
    ASSERT_EQ(LuGui::CLuToolkit::Controls(m_dlg).size(), CONTROL_COUNT);
    EXPECT_EQ(LuGui::CLuToolkit::Controls(m_dlg).front(), &m_dlg.m_button)
        << "controls are kept in binding order";
    EXPECT_EQ(m_dlg.GetControl(IDC_EDIT), &m_dlg.m_edit);
    EXPECT_EQ(m_dlg.m_edit.GetParentDialog(), &m_dlg);
    EXPECT_EQ(m_dlg.m_edit.GetGuiMgr(), m_mgr);
    EXPECT_EQ(m_dlg.m_progress.GetMax(), 1000) << "PreSetParam ran before binding and was kept";
    EXPECT_FALSE(m_mgr->RegisterDialog(nullptr, 0, 0));

    m_dlg.ShowWindow(SW_SHOW);
    EXPECT_THAT(m_dlg.TakeCalls(), Contains("OnInitDialog")) << "initialisation waits for the first showing";
}

TEST_F(DialogManagerTest, RegisteringAgainRecreatesWithoutDuplicates) {
    Start();
    ASSERT_TRUE(m_mgr->RegisterDialog(&m_dlg, 0, 0));
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("PreSetParam", "PreInitData", "DoDataExchange", "MessageMap"));
    EXPECT_EQ(LuGui::CLuToolkit::Controls(m_dlg).size(), CONTROL_COUNT);
    Open(m_dlg);
    EXPECT_EQ(OpsOfKind(Frame(), "nine").size(), 1u) << "the manager lists the dialog once";
    ClickOn(m_dlg.m_button);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 273 10 0", "OnButton"));
}

// ---- showing ---------------------------------------------------------------------------------------

TEST_F(DialogManagerTest, ShowingRunsOnInitDialogEachTimeAndReportsOnlyChanges) {
    Start();
    EXPECT_FALSE(m_dlg.ShowWindow(SW_SHOW));
    EXPECT_TRUE(m_dlg.IsWindowVisible());
    EXPECT_THAT(m_dlg.TakeCalls(), UnorderedElementsAre("OnInitDialog", "WindowProc 24 1 0"));
    EXPECT_TRUE(m_dlg.ShowWindow(SW_SHOW));
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("OnInitDialog")) << "no message 24 when nothing changed";
    EXPECT_TRUE(m_dlg.ShowWindow(SW_HIDE));
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 24 0 0"));
    EXPECT_FALSE(m_dlg.ShowWindow(SW_HIDE));
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty());
}

TEST_F(DialogManagerTest, EnablingReportsOnlyChanges) {
    Start();
    EXPECT_FALSE(m_dlg.EnableWindow(TRUE));
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty()) << "already enabled";
    m_dlg.EnableWindow(FALSE);
    m_dlg.EnableWindow(FALSE);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 10 0 0"));
    EXPECT_TRUE(m_dlg.EnableWindow(TRUE));
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 10 1 0"));
}

TEST_F(DialogManagerTest, ManagerDrawsOnlyVisibleDialogsBottomFirst) {
    Start(LayoutWith("Dialog2001", "Background = Panel\n"));
    EXPECT_TRUE(Frame().empty()) << "registered dialogs start hidden";
    Open(m_other);
    Open(m_dlg);
    std::vector<host::DrawOp> backgrounds = OpsOfKind(Frame(), "nine");
    ASSERT_EQ(backgrounds.size(), 2u);
    EXPECT_EQ(backgrounds[0].x, 100) << "2000 was registered first, so it is below";
    EXPECT_EQ(backgrounds[1].x, 150);

    m_dlg.BringWindowToTop();
    backgrounds = OpsOfKind(Frame(), "nine");
    ASSERT_EQ(backgrounds.size(), 2u);
    EXPECT_EQ(backgrounds[1].x, 100);
}

// ---- mouse routing ---------------------------------------------------------------------------------

TEST_F(DialogManagerTest, ButtonClickRunsItsHandlerOnlyWhenReleasedOnIt) {
    Start();
    Open(m_dlg);
    EXPECT_EQ(ClickOn(m_dlg.m_button), 1);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 273 10 0", "OnButton"));

    const POINT pt = Centre(m_dlg.m_button);
    Press(pt.x, pt.y);
    EXPECT_TRUE(m_dlg.m_button.IsPressed());
    Lift(pt.x, pt.y + 100);
    EXPECT_FALSE(m_dlg.m_button.IsPressed());
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty()) << "released outside the button";

    Press(ONLY_MAIN.x, ONLY_MAIN.y);
    Lift(pt.x, pt.y);
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty()) << "pressed outside the button";
}

TEST_F(DialogManagerTest, CheckBoxTogglesBeforeItsCommand) {
    Start();
    Open(m_dlg);
    ASSERT_FALSE(m_dlg.m_check.GetCheckValue());
    ClickOn(m_dlg.m_check);
    EXPECT_TRUE(m_dlg.m_check.GetCheckValue());
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 273 11 0", "OnCheck 1"));
    ClickOn(m_dlg.m_check);
    EXPECT_FALSE(m_dlg.m_check.GetCheckValue());
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 273 11 0", "OnCheck 0"));
}

TEST_F(DialogManagerTest, UpperDialogTakesTheClickAndBringWindowToTopChangesWhichOneIsUpper) {
    Start();
    Open(m_dlg);
    Open(m_other);
    const POINT overlap = Centre(m_other.m_button); // also inside 2000, on none of its controls
    ASSERT_TRUE(m_dlg.HitTest(overlap));
    Click(overlap);
    EXPECT_THAT(m_other.TakeCalls(), Contains("OnButton"));
    EXPECT_THAT(m_other.TakePreTranslated(), ElementsAre(WM_LBUTTONDOWN, WM_LBUTTONUP));
    EXPECT_THAT(m_dlg.TakePreTranslated(), IsEmpty());

    m_dlg.BringWindowToTop();
    Click(overlap);
    EXPECT_THAT(m_dlg.TakePreTranslated(), ElementsAre(WM_LBUTTONDOWN, WM_LBUTTONUP));
    EXPECT_THAT(m_other.TakePreTranslated(), IsEmpty());
    EXPECT_THAT(m_other.TakeCalls(), ElementsAre("WindowProc 10029 0 0")) << "only told the press went away";
}

TEST_F(DialogManagerTest, TopMostDialogTakesTheClickThoughRegisteredFirst) {
    Start(LayoutWith("Dialog2000", "TopMost = 1\n"));
    EXPECT_TRUE(m_dlg.IsTopMost());
    EXPECT_FALSE(m_other.IsTopMost());
    Open(m_dlg);
    Open(m_other);
    m_other.BringWindowToTop();
    Click(Centre(m_other.m_button));
    EXPECT_THAT(m_dlg.TakePreTranslated(), ElementsAre(WM_LBUTTONDOWN, WM_LBUTTONUP));
    EXPECT_THAT(m_other.TakePreTranslated(), IsEmpty());
    EXPECT_THAT(m_other.TakeCalls(), IsEmpty());
}

TEST_F(DialogManagerTest, StaticTextLetsPressesThroughToTheControlUnderIt) {
    Start();
    Open(m_dlg);
    m_dlg.m_static.MoveWindow(10, 10, 80, 30); // where the button lies; the static is bound after it
    ASSERT_TRUE(m_dlg.m_static.HitTest(Centre(m_dlg.m_button)));
    ClickOn(m_dlg.m_button);
    EXPECT_THAT(m_dlg.TakeCalls(), Contains("OnButton"));
}

TEST_F(DialogManagerTest, HiddenDialogsReceiveNothing) {
    Start();
    EXPECT_EQ(ClickOn(m_dlg.m_button), 0) << "nothing consumed the click";
    Type('a');
    EXPECT_THAT(m_dlg.TakePreTranslated(), IsEmpty());
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty());

    Open(m_dlg);
    m_dlg.ShowWindow(SW_HIDE);
    ClickOn(m_dlg.m_button);
    EXPECT_THAT(m_dlg.TakePreTranslated(), IsEmpty());
}

TEST_F(DialogManagerTest, PreTranslateMessageCanStopAMessage) {
    Start();
    Open(m_dlg);
    m_dlg.m_bStopInPreTranslate = true;
    EXPECT_EQ(ClickOn(m_dlg.m_button), 1) << "a stopped message counts as consumed";
    EXPECT_THAT(m_dlg.TakePreTranslated(), ElementsAre(WM_LBUTTONDOWN, WM_LBUTTONUP));
    EXPECT_FALSE(m_dlg.m_button.IsPressed());
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty());
}

TEST_F(DialogManagerTest, KeysWithoutAFocusedEditGoToTheDialogPressedLastElseTheUpperOne) {
    Start();
    Open(m_dlg);
    Open(m_other);
    Type('a');
    EXPECT_THAT(m_other.TakePreTranslated(), ElementsAre(WM_CHAR));
    EXPECT_THAT(m_dlg.TakePreTranslated(), IsEmpty());
    Click(ONLY_MAIN);
    m_dlg.TakePreTranslated();
    Key(VK_HOME);
    EXPECT_THAT(m_dlg.TakePreTranslated(), ElementsAre(WM_KEYDOWN));
    EXPECT_THAT(m_other.TakePreTranslated(), IsEmpty());
}

// ---- attention and activation ----------------------------------------------------------------------

TEST_F(DialogManagerTest, PressElsewhereTellsThePreviouslyPressedDialog) {
    Start();
    Open(m_dlg);
    Open(m_other);
    Click(ONLY_MAIN);
    Click(ONLY_MAIN);
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty()) << "pressing the same dialog again tells nothing";

    Click(ONLY_OTHER);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 10029 0 0"));
    EXPECT_THAT(m_other.TakeCalls(), IsEmpty());

    Click(600, 600); // no dialog there
    EXPECT_THAT(m_other.TakeCalls(), ElementsAre("WindowProc 10029 0 0"));
    Click(ONLY_MAIN);
    EXPECT_THAT(m_other.TakeCalls(), IsEmpty()) << "the empty screen had the attention, not 2001";
}

TEST_F(DialogManagerTest, DialogOpeningInactiveIsActivatedOnceAfterItsDelay) {
    Start(LayoutWith("Dialog2001", "OpenInactive = 300\n"));
    host::SetClock(5000);
    m_other.ShowWindow(SW_SHOW);
    EXPECT_THAT(m_other.TakeCalls(), UnorderedElementsAre("OnInitDialog inactive", "WindowProc 24 1 0"));
    EXPECT_TRUE(m_other.IsOpenInactive());

    host::AdvanceClock(299);
    m_mgr->Process();
    EXPECT_THAT(m_other.TakeCalls(), IsEmpty());
    host::AdvanceClock(1);
    m_mgr->Process();
    EXPECT_THAT(m_other.TakeCalls(), ElementsAre("WindowProc 10027 0 0"));
    EXPECT_FALSE(m_other.IsOpenInactive());
    host::AdvanceClock(1000);
    m_mgr->Process();
    EXPECT_THAT(m_other.TakeCalls(), IsEmpty()) << "activation happens once per showing";

    m_other.ShowWindow(SW_HIDE);
    m_other.ShowWindow(SW_SHOW);
    EXPECT_TRUE(m_other.IsOpenInactive()) << "each showing opens inactive again";
    m_other.TakeCalls();
    host::AdvanceClock(300);
    m_mgr->Process();
    EXPECT_THAT(m_other.TakeCalls(), ElementsAre("WindowProc 10027 0 0"));
}

// ---- reset and release -----------------------------------------------------------------------------

TEST_F(DialogManagerTest, ResetResetsEveryDialogAndDropsTheFocus) {
    Start();
    Open(m_dlg);
    ClickOn(m_dlg.m_edit);
    ASSERT_TRUE(m_dlg.m_edit.IsFocus());
    m_dlg.TakeCalls();
    m_mgr->Reset(0);
    EXPECT_FALSE(m_dlg.m_edit.IsFocus());
    EXPECT_EQ(m_mgr->GetFocusEdit(), nullptr);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("Reset"));
    EXPECT_THAT(m_other.TakeCalls(), ElementsAre("Reset")) << "hidden dialogs are reset too";
}

TEST_F(DialogManagerTest, ReleaseLeavesTheCallersDialogsIntactAndDetached) {
    Start();
    Open(m_dlg);
    m_dlg.m_edit.SetWindowTextA("kept");
    ClickOn(m_dlg.m_edit);
    m_mgr->Release();
    m_mgr = nullptr;
    EXPECT_EQ(host::JournalCount("gui.release"), 1);

    EXPECT_EQ(LuGui::CLuToolkit::Controls(m_dlg).size(), CONTROL_COUNT);
    EXPECT_EQ(m_dlg.GetControl(IDC_BUTTON), &m_dlg.m_button);
    EXPECT_STREQ(m_dlg.m_edit.GetWindowTextA(), "kept");
    EXPECT_STREQ(m_dlg.m_button.GetWindowTextA(), "Go");
    EXPECT_EQ(m_dlg.m_button.GetWindowRect().left, 110);
    EXPECT_TRUE(m_dlg.IsWindowVisible());

    // Nothing may lead back to the released manager or to the layout it owned.
    EXPECT_EQ(m_dlg.GetGuiMgr(), nullptr);
    EXPECT_EQ(m_dlg.GetSafeHwnd(), nullptr);
    EXPECT_EQ(m_dlg.GetLayoutRecord(), nullptr);
    EXPECT_EQ(m_dlg.m_button.GetGuiMgr(), nullptr);
    EXPECT_EQ(m_dlg.m_button.GetLayoutRecord(), nullptr);
    EXPECT_FALSE(m_dlg.m_edit.IsFocus());
    m_dlg.ShowWindow(SW_HIDE);
    m_dlg.BringWindowToTop();
    EXPECT_FALSE(m_dlg.IsWindowVisible());
}

TEST_F(DialogManagerTest, ADialogDestroyedBeforeItsManagerIsForgotten) {
    Start(std::string(LAYOUT) + "\n[Dialog1903]\nRect = 900 700 50 50\n");
    auto extra = std::make_unique<TestDialog>(1903);
    Register(*extra);
    Open(*extra);
    EXPECT_NE(Press(910, 710), 0) << "the dialog takes presses on its rectangle";
    Lift(910, 710);
    extra.reset();
    // Frames and messages after the destruction reach nothing (ASan reports any use of the dialog).
    host::BeginFrame();
    m_mgr->Process();
    m_mgr->Show();
    EXPECT_EQ(Press(910, 710), 0);
    EXPECT_EQ(Lift(910, 710), 0);
}

} // namespace
} // namespace luguitest
