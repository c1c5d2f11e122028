// Controls of the toolkit: lists, progress bars, tips, what dialogs and controls draw in which order, state
// frames of buttons and check boxes, and the effect objects windows own.
#include <gmock/gmock.h>

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

TEST_F(ControlsTest, ListKeepsItsRowsAndCopiesTheirText) {
    Start();
    LuGui::CLuList& list = m_dlg.m_list;
    EXPECT_EQ(list.AddString("alpha"), 0);
    EXPECT_EQ(list.AddString("beta"), 1);
    EXPECT_EQ(list.AddString(nullptr), 2);
    EXPECT_EQ(list.GetCount(), 3);
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_STREQ(list.GetText(1), "beta");
    EXPECT_STREQ(list.GetText(2), "");
    EXPECT_STREQ(list.GetText(3), "") << "no such row";

    char buf[4] = "xyz";
    EXPECT_EQ(list.GetText(0, buf, sizeof buf), 3) << "cut to the buffer, terminated";
    EXPECT_STREQ(buf, "alp");
    EXPECT_EQ(list.GetText(-1, buf, sizeof buf), -1);
    EXPECT_EQ(list.GetText(5, buf, sizeof buf), -1);

    list.SetCurSel(1);
    EXPECT_EQ(list.GetCurSel(), 1);
    list.SetCurSel(7);
    EXPECT_EQ(list.GetCurSel(), -1) << "a row that does not exist chooses nothing";
    list.SetCurSel(0);
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetCurSel(), -1);
}

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

TEST_F(ControlsTest, ClickOnADeleteMarkTellsTheDialogAndKeepsTheChoice) {
    Start();
    Open(m_dlg);
    LuGui::CLuList& list = m_dlg.m_list;
    list.AddString("one");
    list.AddString("two");
    list.SetCurSel(0);
    list.SetMoveClose(100, 4); // marks at (370, 64) and (370, 84), 12 pixels square
    Click(375, 88);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 331 13 1"));
    EXPECT_EQ(list.GetCurSel(), 0);
    Click(369, 70);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 336 13 0")) << "just left of the mark";
    Click(381, 75);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre("WindowProc 331 13 0"));
}

TEST_F(ControlsTest, ListDrawsOnlyTheRowsThatFitAndHighlightsTheChosenOne) {
    Start();
    Open(m_dlg);
    LuGui::CLuList& list = m_dlg.m_list;
    list.AddString("one");
    list.AddString("two");
    list.AddString("three");
    list.SetItemColors(0xFF0000FF, 0xFFFF0000);
    list.SetCurSel(1);
    host::SetCursor(0, 0);
    const std::vector<host::DrawOp> ops = OpsOfKind(Draw(list), "text");
    ASSERT_EQ(ops.size(), 2u) << "the third row would pass the bottom edge";
    EXPECT_EQ(ops[0].text, "one");
    EXPECT_EQ(ops[0].colour, 0xFF0000FFu);
    EXPECT_EQ(ops[1].text, "two");
    EXPECT_EQ(ops[1].colour, 0xFFFF0000u);
    EXPECT_EQ(ops[1].y, ops[0].y + list.GetRowHeight());

    host::SetCursor(300, 65);
    EXPECT_EQ(OpsOfKind(Draw(list), "text")[0].colour, 0xFFFF0000u) << "the row under the cursor";
    EXPECT_EQ(list.GetHoverRow(), 0);

    Click(300, 105);
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty()) << "a row that is not drawn cannot be clicked";
    EXPECT_EQ(list.GetCurSel(), 1);
}

// ---- progress bars ---------------------------------------------------------------------------------

// The progress bar of dialog 2000 covers (110, 160)-(310, 170); the dialog sets its range to 0..1000.

TEST_F(ControlsTest, ProgressClampsItsValueAndFillsInProportion) {
    Start();
    LuGui::CLuProgress& bar = m_dlg.m_progress;
    EXPECT_EQ(bar.GetMin(), 0);
    EXPECT_EQ(bar.GetMax(), 1000);
    bar.SetPos(250);
    EXPECT_EQ(bar.GetPos(), 250);
    EXPECT_EQ(bar.GetFilledWidth(), bar.GetWidth() / 4);
    bar.SetPos(1500);
    EXPECT_EQ(bar.GetPos(), 1000);
    EXPECT_EQ(bar.GetFilledWidth(), bar.GetWidth());
    bar.SetPos(-10);
    EXPECT_EQ(bar.GetPos(), 0);
    EXPECT_EQ(bar.GetFilledWidth(), 0);

    bar.PreSetParam(100, 200, 1, 150);
    EXPECT_EQ(bar.GetPos(), 150);
    EXPECT_EQ(bar.GetFilledWidth(), bar.GetWidth() / 2);
    bar.PreSetParam(10, 10, 1, 5);
    bar.SetPos(50);
    EXPECT_EQ(bar.GetPos(), 10);
    EXPECT_EQ(bar.GetFilledWidth(), 0) << "an empty range draws an empty bar";
}

