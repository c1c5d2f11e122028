// Animation frames on the raster canvas: placeholders, pictures, nine-patches and opacity.
#include "GameGraphic.h"
#include "GraphicsFixture.h"
#include "MyAni.h"

namespace gfxtest {
namespace {
constexpr DWORD RED = 0xFFFF0000;
constexpr DWORD GREEN = 0xFF00FF00;
constexpr DWORD BLUE = 0xFF0000FF;

class AniRasterTest : public GraphicsTest {
protected:
    void SetUp() override {
        GraphicsTest::SetUp();
        UseRaster();
    }
};

TEST_F(AniRasterTest, PlaceholderIsFilledOutlinedAndLabelled) {
    m_dir.Write("ani/Control.ani", "[Btn]\nFrame0=box 40 20 FF0000FF FFFF0000 OK\n");
    ASSERT_TRUE(CGameGraphic::ShowCtrlAni("Btn", 2, 3, 0));
    EXPECT_EQ(Pixel(2, 3), RED);
    EXPECT_EQ(Pixel(41, 22), RED);
    EXPECT_EQ(Pixel(4, 5), BLUE);
    EXPECT_EQ(Pixel(42, 3), BACKGROUND);
    int label = 0;
    for (int y = 4; y < 22; ++y)
        for (int x = 3; x < 41; ++x) label += Pixel(x, y) != BLUE ? 1 : 0;
    EXPECT_GT(label, 10) << "the label is drawn inside the box";
}

TEST_F(AniRasterTest, PictureFrameScalesAndBlendsWithItsAlpha) {
    WriteBmp("pic/dot.bmp", 2, 1, [](int x, int) { return x == 0 ? RED : GREEN; });
    m_dir.Write("ani/Control.ani", "[Dot]\nFrame0=pic/dot.bmp\n");
    CMyAni* ani = QueryMyAniMgr()->QueryAni("ani/Control.ani", "Dot");
    ASSERT_NE(ani, nullptr);
    ASSERT_TRUE(ani->Show(0, 10, 10, 3.0f, 2.0f));
    EXPECT_EQ(Pixel(10, 10), RED);
    EXPECT_EQ(Pixel(12, 11), RED);
    EXPECT_EQ(Pixel(13, 11), GREEN);
    EXPECT_EQ(Pixel(16, 10), BACKGROUND);
    EXPECT_EQ(Pixel(10, 12), BACKGROUND);
    ASSERT_TRUE(ani->Show(0, 30, 30, 1.0f, 1.0f, 128));
    EXPECT_NEAR(static_cast<int>((Pixel(30, 30) >> 16) & 0xFF), 128, 1);
    ani->Release();
}

TEST_F(AniRasterTest, NineFramesKeepTheirCornersAndStretchTheRest) {
    m_dir.Write("ani/Control.ani",
                "[Nine]\n"
                "Frame0=box 4 3 FFFF0000\nFrame1=box 1 3 FF00FF00\nFrame2=box 4 3 FFFF0000\n"
                "Frame3=box 4 1 FF00FF00\nFrame4=box 1 1 FF0000FF\nFrame5=box 4 1 FF00FF00\n"
                "Frame6=box 4 3 FFFF0000\nFrame7=box 1 3 FF00FF00\nFrame8=box 4 3 FFFF0000\n");
    ASSERT_TRUE(CGameGraphic::ShowNineImageBackGround("Nine", 10, 10, 20, 12));
    EXPECT_EQ(Pixel(10, 10), RED);
    EXPECT_EQ(Pixel(13, 12), RED);
    EXPECT_EQ(Pixel(14, 10), GREEN);
    EXPECT_EQ(Pixel(25, 12), GREEN);
    EXPECT_EQ(Pixel(26, 10), RED);
    EXPECT_EQ(Pixel(10, 13), GREEN);
    EXPECT_EQ(Pixel(20, 15), BLUE);
    EXPECT_EQ(Pixel(29, 21), RED);
    EXPECT_EQ(Pixel(30, 21), BACKGROUND);
    EXPECT_EQ(Pixel(29, 22), BACKGROUND);
}

} // namespace
} // namespace gfxtest
