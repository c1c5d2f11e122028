// Control wrappers on a small test dialog: sub-ground and effects of buttons, edit selection and placeholder,
// image kinds and faces, static origin and multi-line layout.
#include <gtest/gtest.h>

#include "LogCapture.h"
#include "TempClientDir.h"
#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimEdit.h"
#include "controls/SimImage.h"
#include "controls/SimStatic.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "platform/Gui3DEffect.h"
#include "platform/LuGui.h"

namespace {

constexpr UINT IDD_TEST = 1900;
constexpr UINT IDC_BUTTON = 10;
constexpr UINT IDC_EDIT = 11;
constexpr UINT IDC_IMAGE = 12;
constexpr UINT IDC_STATIC = 13;
constexpr UINT IDC_BARE_EDIT = 14;
constexpr UINT IDC_BARE_BUTTON = 15;

constexpr const char* LAYOUT = R"(
[Dialog1900]
Rect = 100 50 400 300
[Dialog1900.10]
Kind = Button
Rect = 10 20 80 30
Background = Btn
SubGround = Glow
SubGroundOffsetX = 3
SubGroundOffsetY = -2
Text = Go
[Dialog1900.11]
Kind = Edit
Rect = 10 60 140 24
Font = 8 16
LostFocusTipFontSize = 12
LostFocusTipFontColor = FF808080
[Dialog1900.12]
Kind = Image
Rect = 200 20 64 64
[Dialog1900.13]
Kind = Static
Rect = 10 100 100 60
MultiLine = 1
Wrap = 1
Align = center
Font = 0
)";

constexpr const char* CONTROL_ANI = R"(
[Btn]
Frame0=box 80 30 FF202020
[Glow]
Frame0=box 20 10 FFFFFF00
[Pic]
Frame0=box 10 10 FF00FF00
Frame1=box 12 12 FF0000FF
)";

constexpr const char* FACE_ANI = R"(
[Face510001]
Frame0=box 40 40 FF999999
[Face7]
Frame0=box 40 40 FF777777
)";

class TestDialog : public CSimDialog {
public:
    TestDialog() : CSimDialog(IDD_TEST) {}
    void DoDataExchange(LuGui::CDataExchange* pDX) override {
        CSimDialog::DoDataExchange(pDX);
        LuGui::DDX_Control(pDX, IDC_BUTTON, m_button);
        LuGui::DDX_Control(pDX, IDC_EDIT, m_edit);
        LuGui::DDX_Control(pDX, IDC_IMAGE, m_image);
        LuGui::DDX_Control(pDX, IDC_STATIC, m_static);
        LuGui::DDX_Control(pDX, IDC_BARE_EDIT, m_bareEdit);
        LuGui::DDX_Control(pDX, IDC_BARE_BUTTON, m_bareButton);
        m_nBareEditInit = m_bareEdit.PreInitData();
    }
    CSimButton m_button;
    CSimEdit m_edit;
    CSimImage m_image;
    CSimStatic m_static;
    CSimEdit m_bareEdit;
    CSimButton m_bareButton;
    BOOL m_nBareEditInit = TRUE;
};

