// Dialogs over dialogs: the first press into a dialog still waiting for its activation, panels the mouse
// passes through where they have no control, and controls that must not light up under another dialog.
#include <gmock/gmock.h>

#include "GuiTestFixture.h"

namespace luguitest {
namespace {

using testing::ElementsAre;

using CoveringDialogsTest = GuiTest;

// Inside dialog 2000's list where dialog 2001 lies over it with no control of its own.
constexpr POINT MAIN_LIST_UNDER_OTHER{300, 105};

TEST_F(CoveringDialogsTest, TheFirstPressActivatesAnInactiveDialogAndStillActs) {
    Start(LayoutWith("Dialog2001", "OpenInactive = 5000\n"));
    Open(m_other);
    ASSERT_TRUE(m_other.IsOpenInactive());
    ClickOn(m_other.m_button);
    EXPECT_THAT(m_other.TakeCalls(), ElementsAre("WindowProc 10027 0 0", "WindowProc 273 10 0", "OnButton"));
    host::AdvanceClock(6000);
    m_mgr->Process();
    EXPECT_TRUE(m_other.TakeCalls().empty()) << "activated once";
}

TEST_F(CoveringDialogsTest, AClickThroughDialogTakesTheMouseOnlyOnItsControls) {
    Start();
    Open(m_dlg);
    Open(m_other);
    Press(MAIN_LIST_UNDER_OTHER.x, MAIN_LIST_UNDER_OTHER.y);
    EXPECT_TRUE(m_dlg.TakePreTranslated().empty()) << "an ordinary dialog covers what lies under it";
    m_mgr->Release();
    m_mgr = nullptr;

    Start(LayoutWith("Dialog2001", "ClickThrough = 1\n"));
    Open(m_dlg);
    Open(m_other);
    Press(MAIN_LIST_UNDER_OTHER.x, MAIN_LIST_UNDER_OTHER.y);
    EXPECT_THAT(m_dlg.TakePreTranslated(), ElementsAre(static_cast<UINT>(WM_LBUTTONDOWN)));
    ClickOn(m_other.m_button);
    EXPECT_THAT(m_other.TakeCalls(), ElementsAre("WindowProc 273 10 0", "OnButton"));
}

TEST_F(CoveringDialogsTest, AButtonUnderAnotherDialogDoesNotLightUp) {
    // Dialog 2001 moved over 2000's button, its own button ending above the point.
    Start(LayoutWith("Dialog2001", "Rect = 100 40 300 200\n"));
    Open(m_dlg);
    Open(m_other);
    host::SetCursor(150, 85);
    Draw(m_dlg.m_button);
    EXPECT_FALSE(m_dlg.m_button.IsHover());
    m_other.ShowWindow(SW_HIDE);
    Draw(m_dlg.m_button);
    EXPECT_TRUE(m_dlg.m_button.IsHover());
}

} // namespace
} // namespace luguitest
