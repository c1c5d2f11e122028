// Clipping of what dialogs and controls draw, the check that reports what reaches past a window, and labels
// placed by the cells every text is measured in.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>

#include "GuiTestFixture.h"
#include "lugui/LuGui_internal.h"

namespace luguitest {
namespace {

using testing::IsEmpty;

constexpr DWORD PANEL = 0xFF102030; // the background of dialog 2000 (layout "Panel")
constexpr DWORD SCREEN = 0xFF000000;

// The button of dialog 2000 covers (110, 60)-(190, 90), its list (270, 60)-(390, 110); the dialog (100, 50)-
// (400, 250).
class ClipTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        host::GetScreenSize(m_screenWidth, m_screenHeight);
    }
    void TearDown() override {
        GuiTest::TearDown();
        host::SetScreenSize(m_screenWidth, m_screenHeight);
        host::UseCanvas(host::CanvasKind::Recording);
    }
    /// Pixels of [x0, x1) x [y0, y1) of the raster frame that are not of the colour.
    static int PixelsOtherThan(DWORD colour, int x0, int y0, int x1, int y1) {
        int width = 0, height = 0;
        const std::vector<std::uint8_t> pixels = host::GetRasterPixels(width, height);
        int count = 0;
        for (int y = std::max(y0, 0); y < std::min(y1, height); ++y) {
            for (int x = std::max(x0, 0); x < std::min(x1, width); ++x) {
                const std::uint8_t* p = &pixels[(static_cast<std::size_t>(y) * width + x) * 4];
                const DWORD pixel =
                    (DWORD{p[3]} << 24) | (DWORD{p[0]} << 16) | (DWORD{p[1]} << 8) | DWORD{p[2]};
                count += pixel != colour ? 1 : 0;
            }
        }
        return count;
    }
    void RasterFrame() {
        host::SetScreenSize(500, 300); // the dialog and what lies right of it
        host::UseCanvas(host::CanvasKind::Raster);
        host::BeginFrame(SCREEN);
        m_mgr->Process();
        m_mgr->Show();
    }

    int m_screenWidth = 0;
    int m_screenHeight = 0;
};

// A control that, like a faulty drawing routine, opens the clip to the whole screen before it draws.
class EscapingStatic : public LuGui::CLuStatic {
public:
    int Show() override {
        CMyBitmap::SetClipRect(nullptr);
        const RECT rc = GetWindowRect();
        CMyBitmap::ShowString(rc.left, rc.top, 0xFFFFFFFF, "far too long for this control");
        return 1;
    }
};

TEST_F(ClipTest, ATextWiderThanItsButtonIsCutAtTheButtonAndStartsAtItsLeftEdge) {
    Start(LayoutWith("Dialog2000.10", "Align = center\n"));
    Open(m_dlg);
    m_dlg.m_button.SetWindowTextA("A caption far wider than the button");

    const auto texts = OpsOfKind(Frame(), "text");
    ASSERT_EQ(texts.size(), 2u) << "the caption and the static's Hello";
    EXPECT_EQ(texts[0].x, 110) << "a centred text that does not fit starts at the left edge";
    const auto overflows = host::GetDrawOverflows();
    ASSERT_EQ(overflows.size(), 1u);
    EXPECT_EQ(overflows[0].dialog, IDD_MAIN);
    EXPECT_EQ(overflows[0].control, IDC_BUTTON);
    EXPECT_TRUE(overflows[0].clipped);
    EXPECT_EQ(overflows[0].op.text, "A caption far wider than the button");
    EXPECT_EQ(overflows[0].ToString().rfind("cut at 2000.10 110,60 80x30: text 110,", 0), 0u)
        << overflows[0].ToString();

    RasterFrame();
    EXPECT_GT(PixelsOtherThan(0xFF000010, 110, 60, 190, 90), 0) << "the caption inside the button";
    EXPECT_EQ(PixelsOtherThan(PANEL, 190, 60, 270, 90), 0) << "nothing of it between the button and the list";
}

