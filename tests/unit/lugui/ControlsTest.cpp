// Controls of the toolkit: lists, progress bars, tips, what dialogs and controls draw in which order, state
// frames of buttons and check boxes, and the effect objects windows own.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <memory>

#include "GuiTestFixture.h"
#include "platform/Gui3DEffect.h"
#include "platform/LuImage.h"

namespace luguitest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ControlsTest = GuiTest;

/// The frame drawn for a background title in a frame's operations, -1 when it was not drawn.
int DrawnFrame(const std::vector<host::DrawOp>& ops, const std::string& title) {
    for (const host::DrawOp& op : ops)
        if (op.kind == "ani" && op.name == title) return op.frame;
    return -1;
}

std::vector<std::string> Texts(const std::vector<host::DrawOp>& ops) {
    std::vector<std::string> texts;
    for (const host::DrawOp& op : OpsOfKind(ops, "text")) texts.push_back(op.text);
    return texts;
}

// ---- lists -----------------------------------------------------------------------------------------

// The list of dialog 2000 covers (270, 60)-(390, 110): rows of 20 pixels at 60, 80 and, cut by the bottom
// edge, 100.

TEST_F(ControlsTest, ClickOnARowChoosesItAndTellsTheDialog) {
    Start();
    Open(m_dlg);
    LuGui::CLuList& list = m_dlg.m_list;
    list.AddString("one");
    list.AddString("two");
    Click(300, 90);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 336 13 1"));
    Click(300, 60);
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 336 13 0"));

    list.ResetContent();
    Click(300, 65);
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty()) << "no row there any more";
}

TEST_F(ControlsTest, ARowsOwnStyleDrawsItsPictureIconAndColourUntilTheContentIsReset) {
    Start();
    Open(m_dlg);
    LuGui::CLuList& list = m_dlg.m_list;
    list.AddString("one");
    list.AddString("two");
    list.SetItemStyle(1, 0xFF112233, "Panel", "Btn1", POINT{50, 2});
    list.SetItemStyle(5, 0xFF445566, "Nowhere", "", POINT{0, 0}); // no such row: nothing
    host::SetCursor(0, 0);
    std::vector<host::DrawOp> ops = Frame();
    std::map<std::string, DWORD> colours;
    for (const host::DrawOp& op : OpsOfKind(ops, "text")) colours[op.text] = op.colour;
    EXPECT_EQ(colours["two"], 0xFF112233u);
    EXPECT_NE(colours["one"], 0xFF112233u);
    EXPECT_EQ(DrawnFrame(ops, "Nowhere"), -1);
    ASSERT_EQ(DrawnFrame(ops, "Btn1"), 0);
    for (const host::DrawOp& op : ops) {
        if (op.name == "Btn1") {
            EXPECT_EQ(op.x, list.GetWindowRect().left + 50) << "at the row's offset";
        }
    }
    list.ResetContent();
    list.AddString("again");
    EXPECT_EQ(DrawnFrame(Frame(), "Panel"), -1) << "styles go with the rows";
}

// ---- progress bars ---------------------------------------------------------------------------------

// The progress bar of dialog 2000 covers (110, 160)-(310, 170); the dialog sets its range to 0..1000.

// ---- tips ------------------------------------------------------------------------------------------

TEST_F(ControlsTest, ControlTipShowsWhileTheCursorRestsOnTheControl) {
    Start(LayoutWith("Dialog2000.15", "Tip = Greeting\n"));
    Open(m_dlg);
    const RECT rc = m_dlg.m_static.GetWindowRect();
    host::SetCursor(rc.left + 1, rc.top + 1);
    std::vector<host::DrawOp> ops = Frame();
    ASSERT_FALSE(ops.empty());
    EXPECT_EQ(ops.back().text, "Greeting");
    EXPECT_EQ(ops.back().x, rc.left);
    EXPECT_GT(ops.back().y, rc.bottom) << "under the control";

    host::SetCursor(rc.right + 1, rc.top + 1);
    EXPECT_THAT(Texts(Frame()), testing::Not(testing::Contains("Greeting")));
    host::SetCursor(rc.left + 1, rc.top + 1);
    m_dlg.ShowWindow(SW_HIDE);
    EXPECT_TRUE(Frame().empty());
}

// ---- drawing order and states ----------------------------------------------------------------------

TEST_F(ControlsTest, HiddenControlsAndHiddenStatesDrawNothingAndTakeNoClicks) {
    Start();
    Open(m_dlg);
    host::SetCursor(0, 0);
    m_dlg.m_static.ShowWindow(SW_HIDE);
    m_dlg.m_button.SetHideState(true);
    EXPECT_THAT(Outline(Frame()), ElementsAre("nine Panel", "ani Tick#0", "ani Bar2#0"));
    EXPECT_EQ(m_dlg.m_button.Show(), 0);
    EXPECT_EQ(m_dlg.m_static.Show(), 0);
    ClickOn(m_dlg.m_button);
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty());

    m_dlg.m_button.SetHideState(false);
    m_dlg.SetHideState(true);
    m_dlg.TakePreTranslated();
    EXPECT_TRUE(Frame().empty());
    EXPECT_EQ(ClickOn(m_dlg.m_button), 0) << "a dialog in its hidden state is not hit";
    EXPECT_THAT(m_dlg.TakePreTranslated(), IsEmpty());
    EXPECT_THAT(m_dlg.TakeCalls(), testing::Not(testing::Contains("OnButton")));
}