TEST_F(ControlsTest, ProgressFillsWithItsSecondFrameOrElseABlock) {
    Start();
    LuGui::CLuProgress& bar = m_dlg.m_progress;
    bar.SetPos(500);
    std::vector<host::DrawOp> ops = Draw(bar);
    EXPECT_THAT(Outline(ops), ElementsAre("ani Bar2#0", "ani Bar2#1"));
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[0].w, 200);
    EXPECT_EQ(ops[1].x, 110);
    EXPECT_EQ(ops[1].w, 100);
    EXPECT_EQ(ops[1].h, 10);

    bar.SetBackGroundAni("Bar1");
    bar.SetFontColor(0xFF00FF00);
    ops = Draw(bar);
    EXPECT_THAT(Outline(ops), ElementsAre("ani Bar1#0", "block"));
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[1].x, 110);
    EXPECT_EQ(ops[1].w, 100);
    EXPECT_EQ(ops[1].colour, 0xFF00FF00u);

    bar.PreSetParam(0, 1000, 1, 250, "Tick");
    ops = Draw(bar);
    EXPECT_THAT(Outline(ops), ElementsAre("ani Bar1#0", "ani Tick#0")) << "an explicit fill picture";
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[1].w, 50);

    bar.SetPos(0);
    EXPECT_THAT(Outline(Draw(bar)), ElementsAre("ani Bar1#0")) << "nothing filled, nothing drawn over";
}

// ---- tips ------------------------------------------------------------------------------------------

TEST_F(ControlsTest, TipIsDrawnOverTheDialogsOnceThenForgotten) {
    Start();
    Open(m_dlg);
    host::SetCursor(0, 0);
    m_mgr->ShowTip("Hint", 20, 30, 0xFFFFFF00);
    m_mgr->ShowTip("", 40, 50, 0xFFFFFF00);
    std::vector<host::DrawOp> ops = Frame();
    ASSERT_GE(ops.size(), 3u);
    EXPECT_EQ(ops.front().kind, "nine") << "the dialogs come first";
    const host::DrawOp& back = ops[ops.size() - 2];
    const host::DrawOp& text = ops.back();
    EXPECT_EQ(back.kind, "block");
    EXPECT_LT(back.x, 20);
    EXPECT_LT(back.y, 30);
    EXPECT_EQ(text.kind, "text");
    EXPECT_EQ(text.text, "Hint");
    EXPECT_EQ(text.x, 20);
    EXPECT_EQ(text.y, 30);
    EXPECT_EQ(text.colour, 0xFFFFFF00u);
    EXPECT_EQ(OpsOfKind(ops, "block").size(), 1u) << "an empty tip is no tip";

    ops = Frame();
    EXPECT_THAT(Texts(ops), testing::Not(testing::Contains("Hint")));
    EXPECT_TRUE(OpsOfKind(ops, "block").empty());
}

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

TEST_F(ControlsTest, DialogDrawsItsBackgroundThenItsVisibleControlsInBindingOrder) {
    Start();
    Open(m_dlg);
    m_dlg.m_edit.SetWindowTextA("typed");
    m_dlg.m_list.AddString("row");
    host::SetCursor(0, 0);
    const std::vector<host::DrawOp> ops = Frame();
    EXPECT_THAT(Outline(ops), ElementsAre("nine Panel", "ani Btn4#0", "text Go", "ani Tick#0", "text typed",
                                          "text row", "ani Bar2#0", "text Hello"));
    ASSERT_FALSE(ops.empty());
    EXPECT_EQ(ops[0].x, 100);
    EXPECT_EQ(ops[0].y, 50);
    EXPECT_EQ(ops[0].w, 300);
    EXPECT_EQ(ops[0].h, 200);
    ASSERT_GE(ops.size(), 2u);
    EXPECT_EQ(ops[1].x, 110) << "control backgrounds cover the control";
    EXPECT_EQ(ops[1].w, 80);
}

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