TEST_F(ClipTest, AControlReachingPastItsDialogIsCutAtTheDialogEdge) {
    // The static moves to (350, 180)-(470, 200) on the screen: 70 pixels of it lie right of the dialog.
    Start(LayoutWith("Dialog2000.15", "Rect = 250 130 120 20\nBackground = Btn1\n"));
    Open(m_dlg);
    m_dlg.m_static.SetWindowTextA("WWWWWWWWWWWWWWWW");
    RasterFrame();
    EXPECT_GT(PixelsOtherThan(PANEL, 350, 180, 400, 200), 0);
    EXPECT_EQ(PixelsOtherThan(SCREEN, 400, 180, 480, 200), 0);
}

TEST_F(ClipTest, EveryDialogAndControlGetsItsClipBackAndTipsAreNotClipped) {
    Start(LayoutWith("Dialog2000.15", "Tip = A tip wider than its control and than its dialog, too\n"));
    Open(m_dlg);
    const RECT rc = m_dlg.m_static.GetWindowRect();
    host::SetCursor(rc.left + 1, rc.top + 1);
    const auto ops = Frame();
    const RECT clip = CMyBitmap::GetClipRect();
    EXPECT_EQ(clip.left, 0);
    EXPECT_EQ(clip.right, CMyBitmap::GetScreenWidth());
    ASSERT_FALSE(ops.empty());
    EXPECT_EQ(ops.back().text, "A tip wider than its control and than its dialog, too");
    EXPECT_THAT(host::GetDrawOverflows(), IsEmpty()) << "tips belong to the manager, not to a window";
}

TEST_F(ClipTest, APictureReachingPastItsControlIsReportedOnceAsAWhole) {
    // The button's background is drawn 6 pixels left of the button: one animation frame made of a fill.
    Start(LayoutWith("Dialog2000.10", "BackgroundOffset = -6 0\n"));
    Open(m_dlg);
    Frame();
    const auto overflows = host::GetDrawOverflows();
    ASSERT_EQ(overflows.size(), 1u);
    EXPECT_EQ(overflows[0].op.kind, "ani");
    EXPECT_EQ(overflows[0].op.x, 104);
    EXPECT_TRUE(overflows[0].clipped);
}

TEST_F(ClipTest, DrawingThatEscapesTheClipIsReportedAsSeenOutsideItsControl) {
    Start();
    EscapingStatic escaping;
    LuGui::CLuToolkit::Attach(escaping, m_mgr, &m_dlg, 99, nullptr);
    LuGui::CLuToolkit::AddControl(m_dlg, escaping);
    escaping.MoveWindow(10, 160, 60, 20);
    escaping.ShowWindow(SW_SHOW);
    Open(m_dlg);
    Frame();
    const auto overflows = host::GetDrawOverflows();
    ASSERT_EQ(overflows.size(), 1u);
    EXPECT_FALSE(overflows[0].clipped);
    EXPECT_EQ(overflows[0].ToString().rfind("outside 2000.99 110,210 60x20: text 110,210 ", 0), 0u)
        << overflows[0].ToString();
    LuGui::CLuToolkit::ClearForCreation(m_dlg); // the control goes before the dialog
}

TEST_F(ClipTest, AlignedLabelsAreMeasuredByCellsThenMovedByTheirTextOffset) {
    // A multi-byte character takes the full size, a single-byte one half: "中ab" is 14 + 7 + 7 = 28 wide.
    Start(LayoutWith("Dialog2000.10", "Align = center\nTextOffset = 3 -2\n"));
    Open(m_dlg);
    m_dlg.m_button.SetWindowTextA("\xE4\xB8\xAD"
                                  "ab");
    auto texts = OpsOfKind(Frame(), "text");
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts[0].x, 110 + (80 - 28) / 2 + 3);
    EXPECT_EQ(texts[0].w, 28);
    const int nCentredTop = texts[0].y + 2;

    m_dlg.m_button.SetAlign(LuGui::LU_ALIGN_RIGHT);
    m_dlg.m_button.SetTextOffset(-4, 5);
    texts = OpsOfKind(Frame(), "text");
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts[0].x, 190 - 28 - 4);
    EXPECT_EQ(texts[0].y, nCentredTop + 5);
}

} // namespace
} // namespace luguitest