// A window keeps its screen rectangle and background animation between frames; both must follow changes made
// after a frame was drawn.
TEST_F(ControlsTest, AButtonDrawnOnceFollowsItsDialogsMoveAndANewBackground) {
    Start();
    Open(m_dlg);
    LuGui::CLuButton& btn = m_dlg.m_button;
    host::SetCursor(0, 0);
    const RECT before = btn.GetWindowRect();
    ASSERT_EQ(DrawnFrame(Frame(), "Btn4"), 0);

    m_dlg.MoveWindow(m_dlg.GetWindowRect().left + 7, m_dlg.GetWindowRect().top + 5, m_dlg.GetWidth(),
                     m_dlg.GetHeight());
    const RECT after = btn.GetWindowRect();
    EXPECT_EQ(after.left, before.left + 7);
    EXPECT_EQ(after.bottom, before.bottom + 5);
    std::vector<host::DrawOp> ops = Frame();
    const auto drawn =
        std::find_if(ops.begin(), ops.end(), [](const host::DrawOp& op) { return op.name == "Btn4"; });
    ASSERT_NE(drawn, ops.end());
    EXPECT_EQ(drawn->x, after.left) << "drawn where the button is now";
    EXPECT_EQ(drawn->y, after.top);

    btn.SetBackGroundAni("Btn1");
    ops = Frame();
    EXPECT_EQ(DrawnFrame(ops, "Btn4"), -1);
    EXPECT_EQ(DrawnFrame(ops, "Btn1"), 0);

    // A style's own offset moves the background animation further than the window's background offset.
    btn.SetBackGroundOffset(2, 3);
    btn.SetBackGroundAniOffset(4, -5);
    ops = Frame();
    const auto moved =
        std::find_if(ops.begin(), ops.end(), [](const host::DrawOp& op) { return op.name == "Btn1"; });
    ASSERT_NE(moved, ops.end());
    EXPECT_EQ(moved->x, after.left + 6);
    EXPECT_EQ(moved->y, after.top - 2);
}

TEST_F(ControlsTest, ButtonFramesFollowHoverPressAndDisabledWhenTheAnimationHasThem) {
    Start();
    Open(m_dlg);
    LuGui::CLuButton& btn = m_dlg.m_button;
    const POINT on = Centre(btn);
    host::SetCursor(0, 0);
    EXPECT_EQ(DrawnFrame(Frame(), "Btn4"), 0);
    host::SetCursor(on.x, on.y);
    EXPECT_EQ(DrawnFrame(Frame(), "Btn4"), 1) << "hover";
    Press(on.x, on.y);
    EXPECT_EQ(DrawnFrame(Frame(), "Btn4"), 2) << "pressed";
    host::SetCursor(0, 0);
    EXPECT_EQ(DrawnFrame(Frame(), "Btn4"), 0) << "pressed but the cursor went away";
    Lift(0, 0);
    btn.EnableWindow(FALSE);
    host::SetCursor(on.x, on.y);
    EXPECT_EQ(DrawnFrame(Frame(), "Btn4"), 3) << "disabled, whatever the cursor";

    btn.SetBackGroundAni("Btn1");
    EXPECT_EQ(DrawnFrame(Frame(), "Btn1"), 0) << "an animation without a disabled frame";
    btn.EnableWindow(TRUE);
    EXPECT_EQ(DrawnFrame(Frame(), "Btn1"), 0) << "an animation without a hover frame";
}

class MarkedImage : public LuGui::CLuImage {
public:
    void DrawImage() override {
        const RECT rc = GetWindowRect();
        CMyBitmap::ShowBlock(rc, 0xFF445566);
    }
};

// ---- effects ---------------------------------------------------------------------------------------

/// An effect object that draws a small block in its colour and counts its releases.
class SpyEffect final : public CGui3DEffect {
public:
    SpyEffect(DWORD dwColour, int& nReleased) : m_dwColour(dwColour), m_nReleased(nReleased) {}

    bool Add(const char*, int, int) override { return true; }
    bool Delete(const char*) override { return false; }
    void Clear() override {}
    bool TestEffect(const char*) const override { return false; }
    void EverPlay(int) override {}
    void SetShowRect(const RECT&) override {}
    RECT GetShowRect() const override { return RECT{0, 0, 4, 4}; }
    void Show(int x, int y) override { CMyBitmap::ShowBlock(RECT{x, y, x + 4, y + 4}, m_dwColour); }
    int GetAmount() const override { return 1; }
    void Release() override {
        ++m_nReleased;
        delete this;
    }

private:
    ~SpyEffect() override = default;

    DWORD m_dwColour;
    int& m_nReleased;
};

TEST_F(ControlsTest, DialogReleasesItsEffectsAtDestructionNotAtTheManagersRelease) {
    Start();
    int nReleased = 0;
    auto dialog = std::make_unique<TestDialog>(IDD_OTHER);
    Register(*dialog);
    dialog->SetFgEffect(new SpyEffect(0xFF000001, nReleased));
    dialog->m_button.SetBgEffect(new SpyEffect(0xFF000002, nReleased));
    m_mgr->Release();
    m_mgr = nullptr;
    EXPECT_EQ(nReleased, 0);
    dialog.reset();
    EXPECT_EQ(nReleased, 2);
}

} // namespace
} // namespace luguitest