class ControlWrappersTest : public testing::Test {
protected:
    void SetUp() override {
        m_dir.Write("FlashGui.ini", LAYOUT);
        m_dir.Write("ani/Control.ani", CONTROL_ANI);
        m_dir.Write("ani/playerface.ani", FACE_ANI);
        host::ClearGraphicsCaches();
        host::UseCanvas(host::CanvasKind::Recording);
        m_mgr = LuGui::CreateNewGuiMgr();
        m_mgr->Init(nullptr, 0, 0, "FlashGui.ini");
        m_mgr->RegisterDialog(&m_dlg, 0, 0);
        m_dlg.ShowWindow(SW_SHOW);
    }
    void TearDown() override {
        m_mgr->Release();
        host::ClearGraphicsCaches();
    }
    /// One frame of the manager; the recorded operations as text.
    std::string Frame() {
        host::BeginFrame();
        m_mgr->Process();
        m_mgr->Show();
        return host::DumpRecordedOps();
    }
    std::vector<host::DrawOp> DrawControl(LuGui::CLuBaseWindow& wnd) {
        host::BeginFrame();
        wnd.Show();
        return host::GetRecordedOps();
    }
    void Press(int x, int y) {
        host::SetCursor(x, y);
        host::SetKeyDown(VK_LBUTTON, true);
        m_mgr->MsgProc(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    }
    void Drag(int x, int y) {
        host::SetCursor(x, y);
        m_mgr->MsgProc(nullptr, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y));
    }
    void Release(int x, int y) {
        host::SetKeyDown(VK_LBUTTON, false);
        m_mgr->MsgProc(nullptr, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }

    TempClientDir m_dir;
    TestDialog m_dlg;
    LuGui::ILuGuiMgr* m_mgr = nullptr;
};

// ---- buttons -------------------------------------------------------------------------------------

TEST_F(ControlWrappersTest, ButtonDrawsBackgroundSubGroundThenTextAndEffectsAtTwiceTheirOffsets) {
    CSimButton& btn = m_dlg.m_button; // screen rect 110,70 - 190,100
    EXPECT_STREQ(btn.GetSubGround(), "Glow");
    btn.AddBgEffect("under", true);
    btn.AddFgEffect("over", false);
    btn.SetBgEffectOffset(1, 2);
    btn.SetFgEffectOffset(3, 4);
    const auto ops = DrawControl(btn);
    ASSERT_EQ(ops.size(), 5u);
    EXPECT_EQ(ops[0].kind, "effect");
    EXPECT_EQ(ops[0].name, "under");
    EXPECT_EQ(ops[0].x, 110 + 2);
    EXPECT_EQ(ops[0].y, 70 + 4);
    EXPECT_EQ(ops[1].kind, "ani");
    EXPECT_EQ(ops[1].name, "Btn");
    EXPECT_EQ(ops[2].name, "Glow");
    EXPECT_EQ(ops[2].x, 110 + 3);
    EXPECT_EQ(ops[2].y, 70 - 2);
    EXPECT_EQ(ops[3].kind, "effect");
    EXPECT_EQ(ops[3].x, 110 + 6);
    EXPECT_EQ(ops[3].y, 70 + 8);
    EXPECT_EQ(ops[4].kind, "text");
    EXPECT_EQ(ops[4].text, "Go");
}

TEST_F(ControlWrappersTest, UnknownSubGroundTitleDrawsNothingAndHiddenButtonsNothingAtAll) {
    m_dlg.m_button.SetSubGround("NoSuchTitle");
    m_dlg.m_button.SetSubGround(nullptr);
    EXPECT_STREQ(m_dlg.m_button.GetSubGround(), "NoSuchTitle");
    auto ops = DrawControl(m_dlg.m_button);
    ASSERT_EQ(ops.size(), 2u); // frame and text
    m_dlg.m_button.SetHideState(true);
    EXPECT_TRUE(DrawControl(m_dlg.m_button).empty());
    EXPECT_EQ(m_dlg.m_button.Show(), 0);
}

TEST_F(ControlWrappersTest, EffectsAreAddedOnceTestedAndDeleted) {
    CSimButton& btn = m_dlg.m_button;
    EXPECT_FALSE(btn.TestFgEffect("spark")); // no effect object yet
    btn.AddFgEffect("spark", false);
    btn.AddFgEffect("spark", false);
    ASSERT_NE(btn.GetFgEffect(), nullptr);
    EXPECT_EQ(btn.GetFgEffect()->GetAmount(), 1);
    EXPECT_EQ(btn.GetFgEffect()->GetShowRect().left, 110);
    EXPECT_TRUE(btn.TestFgEffect("spark"));
    EXPECT_FALSE(btn.TestBgEffect("spark"));
    btn.AddFgEffect("flash", false);
    btn.DeleteFgEffect("spark");
    EXPECT_FALSE(btn.TestFgEffect("spark"));
    EXPECT_TRUE(btn.TestFgEffect("flash"));
    btn.DeleteFgEffect(nullptr);
    EXPECT_EQ(btn.GetFgEffect()->GetAmount(), 0);
    btn.DeleteBgEffect("anything"); // no background object: nothing happens
    EXPECT_EQ(btn.GetBgEffect(), nullptr);
}

TEST_F(ControlWrappersTest, EmptyEffectNamesAreReportedAndIgnored) {
    CSimButton& btn = m_dlg.m_button;
    btn.AddBgEffect("", true);
    btn.AddFgEffect(nullptr, true);
    EXPECT_FALSE(btn.TestBgEffect(""));
    EXPECT_FALSE(btn.TestFgEffect(nullptr));
    EXPECT_EQ(btn.GetBgEffect(), nullptr);
    EXPECT_EQ(testlog::Count("MSG", "ASSERT(FALSE) in "), 4);
}

// ---- edits ---------------------------------------------------------------------------------------

TEST_F(ControlWrappersTest, EditWithoutLayoutFailsToInitialise) {
    EXPECT_EQ(m_dlg.m_nBareEditInit, FALSE);
    EXPECT_EQ(m_dlg.m_edit.PreInitData(), TRUE);
}

TEST_F(ControlWrappersTest, PressSelectsByCharacterWidthAndClampsToTheText) {
    CSimEdit& edit = m_dlg.m_edit; // screen 110,110 - 250,134, character width 8
    edit.SetWindowTextA("abcdef");
    Press(110 + 8 * 3 + 2, 120);
    EXPECT_EQ(edit.GetSelAnchor(), 3);
    EXPECT_EQ(edit.GetSel(), 3u | (3u << 16));
    EXPECT_TRUE(edit.IsFocus());
    Release(110 + 8 * 3 + 2, 120);
    // A press left of the text start (the toolkit only routes presses inside the edit; call it directly).
    edit.OnLButtonDown(0, POINT{90, 120});
    EXPECT_EQ(edit.GetSel(), 0u);
    EXPECT_EQ(edit.GetSelAnchor(), 0);
    Press(245, 120); // beyond the text end
    EXPECT_EQ(edit.GetSelAnchor(), 6);
    EXPECT_EQ(edit.GetSel(), 6u | (6u << 16));
    Release(245, 120);
}

TEST_F(ControlWrappersTest, DragSelectsFromTheAnchorToTheCharacterUnderTheCursor) {
    CSimEdit& edit = m_dlg.m_edit; // the dialog sits at 100,50; the edit's left edge at screen x 110
    edit.SetWindowTextA("password");
    Press(110 + 8 * 2 + 1, 120); // anchor 2
    Drag(110 + 8 * 5 - 3, 120);  // 4.625 from the edit's left rounds to 5
    EXPECT_EQ(edit.GetSel(), 2u | (5u << 16)) << "the middle of the word, not to its end";
    EXPECT_EQ(edit.GetSelCaret(), 5);
    Drag(110 + 8 * 1 + 3, 120); // 1.375: caret 1, before the anchor
    EXPECT_EQ(edit.GetSel(), 1u | (2u << 16));
    Drag(90, 120); // left of the edit: clamped to the start
    EXPECT_EQ(edit.GetSel(), 0u | (2u << 16));
    Release(90, 120);
    const DWORD sel = edit.GetSel();
    Drag(110 + 8 * 6, 120); // button up: no change
    EXPECT_EQ(edit.GetSel(), sel);
}

TEST_F(ControlWrappersTest, TypingMovesBothSelectionEndsToTheSelectionStart) {
    CSimEdit& edit = m_dlg.m_edit;
    Press(115, 120);
    Release(115, 120);
    m_mgr->MsgProc(nullptr, WM_CHAR, 'x', 1);
    m_mgr->MsgProc(nullptr, WM_CHAR, 'y', 1);
    EXPECT_STREQ(edit.GetWindowTextA(), "xy");
    EXPECT_EQ(edit.GetSelAnchor(), 2);
    EXPECT_EQ(edit.GetSelCaret(), 2);
    char16_t wide[8];
    EXPECT_EQ(edit.GetWindowTextW(wide, 8), 2);
    EXPECT_EQ(wide[1], u'y');
    EXPECT_EQ(edit.GetWindowTextW(wide, 2), 1);
    EXPECT_EQ(wide[1], u'\0');
}

TEST_F(ControlWrappersTest, PlaceholderShowsOnlyWhileEmptyAndUnfocused) {
    CSimEdit& edit = m_dlg.m_edit;
    edit.SetLostFocusTip("Account");
    auto ops = DrawControl(edit);
    ASSERT_EQ(ops.size(), 1u);
    EXPECT_EQ(ops[0].text, "Account");
    EXPECT_EQ(ops[0].colour, 0xFF808080u);
    EXPECT_EQ(ops[0].size, 12);
    EXPECT_EQ(ops[0].x, 110 + 2);
    EXPECT_EQ(ops[0].y, 110 + 4);
    edit.SetLostFocusTipOffset(5, 6);
    ops = DrawControl(edit);
    EXPECT_EQ(ops[0].x, 115);
    edit.SetWindowTextA("a");
    for (const auto& op : DrawControl(edit)) EXPECT_NE(op.text, "Account");
    edit.SetWindowTextA("");
    edit.SetFocus();
    for (const auto& op : DrawControl(edit)) EXPECT_NE(op.text, "Account");
}

TEST_F(ControlWrappersTest, PlaceholderDefaultsAreGreyFourteenAtTwoFour) {
    CSimEdit edit; // the defaults, before any layout
    EXPECT_EQ(edit.GetSelAnchor(), 0);
    edit.SetLostFocusTip("Tip");
    edit.ShowWindow(SW_SHOW);
    edit.MoveWindow(30, 40, 100, 20);
    const auto ops = DrawControl(edit);
    ASSERT_EQ(ops.size(), 1u);
    EXPECT_EQ(ops[0].colour, 0xFFCCCCCCu);
    EXPECT_EQ(ops[0].size, 14);
    EXPECT_EQ(ops[0].x, 32);
    EXPECT_EQ(ops[0].y, 44);
}

// ---- images --------------------------------------------------------------------------------------

TEST_F(ControlWrappersTest, ControlImageKeepsItsTitleButTakesTheStretchFlag) {
    CSimImage& image = m_dlg.m_image;
    image.InitImage("Pic", IMAGE_CONTROL, "NULL");
    EXPECT_STREQ(image.GetAniFile(), "ani/control.ani");
    EXPECT_STREQ(image.GetBackGroundAni(), "");
    image.SetAniTitle("Other", true);
    EXPECT_STREQ(image.GetAniTitle(), "Pic");
    EXPECT_TRUE(image.IsStretch());
    image.SetCurFrame(1);
    auto ops = DrawControl(image);
    ASSERT_GE(ops.size(), 1u);
    EXPECT_EQ(ops[0].kind, "ani");
    EXPECT_EQ(ops[0].frame, 1);
    EXPECT_EQ(ops[0].w, 64);
    EXPECT_EQ(ops[0].h, 64);
    image.SetAniTitle(nullptr, false);
    image.SetDrawOffset(5, 7);
    ops = DrawControl(image);
    EXPECT_EQ(ops[0].w, 12); // natural size of frame 1
    EXPECT_EQ(ops[0].x, 300 + 5);
    EXPECT_EQ(ops[0].y, 70 + 7);
}

TEST_F(ControlWrappersTest, FaceImagesFallBackToTheDefaultFaceAndFaceZeroDrawsNothing) {
    CSimImage& image = m_dlg.m_image;
    image.InitImage("Face7", IMAGE_PLAYER_FACE, "Btn");
    EXPECT_STREQ(image.GetAniFile(), "ani/playerface.ani");
    EXPECT_STREQ(image.GetBackGroundAni(), "Btn");
    auto ops = DrawControl(image);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[1].name, "Face7");
    image.SetAniTitle("Face12345", false);
    ops = DrawControl(image);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[1].name, "Face510001");
    image.SetAniTitle("Face0", false);
    ops = DrawControl(image);
    EXPECT_EQ(ops.size(), 1u); // the background only
    image.InitImage("Missing", IMAGE_PLAYER_MODEL_FACE, nullptr);
    EXPECT_STREQ(image.GetAniFile(), "ani/PlayerModelFace.Ani");
    EXPECT_EQ(DrawControl(image).size(), 1u); // no model faces at all: nothing, no error
}

