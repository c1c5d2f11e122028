// Pixels of the raster canvas: blocks, blending, clip, lines, text, pictures, scaling and PNG output.
#include <filesystem>

#include "Graphics.h"
#include "GraphicsFixture.h"

namespace gfxtest {
namespace {
constexpr DWORD kRed = 0xFFFF0000;
constexpr DWORD kGreen = 0xFF00FF00;
constexpr DWORD kBlue = 0xFF0000FF;
constexpr DWORD kWhite = 0xFFFFFFFF;

DWORD Quadrants(int x, int y) {
    if (y == 0) return x == 0 ? kRed : kGreen;
    return x == 0 ? kBlue : kWhite;
}

class RasterCanvasTest : public GraphicsTest {
protected:
    void SetUp() override {
        GraphicsTest::SetUp();
        UseRaster();
    }
};

TEST_F(RasterCanvasTest, BlockFillsItsRectangleWithoutRightAndBottomEdges) {
    CMyBitmap::ShowBlock({10, 5, 20, 15}, kRed);
    EXPECT_EQ(Pixel(10, 5), kRed);
    EXPECT_EQ(Pixel(19, 14), kRed);
    EXPECT_EQ(Pixel(20, 5), kBackground);
    EXPECT_EQ(Pixel(10, 15), kBackground);
    EXPECT_EQ(Pixel(9, 5), kBackground);
    EXPECT_EQ(PaintedPixels(0, 0, kScreenWidth, kScreenHeight), 10 * 10);
}

TEST_F(RasterCanvasTest, TranslucentBlockBlendsOverWhatIsBelow) {
    CMyBitmap::ShowBlock({0, 0, 8, 8}, kWhite);
    CMyBitmap::ShowBlock({0, 0, 16, 8}, 0x80FF0000);
    const DWORD overWhite = Pixel(2, 2);
    const DWORD overBlack = Pixel(12, 2);
    EXPECT_EQ(overWhite >> 24, 0xFFu);
    EXPECT_EQ((overWhite >> 16) & 0xFF, 0xFFu);
    EXPECT_NEAR(static_cast<int>((overWhite >> 8) & 0xFF), 0x7F, 1);
    EXPECT_NEAR(static_cast<int>((overBlack >> 16) & 0xFF), 0x80, 1);
    EXPECT_EQ(overBlack & 0xFFFF, 0u);
}

TEST_F(RasterCanvasTest, ClipRectangleLimitsDrawingUntilRestored) {
    const RECT clip{0, 0, 16, 12};
    const RECT previous = CMyBitmap::SetClipRect(&clip);
    EXPECT_EQ(previous.right, kScreenWidth);
    EXPECT_EQ(previous.bottom, kScreenHeight);
    CMyBitmap::ShowBlock({0, 0, kScreenWidth, kScreenHeight}, kRed);
    CMyBitmap::ShowLine(0, 20, 60, 20, kRed);
    EXPECT_EQ(PaintedPixels(0, 0, kScreenWidth, kScreenHeight), 16 * 12);
    EXPECT_EQ(CMyBitmap::GetClipRect().right, 16);

    CMyBitmap::SetClipRect(&previous);
    CMyBitmap::ShowBlock({40, 40, 41, 41}, kGreen);
    EXPECT_EQ(Pixel(40, 40), kGreen);
}

TEST_F(RasterCanvasTest, LineIncludesBothEndsAndColourWithoutAlphaIsOpaque) {
    CMyBitmap::ShowLine(5, 5, 15, 5, 0x00FFFFFF);
    EXPECT_EQ(Pixel(5, 5), kWhite);
    EXPECT_EQ(Pixel(15, 5), kWhite);
    EXPECT_EQ(Pixel(16, 5), kBackground);
    EXPECT_EQ(Pixel(4, 5), kBackground);

    CMyBitmap::ShowLine(30, 30, 39, 39, kBlue);
    EXPECT_EQ(Pixel(34, 34), kBlue);
    EXPECT_EQ(Pixel(39, 39), kBlue);
    EXPECT_EQ(Pixel(35, 34), kBackground);
}

TEST_F(RasterCanvasTest, TextDrawsGlyphsInsideItsMeasuredBox) {
    SIZE drawn{};
    CMyBitmap::ShowString(4, 4, kWhite, "Hi", nullptr, 14, true, 0, 0xFF000000, &drawn);
    const int width = CMyBitmap::GetStringWidth("Hi", 14);
    EXPECT_EQ(drawn.cx, width);
    EXPECT_EQ(drawn.cy, 14);
    ASSERT_GT(width, 7);
    const int inside = PaintedPixels(4, 4, 4 + width + 1, 4 + 14);
    EXPECT_GT(inside, 20);
    EXPECT_EQ(PaintedPixels(0, 0, kScreenWidth, kScreenHeight), inside);
}

TEST_F(RasterCanvasTest, Utf16AndUtf8TextDrawTheSamePixels) {
    CMyBitmap::ShowString(2, 2, kWhite, "\xC3\x85\xC3\xA9 ok", nullptr, 16);
    int width = 0, height = 0;
    const auto fromUtf8 = host::GetRasterPixels(width, height);
    ASSERT_GT(PaintedPixels(0, 0, kScreenWidth, kScreenHeight), 0);

    host::BeginFrame(kBackground);
    CMyBitmap::ShowStringW(2, 2, kWhite, u"\u00C5\u00E9 ok", nullptr, 16);
    EXPECT_EQ(host::GetRasterPixels(width, height), fromUtf8);
    EXPECT_EQ(CMyBitmap::GetStringWidthW(u"\u00C5\u00E9 ok", 16),
              CMyBitmap::GetStringWidth("\xC3\x85\xC3\xA9 ok", 16));
}

TEST_F(RasterCanvasTest, HardEdgedTextUsesOnlyFullCoverage) {
    CMyBitmap::ShowString(2, 2, kWhite, "Wg", nullptr, 20, false);
    int painted = 0;
    for (int y = 0; y < kScreenHeight; ++y) {
        for (int x = 0; x < kScreenWidth; ++x) {
            const DWORD p = Pixel(x, y);
            if (p == kBackground) continue;
            ++painted;
            EXPECT_EQ(p, kWhite) << x << "," << y;
        }
    }
    EXPECT_GT(painted, 0);
}

TEST_F(RasterCanvasTest, ShadowStyleDrawsTheEffectColourOnePixelDownRight) {
    CMyBitmap::ShowString(2, 2, kWhite, "I", nullptr, 20, false, 1, kRed);
    int red = 0;
    for (int y = 0; y < kScreenHeight; ++y)
        for (int x = 0; x < kScreenWidth; ++x) red += Pixel(x, y) == kRed ? 1 : 0;
    EXPECT_GT(red, 0);
}

TEST_F(RasterCanvasTest, BitmapFromBmpDrawsAtNaturalAndStretchedSize) {
    WriteBmp("data/quad.bmp", 2, 2, Quadrants);
    CMyBitmap* bitmap = MyBitmapCreate("DATA\\Quad.BMP");
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetWidth(), 2);
    EXPECT_EQ(bitmap->GetHeight(), 2);
    bitmap->Show(10, 10);
    EXPECT_EQ(Pixel(10, 10), kRed);
    EXPECT_EQ(Pixel(11, 10), kGreen);
    EXPECT_EQ(Pixel(10, 11), kBlue);
    EXPECT_EQ(Pixel(11, 11), kWhite);
    EXPECT_EQ(Pixel(12, 10), kBackground);

