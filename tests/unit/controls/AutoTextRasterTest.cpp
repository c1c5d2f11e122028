// The auto text drawn on the raster canvas: every character's glyph stands in the cell its layout gives it,
// so runs of other colours and sizes never overlap and a line never draws wider than it was laid out.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "controls/SimAutoText.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "platform/Graphics.h"

namespace {

constexpr int SCREEN_WIDTH = 400;
constexpr int SCREEN_HEIGHT = 120;
constexpr DWORD BACKGROUND = 0xFF000000;
constexpr int ORIGIN_X = 10;
constexpr int ORIGIN_Y = 10;

enum class Tint { White, Red };

// A drawn frame, read once.
class Frame {
public:
    Frame() { m_pixels = host::GetRasterPixels(m_width, m_height); }
    bool Ink(int x, int y) const {
        if (x < 0 || y < 0 || x >= m_width || y >= m_height) return false;
        const std::uint8_t* p = &m_pixels[(static_cast<std::size_t>(y) * m_width + x) * 4];
        const DWORD pixel = (DWORD{p[3]} << 24) | (DWORD{p[0]} << 16) | (DWORD{p[1]} << 8) | DWORD{p[2]};
        return pixel != BACKGROUND;
    }
    /// Leftmost ink column and topmost ink row inside [x0, x1) x [y0, y1); {-1, -1} without ink.
    POINT FirstInk(int x0, int y0, int x1, int y1) const {
        POINT first{-1, -1};
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x)
                if (Ink(x, y)) {
                    if (first.x < 0 || x < first.x) first.x = x;
                    if (first.y < 0 || y < first.y) first.y = y;
                }
        return first;
    }
    /// Leftmost and rightmost columns, inside the rows [y0, y1), of ink of the tint: white (grey on black
    /// where a glyph covers a pixel in part) or red; {-1, -1} without.
    std::pair<int, int> ColumnsOf(Tint tint, int y0, int y1) const {
        std::pair<int, int> columns{-1, -1};
        for (int y = y0; y < y1; ++y)
            for (int x = 0; x < m_width; ++x) {
                const DWORD p = Pixel(x, y);
                const int red = (p >> 16) & 0xFF, green = (p >> 8) & 0xFF;
                const bool match = red > 64 && (tint == Tint::White ? green > red / 2 : green < red / 2);
                if (!match) continue;
                if (columns.first < 0 || x < columns.first) columns.first = x;
                columns.second = std::max(columns.second, x);
            }
        return columns;
    }

private:
    DWORD Pixel(int x, int y) const {
        const std::uint8_t* p = &m_pixels[(static_cast<std::size_t>(y) * m_width + x) * 4];
        return (DWORD{p[3]} << 24) | (DWORD{p[0]} << 16) | (DWORD{p[1]} << 8) | DWORD{p[2]};
    }
    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint8_t> m_pixels;
};

// One character of a laid-out text: its bytes, its cell and the run's font size.
struct Cell {
    std::string character;
    int x = 0, y = 0, width = 0;
    int size = 0;
};

// Bytes of the UTF-8 character starting at text[i].
std::size_t CharacterLength(const std::string& text, std::size_t i) {
    const auto lead = static_cast<unsigned char>(text[i]);
    const std::size_t n = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    return std::min(n, text.size() - i);
}

// Every character's cell, from the layout's line and run records alone: a run starts at the line's x plus the
// run's x and offset, and its characters follow each other by half the size below 0x80, the full size above.
std::vector<Cell> CellsOfLayout(const CSimAutoText& text) {
    std::vector<Cell> cells;
    for (const SAutoTextRun& run : text.GetRuns()) {
        const SAutoTextLine& line = text.GetLines().at(static_cast<std::size_t>(run.nLine));
        int x = text.GetPos().x + line.nX + run.nX;
        const int y = text.GetPos().y + line.nY + run.nOffsetY;
        for (std::size_t i = 0; i < run.strText.size();) {
            const std::size_t n = CharacterLength(run.strText, i);
            const int width = n == 1 ? run.nFontSize / 2 : run.nFontSize;
            cells.push_back(Cell{run.strText.substr(i, n), x, y, width, run.nFontSize});
            x += width;
            i += n;
        }
    }
    return cells;
}

