// Texts are measured and drawn by cells: half the size for a character below U+0080, the full size for any
// other, CJK included, drawn with real glyphs.
#include <vector>

#include "Graphics.h"
#include "GraphicsFixture.h"

namespace gfxtest {
namespace {
constexpr DWORD WHITE = 0xFFFFFFFF;
// "中", "文", "é" in UTF-8.
constexpr const char* ZHONG = "\xE4\xB8\xAD";
constexpr const char* WEN = "\xE6\x96\x87";
constexpr const char* EACUTE = "\xC3\xA9";

class TextCellsTest : public GraphicsTest {
protected:
    /// The pixels of [x0, x1) x [y0, y1) that are painted, as a mask, row by row.
    static std::vector<bool> Ink(int x0, int y0, int x1, int y1) {
        std::vector<bool> mask;
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x) mask.push_back(Pixel(x, y) != BACKGROUND);
        return mask;
    }
};

TEST_F(TextCellsTest, WidthsCountHalfASizeBelowU0080AndAFullSizeForEveryOtherCharacter) {
    EXPECT_EQ(CMyBitmap::GetStringWidth("ab", 14), 14);
    EXPECT_EQ(CMyBitmap::GetStringWidth((std::string("ab") + ZHONG).c_str(), 14), 28);
    EXPECT_EQ(CMyBitmap::GetStringWidth((std::string("ab") + ZHONG).c_str(), 15), 7 + 7 + 15);
    EXPECT_EQ(CMyBitmap::GetStringWidth(EACUTE, 14), 14) << "two bytes in UTF-8: a full cell";
    EXPECT_EQ(CMyBitmap::GetStringWidth("abcd\nab", 14), 28) << "the widest line";
    const char16_t emoji[] = {0xD83D, 0xDE00, 0}; // one character outside the basic plane
    EXPECT_EQ(CMyBitmap::GetStringWidthW(emoji, 20), 20);
}

TEST_F(TextCellsTest, ChineseCharactersAreDrawnAsTheirOwnGlyphsInsideFullCells) {
    UseRaster();
    SIZE drawn{};
    CMyBitmap::ShowString(4, 4, WHITE, (std::string(ZHONG) + WEN + "a").c_str(), nullptr, 14, true, 0,
                          0xFF000000, &drawn);
    EXPECT_EQ(drawn.cx, 14 + 14 + 7);
    const std::vector<bool> zhong = Ink(4, 4, 18, 18);
    const std::vector<bool> wen = Ink(18, 4, 32, 18);
    const int zhongInk = static_cast<int>(std::count(zhong.begin(), zhong.end(), true));
    const int wenInk = static_cast<int>(std::count(wen.begin(), wen.end(), true));
    ASSERT_GT(zhongInk, 20) << "no CJK glyphs: is fonts-noto-cjk installed (scripts/bootstrap)?";
    EXPECT_GT(wenInk, 20);
    EXPECT_NE(zhong, wen) << "two different characters, not two placeholder boxes";
    EXPECT_GT(PaintedPixels(32, 4, 39, 18), 0) << "the a in its half cell";
    EXPECT_EQ(PaintedPixels(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT),
              zhongInk + wenInk + PaintedPixels(32, 4, 39, 18) + PaintedPixels(4, 18, 39, 20))
        << "nothing outside the cells but descenders";
}

} // namespace
} // namespace gfxtest
