// The recording canvas: stable operation lines, compounds kept whole, clip and size limits, missing art
// unrecorded.
#include "GameGraphic.h"
#include "Graphics.h"
#include "GraphicsFixture.h"
#include "MyAni.h"

namespace gfxtest {
namespace {

constexpr const char* CONTROL_INDEX = R"([Btn]
Frame0=box 40 20 FF336699 FFFFFFFF OK
Frame1=box 40 20 FF3366CC FFFFFFFF OK

[Ghost]
Frame0=data/not-there.png

[Panel]
Frame0=box 30 30 FF202020 FF808080
)";

class RecordingCanvasTest : public GraphicsTest {
protected:
    void SetUp() override {
        GraphicsTest::SetUp();
        UseRecording();
        m_dir.Write("ani/Control.ani", CONTROL_INDEX);
    }
};

TEST_F(RecordingCanvasTest, PrimitivesDumpAsStableLinesInDrawingOrder) {
    CMyBitmap::ShowBlock({1, 2, 11, 22}, 0x99000000);
    CMyBitmap::ShowRect({3, 4, 8, 9}, 0xFF00FF00);
    CMyBitmap::ShowLine(5, 6, 25, 6, 0x00FFFFFF);
    CMyBitmap::ShowString(7, 8, 0xFFFFFF00, "Say \"hi\"\n\xC3\xA9", nullptr, 12);
    const int width = CMyBitmap::GetStringWidth("Say \"hi\"", 12);

    const std::string expected = "block 1,2 10x20 #99000000\n"
                                 "rect 3,4 5x5 #FF00FF00\n"
                                 "line 5,6 -> 25,6 #FFFFFFFF\n"
                                 "text 7,8 " +
                                 std::to_string(width) +
                                 "x26 #FFFFFF00 size=12 \"Say \\\"hi\\\"\\x0A\\xC3\\xA9\"\n";
    EXPECT_EQ(host::DumpRecordedOps(), expected);
}

TEST_F(RecordingCanvasTest, OperationsWhollyOutsideTheClipAreNotRecorded) {
    const RECT clip{10, 10, 20, 20};
    CMyBitmap::SetClipRect(&clip);
    CMyBitmap::ShowBlock({0, 0, 5, 5}, 0xFFFFFFFF);
    CMyBitmap::ShowBlock({15, 15, 30, 30}, 0xFFFFFFFF);
    CMyBitmap::ShowLine(0, 30, 40, 30, 0xFFFFFFFF);
    CMyBitmap::ShowString(100, 100, 0xFFFFFFFF, "far");
    CMyBitmap::ShowBlock({-10, -10, -1, -1}, 0xFFFFFFFF);
    EXPECT_EQ(host::DumpRecordedOps(), "block 15,15 15x15 #FFFFFFFF\n");

    host::BeginFrame();
    CMyBitmap::ShowBlock({0, 0, 5, 5}, 0xFFFFFFFF);
    EXPECT_EQ(host::GetRecordedOps().size(), 1u) << "a new frame clips to the whole screen again";
}

TEST_F(RecordingCanvasTest, AnimationFrameIsOneOperationNotItsShapes) {
    EXPECT_TRUE(CGameGraphic::ShowCtrlAni("btn", 5, 6, 1));
    EXPECT_EQ(host::DumpRecordedOps(), "ani ani/Control.ani:Btn#1 5,6 40x20 a=255\n");
}

TEST_F(RecordingCanvasTest, MissingArtDrawsNothingAndRecordsNothing) {
    EXPECT_FALSE(CGameGraphic::ShowCtrlAni("NoSuchTitle", 0, 0, 0));
    EXPECT_FALSE(CGameGraphic::ShowAni("ani/NoSuchFile.ani", "Btn", 0, 0, 0));
    EXPECT_FALSE(CGameGraphic::ShowCtrlAni("Ghost", 0, 0, 0)) << "its picture file is missing";
    EXPECT_FALSE(CGameGraphic::ShowCtrlAni("Btn", 0, 0, 7)) << "no frame 7";
    EXPECT_FALSE(CGameGraphic::ShowNineImageBackGround("Ghost", 0, 0, 30, 30));
    EXPECT_FALSE(CGameGraphic::ShowStrresUI(0, 0, 0, 0, "Btn", 0, "ani/Control.ani"))
        << "no string-resource index";
    EXPECT_EQ(QueryMyAniMgr()->QueryAni("ani/Control.ani", "NoSuchTitle"), nullptr);
    EXPECT_EQ(QueryMyAniMgr()->QueryAni(nullptr, "Btn"), nullptr);
    EXPECT_EQ(host::DumpRecordedOps(), "");
}

TEST_F(RecordingCanvasTest, NinePatchAndStringResourcesAreRecordedWhole) {
    m_dir.Write("ani/StrRes.ani", "[LangTips]\nFrame0=box 50 10 FF000000 FFFFFFFF Switch\n");
    EXPECT_TRUE(CGameGraphic::ShowNineImageBackGround("Panel", -9, -15, 119, 125));
    EXPECT_TRUE(CGameGraphic::ShowStrresUI(0, 0, 3, 4, "langtips", 0, "ani/control.ani"));
    EXPECT_TRUE(CGameGraphic::ShowStrresUI(20, 8, 3, 4, "LangTips", 0, "ani/control.ani"));
    SIZE drawn{};
    EXPECT_EQ(CGameGraphic::ShowStrRes(5, 6, "one\ntwo", 7, nullptr, 12, 0xFFFFFF, 0, 1, nullptr, nullptr,
                                       0xFFFFFFFF, 3, 0, true, &drawn),
              2);
    EXPECT_EQ(drawn.cy, 12 + 2 + 12);
    EXPECT_EQ(drawn.cx, CMyBitmap::GetStringWidth("one\ntwo", 12));
    const std::string strres =
        "strres 5,6 " + std::to_string(drawn.cx) + "x26 #FFFFFFFF size=12 mode=7 \"one\\x0Atwo\"\n";
    EXPECT_EQ(host::DumpRecordedOps(), "nine ani/Control.ani:Panel -9,-15 119x125 a=255\n"
                                       "strresui ani/control.ani:LangTips#0 3,4 50x10 a=255\n"
                                       "strresui ani/control.ani:LangTips#0 3,4 20x8 a=255\n" +
                                           strres);
}

TEST_F(RecordingCanvasTest, RecordingStopsAtItsLimitAndCountsTheRest) {
    constexpr std::size_t EXTRA = 5;
    for (std::size_t i = 0; i < host::MAX_RECORDED_OPS + EXTRA; ++i)
        CMyBitmap::ShowBlock({0, 0, 1, 1}, 0xFF000000);
    EXPECT_EQ(host::GetRecordedOps().size(), host::MAX_RECORDED_OPS);
    EXPECT_EQ(host::DroppedOpCount(), EXTRA);
    host::BeginFrame();
    EXPECT_EQ(host::DroppedOpCount(), 0u);
}

} // namespace
} // namespace gfxtest