    bitmap->Show(20, 20, 0, 4, 4);
    EXPECT_EQ(Pixel(20, 20), kRed);
    EXPECT_EQ(Pixel(21, 21), kRed);
    EXPECT_EQ(Pixel(22, 20), kGreen);
    EXPECT_EQ(Pixel(23, 23), kWhite);
    EXPECT_EQ(Pixel(24, 20), kBackground);
    bitmap->Release();
}

TEST_F(RasterCanvasTest, BitmapColourArgumentScalesOpacity) {
    WriteBmp("white.bmp", 1, 1, [](int, int) { return kWhite; });
    CMyBitmap* bitmap = MyBitmapCreate("white.bmp");
    bitmap->Show(0, 0, 0x80000000);
    EXPECT_NEAR(static_cast<int>(Pixel(0, 0) & 0xFF), 0x80, 1);
    bitmap->Release();
}

TEST_F(RasterCanvasTest, FrameWrittenAsPngReadsBackPixelForPixel) {
    CMyBitmap::ShowBlock({0, 0, 10, 10}, kRed);
    CMyBitmap::ShowBlock({10, 0, 20, 10}, 0x8000FF00);
    CMyBitmap::ShowLine(0, 47, 63, 47, kBlue);
    int width = 0, height = 0;
    const auto original = host::GetRasterPixels(width, height);
    ASSERT_TRUE(host::WriteFramePng((m_dir.Path() / "shot.png").string()));

    CMyBitmap* bitmap = MyBitmapCreate("shot.png");
    ASSERT_EQ(bitmap->GetWidth(), kScreenWidth);
    ASSERT_EQ(bitmap->GetHeight(), kScreenHeight);
    host::BeginFrame(0xFF123456);
    bitmap->Show(0, 0);
    EXPECT_EQ(host::GetRasterPixels(width, height), original);
    bitmap->Release();
}

TEST_F(RasterCanvasTest, PngOutputFailsWithoutRasterOrWritableFile) {
    EXPECT_FALSE(host::WriteFramePng((m_dir.Path() / "no" / "such" / "dir.png").string()));
    host::UseCanvas(host::CanvasKind::Recording);
    EXPECT_FALSE(host::WriteFramePng((m_dir.Path() / "shot.png").string()));
    EXPECT_FALSE(std::filesystem::exists(m_dir.Path() / "shot.png"));
}

TEST_F(RasterCanvasTest, EmptyBitmapTakesBgraPixelsInsideTheRegionOnly) {
    CMyBitmap* bitmap = MyBitmapCreateEmpty(4, 4);
    bitmap->Show(0, 0);
    EXPECT_EQ(PaintedPixels(0, 0, 4, 4), 0);

    std::vector<std::uint8_t> bgra(4 * 4 * 4);
    for (std::size_t i = 0; i < bgra.size(); i += 4) {
        bgra[i] = 0x10;
        bgra[i + 1] = 0x20;
        bgra[i + 2] = 0x30;
        bgra[i + 3] = 0xFF;
    }
    bitmap->UpdatePixels(bgra.data(), 4, 4, {0, 0, 2, 2});
    bitmap->Show(0, 0);
    EXPECT_EQ(Pixel(1, 1), 0xFF302010u);
    EXPECT_EQ(Pixel(2, 2), kBackground);
    bitmap->Release();
}

TEST_F(RasterCanvasTest, MissingOrDamagedPictureDrawsNothing) {
    m_dir.Write("broken.png", "\x89PNG not really");
    for (const char* name : {"missing.jpg", "broken.png"}) {
        CMyBitmap* bitmap = MyBitmapCreate(name);
        ASSERT_NE(bitmap, nullptr);
        EXPECT_EQ(bitmap->GetWidth(), 0);
        bitmap->Show(0, 0, 0, 10, 10);
        bitmap->Release();
    }
    EXPECT_EQ(PaintedPixels(0, 0, kScreenWidth, kScreenHeight), 0);
    EXPECT_EQ(MyBitmapCreate(nullptr), nullptr);
}

TEST(TextEncoding, LeadBytesAreThoseThatStartMultiByteCharacters) {
    EXPECT_TRUE(CMyBitmap::IsDBCSLeadByte(0xC3));
    EXPECT_TRUE(CMyBitmap::IsDBCSLeadByte(0xE4));
    EXPECT_FALSE(CMyBitmap::IsDBCSLeadByte('a'));
    EXPECT_FALSE(CMyBitmap::IsDBCSLeadByte(0xA9));
    EXPECT_FALSE(CMyBitmap::IsDBCSLeadByte(0xC0));
}

} // namespace
} // namespace gfxtest