// ---- statics -------------------------------------------------------------------------------------

TEST_F(ControlWrappersTest, StaticGetsDefaultFontAndMovesFromItsOrigin) {
    CSimStatic& label = m_dlg.m_static;
    EXPECT_EQ(label.GetFontSize().cy, 14);
    EXPECT_EQ(label.GetFontSize().cx, 7);
    EXPECT_EQ(label.GetOrigin().x, 10);
    EXPECT_EQ(label.GetOrigin().y, 100);
    label.MoveByOffset(5, -3);
    EXPECT_EQ(label.GetWindowRect().left, 100 + 15);
    EXPECT_EQ(label.GetWindowRect().top, 50 + 97);
    EXPECT_EQ(label.GetWidth(), 100);
    label.MoveByOffset(0, 0);
    EXPECT_EQ(label.GetWindowRect().left, 110);
}

TEST_F(ControlWrappersTest, CentredMultiLineStaticIsLaidOutCentredWithTags) {
    CSimStatic& label = m_dlg.m_static; // 100 wide
    label.SetWindowTextA("ab</#R>cd");
    const auto ops = DrawControl(label);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(label.GetAutoText().GetLines()[0].nX, 50 - 14);
    EXPECT_EQ(ops[0].x, 110 + 36);
    EXPECT_EQ(ops[1].colour, 0xFFFF0000u);
    char buf[3];
    EXPECT_STREQ(label.GetWindowText(buf, sizeof buf), "ab</#R>cd");
    EXPECT_STREQ(buf, "ab");
    label.SetWindowTextA("");
    EXPECT_TRUE(DrawControl(label).empty());
}

// The static keeps its layout between frames; a new text, a new width or a new font colour shows at the next
// frame.
TEST_F(ControlWrappersTest, MultiLineStaticDrawsItsCurrentTextWidthAndColour) {
    CSimStatic& label = m_dlg.m_static; // 100 wide, centred
    auto texts = [&] {
        std::string all;
        for (const host::DrawOp& op : DrawControl(label)) all += op.text + "|";
        return all;
    };
    label.SetWindowTextA("abcdefgh");
    EXPECT_EQ(texts(), "abcdefgh|");
    label.SetWindowTextA("abcdefgX");
    EXPECT_EQ(texts(), "abcdefgX|");
    label.MoveWindow(label.GetOrigin().x, label.GetOrigin().y, 35, 60, FALSE);
    EXPECT_EQ(texts(), "abcde|fgX|");
    EXPECT_EQ(label.GetAutoText().GetLines()[1].nX, 17 - 10);
    label.SetFontColor(0xFF00FF00);
    EXPECT_EQ(DrawControl(label)[0].colour, 0xFF00FF00u);
}

} // namespace
