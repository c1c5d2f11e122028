// Pixels of the raster canvas: blocks, blending, clip, lines, text, pictures, scaling and PNG output.
#include <filesystem>
#include <vector>

#include "Graphics.h"
#include "GraphicsFixture.h"

namespace gfxtest {
namespace {
constexpr DWORD RED = 0xFFFF0000;
constexpr DWORD GREEN = 0xFF00FF00;
constexpr DWORD BLUE = 0xFF0000FF;
constexpr DWORD WHITE = 0xFFFFFFFF;

DWORD Quadrants(int x, int y) {
    if (y == 0) return x == 0 ? RED : GREEN;
    return x == 0 ? BLUE : WHITE;
}

class RasterCanvasTest : public GraphicsTest {
protected:
    void SetUp() override {
        GraphicsTest::SetUp();
        UseRaster();
    }
};

TEST_F(RasterCanvasTest, BlockFillsItsRectangleWithoutRightAndBottomEdges) {
    CMyBitmap::ShowBlock({10, 5, 20, 15}, RED);
    EXPECT_EQ(Pixel(10, 5), RED);
    EXPECT_EQ(Pixel(19, 14), RED);
    EXPECT_EQ(Pixel(20, 5), BACKGROUND);
    EXPECT_EQ(Pixel(10, 15), BACKGROUND);
    EXPECT_EQ(Pixel(9, 5), BACKGROUND);
    EXPECT_EQ(PaintedPixels(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT), 10 * 10);
}

TEST_F(RasterCanvasTest, TextDrawsGlyphsInsideItsMeasuredBox) {
    SIZE drawn{};
    CMyBitmap::ShowString(4, 4, WHITE, "Hi", nullptr, 14, true, 0, 0xFF000000, &drawn);
    const int width = CMyBitmap::GetStringWidth("Hi", 14);
    EXPECT_EQ(drawn.cx, width);
    EXPECT_EQ(drawn.cy, 14);
    ASSERT_GT(width, 7);
    const int inside = PaintedPixels(4, 4, 4 + width + 1, 4 + 14);
    EXPECT_GT(inside, 20);
    EXPECT_EQ(PaintedPixels(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT), inside);
}

TEST_F(RasterCanvasTest, BitmapFromBmpDrawsAtNaturalAndStretchedSize) {
    WriteBmp("data/quad.bmp", 2, 2, Quadrants);
    CMyBitmap* bitmap = MyBitmapCreate("DATA\\Quad.BMP");
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetWidth(), 2);
    EXPECT_EQ(bitmap->GetHeight(), 2);
    bitmap->Show(10, 10);
    EXPECT_EQ(Pixel(10, 10), RED);
    EXPECT_EQ(Pixel(11, 10), GREEN);
    EXPECT_EQ(Pixel(10, 11), BLUE);
    EXPECT_EQ(Pixel(11, 11), WHITE);
    EXPECT_EQ(Pixel(12, 10), BACKGROUND);

    bitmap->Show(20, 20, 0, 4, 4);
    EXPECT_EQ(Pixel(20, 20), RED);
    EXPECT_EQ(Pixel(21, 21), RED);
    EXPECT_EQ(Pixel(22, 20), GREEN);
    EXPECT_EQ(Pixel(23, 23), WHITE);
    EXPECT_EQ(Pixel(24, 20), BACKGROUND);
    bitmap->Release();
}

// An 8 x 6 BGRA buffer of distinct colours, opaque, half and fully transparent pixels; seed varies it.
std::vector<std::uint8_t> BgraPattern(int seed) {
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x) {
            const int i = y * 8 + x + seed;
            bytes.push_back(static_cast<std::uint8_t>(30 * x + seed));                           // blue
            bytes.push_back(static_cast<std::uint8_t>(40 * y));                                  // green
            bytes.push_back(static_cast<std::uint8_t>(250 - 20 * x - y));                        // red
            bytes.push_back(static_cast<std::uint8_t>(i % 3 == 0 ? 255 : i % 3 == 1 ? 128 : 0)); // alpha
        }
    return bytes;
}

TEST_F(RasterCanvasTest, BitmapFilledFromBgraDrawsTheSameWhetherItKeepsOrConvertsTheBytes) {
    WriteBmp("data/quad.bmp", 8, 6, Quadrants);
    CMyBitmap* converted = MyBitmapCreate("data/quad.bmp"); // a decoded picture is RGBA
    CMyBitmap* kept = MyBitmapCreateEmpty(8, 6);            // an empty one takes the bytes as given
    const auto first = BgraPattern(0);
    const auto second = BgraPattern(7);
    for (CMyBitmap* bitmap : {converted, kept}) {
        bitmap->UpdatePixels(first.data(), 8, 6, RECT{0, 0, 8, 6});
        bitmap->UpdatePixels(second.data(), 8, 6, RECT{2, 1, 6, 4});
    }
    converted->Show(0, 0);
    kept->Show(16, 0);
    converted->Show(0, 16, 0xC0000000, 16, 12);
    kept->Show(32, 16, 0xC0000000, 16, 12);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x) {
            SCOPED_TRACE(testing::Message() << x << "," << y);
            const bool fromSecond = x >= 2 && x < 6 && y >= 1 && y < 4;
            const std::uint8_t* p = &(fromSecond ? second : first)[static_cast<std::size_t>(y * 8 + x) * 4];
            if (p[3] == 255) { // an opaque pixel shows its own colour
                EXPECT_EQ(Pixel(x, y), 0xFF000000 | (DWORD{p[2]} << 16) | (DWORD{p[1]} << 8) | DWORD{p[0]});
            }
            EXPECT_EQ(Pixel(16 + x, y), Pixel(x, y));
        }
    for (int y = 16; y < 28; ++y)
        for (int x = 0; x < 16; ++x) EXPECT_EQ(Pixel(32 + x, y), Pixel(x, y)) << x << "," << y;
    converted->Release();
    kept->Release();
}

TEST_F(RasterCanvasTest, FrameWrittenAsPngReadsBackPixelForPixel) {
    CMyBitmap::ShowBlock({0, 0, 10, 10}, RED);
    CMyBitmap::ShowBlock({10, 0, 20, 10}, 0x8000FF00);
    CMyBitmap::ShowLine(0, 47, 63, 47, BLUE);
    int width = 0, height = 0;
    const auto original = host::GetRasterPixels(width, height);
    ASSERT_TRUE(host::WriteFramePng((m_dir.Path() / "shot.png").string()));

    CMyBitmap* bitmap = MyBitmapCreate("shot.png");
    ASSERT_EQ(bitmap->GetWidth(), SCREEN_WIDTH);
    ASSERT_EQ(bitmap->GetHeight(), SCREEN_HEIGHT);
    host::BeginFrame(0xFF123456);
    bitmap->Show(0, 0);
    EXPECT_EQ(host::GetRasterPixels(width, height), original);
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
    EXPECT_EQ(PaintedPixels(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT), 0);
    EXPECT_EQ(MyBitmapCreate(nullptr), nullptr);
}

} // namespace
} // namespace gfxtest