class AutoTextRaster : public testing::Test {
protected:
    void SetUp() override {
        host::ResetForTest();
        host::SetScreenSize(SCREEN_WIDTH, SCREEN_HEIGHT);
        host::UseCanvas(host::CanvasKind::Raster);
    }
    void TearDown() override {
        host::UseCanvas(host::CanvasKind::Recording);
        host::ResetForTest();
    }
    static void Draw(CSimAutoText& text) {
        host::BeginFrame(BACKGROUND);
        text.ShowAt(ORIGIN_X, ORIGIN_Y);
    }
    /// Where the ink of a character alone starts relative to its cell's corner.
    static POINT InkOffset(const Cell& cell) {
        host::BeginFrame(BACKGROUND);
        CMyBitmap::ShowString(0, 0, 0xFFFFFFFF, cell.character.c_str(), nullptr, cell.size);
        return Frame().FirstInk(0, 0, cell.width, cell.size);
    }
};

// Vertical strokes ("|" and the CJK stroke "丨") have one clear first ink column, so each glyph's place on
// the raster can be read back and set against its cell.
TEST_F(AutoTextRaster, EveryGlyphStandsInTheCellOfTheLayoutDump) {
    CSimAutoText text;
    text.SetWidth(300);
    text.SetText("||</#R>||\xE4\xB8\xA8|</S20>||\xE4\xB8\xA8</D>|||", true, true);
    ASSERT_EQ(text.GetLineCount(), 1);
    text.SetPos(ORIGIN_X, ORIGIN_Y);
    const std::vector<Cell> cells = CellsOfLayout(text);
    ASSERT_EQ(cells.size(), 12u);

    std::vector<POINT> offsets;
    for (const Cell& cell : cells) offsets.push_back(InkOffset(cell));
    Draw(text);
    const Frame frame;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const Cell& cell = cells[i];
        SCOPED_TRACE("character " + std::to_string(i) + " \"" + cell.character + "\" in the cell at x " +
                     std::to_string(cell.x));
        ASSERT_GE(offsets[i].x, 0) << "the glyph alone draws nothing";
        const POINT ink = frame.FirstInk(cell.x, cell.y, cell.x + cell.width, cell.y + cell.size);
        EXPECT_EQ(ink.x, cell.x + offsets[i].x);
        EXPECT_EQ(ink.y, cell.y + offsets[i].y);
    }
}

TEST_F(AutoTextRaster, RunsOfOtherColoursFollowWithoutOverlapAndLinesKeepTheirLaidOutWidth) {
    CSimAutoText text;
    text.SetText("ab</#R>cd", true, true);
    Draw(text);
    Frame frame;
    ASSERT_EQ(text.GetRuns().size(), 2u);
    const int redStart = ORIGIN_X + text.GetRuns()[1].nX;
    EXPECT_EQ(redStart, ORIGIN_X + 14);
    const auto white = frame.ColumnsOf(Tint::White, ORIGIN_Y, ORIGIN_Y + 16);
    const auto red = frame.ColumnsOf(Tint::Red, ORIGIN_Y, ORIGIN_Y + 16);
    ASSERT_GE(white.first, ORIGIN_X);
    EXPECT_LT(white.second, redStart) << "ab ends before cd";
    EXPECT_GE(red.first, redStart);
    EXPECT_LT(red.second, redStart + 14);

    // 40 of the widest letter in 224 pixels: 32 fit on the first line, which draws inside those 224 pixels.
    text.SetWidth(224);
    text.SetText(std::string(40, 'W').c_str(), true, false);
    ASSERT_EQ(text.GetLineCount(), 2);
    EXPECT_EQ(text.GetLineWidth(0), 224);
    Draw(text);
    frame = Frame();
    const auto line = frame.ColumnsOf(Tint::White, ORIGIN_Y, ORIGIN_Y + 14);
    EXPECT_GE(line.first, ORIGIN_X);
    EXPECT_LT(line.second, ORIGIN_X + 224);
    EXPECT_GE(line.second, ORIGIN_X + 224 - 7) << "the last W in the last cell";
}

} // namespace