TEST_F(ControlsTest, CheckBoxDrawsItsValue) {
    Start();
    Open(m_dlg);
    host::SetCursor(0, 0);
    EXPECT_EQ(DrawnFrame(Frame(), "Tick"), 0);
    ClickOn(m_dlg.m_check);
    EXPECT_EQ(DrawnFrame(Frame(), "Tick"), 1) << "checked, and hover does not change it";
    m_dlg.m_check.SetChecked(false);
    EXPECT_EQ(DrawnFrame(Frame(), "Tick"), 0);
}

TEST_F(ControlsTest, StaticTextFollowsItsAlignmentAndLines) {
    LuGui::CLuStatic label;
    label.MoveWindow(10, 20, 100, 20);
    label.SetFontSize(7, 14);
    label.SetWindowTextA("Hi");
    EXPECT_TRUE(Draw(label).empty()) << "an unbound control starts hidden";
    label.ShowWindow(SW_SHOW);
    const int nWidth = CMyBitmap::GetStringWidth("Hi", 14);
    ASSERT_GT(nWidth, 0);

    std::vector<host::DrawOp> ops = Draw(label);
    ASSERT_EQ(ops.size(), 1u);
    EXPECT_EQ(ops[0].kind, "text");
    EXPECT_EQ(ops[0].x, 10);
    EXPECT_EQ(ops[0].y, 20 + (20 - 14) / 2) << "centred vertically";
    EXPECT_EQ(ops[0].size, 14);
    label.SetAlign(LuGui::LU_ALIGN_CENTER);
    EXPECT_EQ(Draw(label).at(0).x, 10 + (100 - nWidth) / 2);
    label.SetAlign(LuGui::LU_ALIGN_RIGHT);
    EXPECT_EQ(Draw(label).at(0).x, 110 - nWidth);

    label.SetMultiLine(1);
    ops = Draw(label);
    ASSERT_EQ(ops.size(), 1u);
    EXPECT_EQ(ops[0].kind, "strres");
    EXPECT_EQ(ops[0].x, 10);
    EXPECT_EQ(ops[0].y, 20);
}

class MarkedImage : public LuGui::CLuImage {
public:
    void DrawImage() override {
        const RECT rc = GetWindowRect();
        CMyBitmap::ShowBlock(rc, 0xFF445566);
    }
};

TEST_F(ControlsTest, ImageDrawsItsBackgroundThenItsPictureThenItsText) {
    MarkedImage image;
    image.MoveWindow(0, 0, 30, 30);
    image.SetBackGroundAni("Btn1");
    image.SetWindowTextA("caption");
    image.ShowWindow(SW_SHOW);
    EXPECT_THAT(Outline(Draw(image)), ElementsAre("ani Btn1#0", "block", "text caption"));
    image.SetHideState(true);
    EXPECT_TRUE(Draw(image).empty());
}

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

TEST_F(ControlsTest, EffectsDrawUnderAndOverAndAreReleasedByTheirWindow) {
    constexpr DWORD UNDER = 0xFF0000AA;
    constexpr DWORD OVER = 0xFF0000BB;
    int nReleased = 0;
    auto button = std::make_unique<LuGui::CLuButton>();
    button->MoveWindow(10, 20, 30, 40);
    button->SetBackGroundAni("Btn4");
    button->SetWindowTextA("Go");
    button->ShowWindow(SW_SHOW);
    button->SetBgEffect(new SpyEffect(UNDER, nReleased));
    button->SetFgEffect(new SpyEffect(OVER, nReleased));

    const std::vector<host::DrawOp> ops = Draw(*button);
    EXPECT_THAT(Outline(ops), ElementsAre("block", "ani Btn4#0", "block", "text Go"));
    ASSERT_EQ(ops.size(), 4u);
    EXPECT_EQ(ops[0].colour, UNDER);
    EXPECT_EQ(ops[0].x, 10);
    EXPECT_EQ(ops[0].y, 20);
    EXPECT_EQ(ops[2].colour, OVER);

    auto* pReplacement = new SpyEffect(UNDER, nReleased);
    button->SetBgEffect(pReplacement);
    EXPECT_EQ(nReleased, 1) << "the replaced object is released";
    button->SetBgEffect(pReplacement);
    EXPECT_EQ(nReleased, 1) << "setting the same object again keeps it";
    EXPECT_EQ(button->GetBgEffect(), pReplacement);
    button.reset();
    EXPECT_EQ(nReleased, 3) << "both objects go with the window";
}

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
