// Auto text: layout dumps compared with expected files (tests/data/autotext), drawing, and bounds.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "AutoTextDump.h"
#include "controls/SimAutoText.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"

namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

std::vector<host::DrawOp> Draw(CSimAutoText& text, int x = 0, int y = 0) {
    host::UseCanvas(host::CanvasKind::Recording);
    host::BeginFrame();
    text.ShowAt(x, y);
    return host::GetRecordedOps();
}

} // namespace

// Every case file's layout must match its expected dump; FLASHSIM_REGEN=1 rewrites the dumps instead.
TEST(AutoTextLayout, MatchesExpectedDumps) {
    const fs::path dir = fs::path(FLASHSIM_TEST_DATA) / "autotext";
    const bool bRegen = std::getenv("FLASHSIM_REGEN") != nullptr;
    int nCases = 0;
    for (const auto& entry : fs::directory_iterator(dir)) {
        if (entry.path().extension() != ".txt") continue;
        ++nCases;
        SCOPED_TRACE(entry.path().filename().string());
        host::ResetForTest();
        CSimAutoText text;
        autotext::LayOut(autotext::ParseCase(ReadFile(entry.path())), text);
        const std::string dump = autotext::Dump(text);
        fs::path expected = entry.path();
        expected.replace_extension(".expected");
        if (bRegen) {
            std::ofstream(expected, std::ios::binary) << dump;
            continue;
        }
        ASSERT_TRUE(fs::exists(expected)) << "run scripts/regen-autotext";
        EXPECT_EQ(dump, ReadFile(expected));
    }
    EXPECT_GE(nCases, 10);
}

TEST(AutoText, ColourTagSplitsRunsAtArithmeticWidths) {
    CSimAutoText text;
    text.SetCharSpacing(1);
    text.SetText("ab</#R>cd", true, true);
    ASSERT_EQ(text.GetRuns().size(), 2u);
    EXPECT_EQ(text.GetRuns()[0].strText, "ab");
    EXPECT_EQ(text.GetRuns()[0].dwColor, 0xFFFFFFu);
    EXPECT_EQ(text.GetRuns()[1].strText, "cd");
    EXPECT_EQ(text.GetRuns()[1].dwColor, 0xFFFF0000u);
    EXPECT_EQ(text.GetRuns()[1].nX, 2 * (7 + 1));
    EXPECT_EQ(text.GetLineCount(), 1);
}

TEST(AutoText, LargerSizeTagMovesEarlierRunsDown) {
    CSimAutoText text;
    text.SetText("ab</S20>cd", true, true);
    ASSERT_EQ(text.GetRuns().size(), 2u);
    EXPECT_EQ(text.GetRuns()[0].nOffsetY, 6);
    EXPECT_EQ(text.GetRuns()[1].nOffsetY, 0);
    EXPECT_EQ(text.GetLines()[0].nHeight, 22);
}

TEST(AutoText, WithoutTextNothingIsLaidOut) {
    CSimAutoText text;
    text.SetText("abc", true, true);
    EXPECT_EQ(text.SetText(nullptr, true, true), 0);
    EXPECT_EQ(text.GetLineCount(), 1); // the previous layout stays
    text.Clear();
    EXPECT_EQ(text.GetLineCount(), 0);
    EXPECT_EQ(text.GetTextSize().cx, 0);
    EXPECT_EQ(text.GetLineWidth(5), 0);
}

TEST(AutoText, WidthNeverBelowFontSizeAndAlignChangesApplyAtOnce) {
    CSimAutoText text;
    text.SetWidth(-50);
    EXPECT_EQ(text.GetWidth(), 14);
    text.SetWidth(300);
    text.SetText("abcd", true, true); // 28 pixels wide
    EXPECT_EQ(text.GetLines()[0].nX, 0);
    text.SetAlign(CSimAutoText::ALIGN_RIGHT);
    EXPECT_EQ(text.GetLines()[0].nX, 300 - 28);
    text.SetAlign(CSimAutoText::ALIGN_CENTER);
    EXPECT_EQ(text.GetLines()[0].nX, 150 - 14);
}

TEST(AutoText, LongRunsAreCutAndLayoutEnds) {
    CSimAutoText text;
    text.SetWidth(1 << 30);
    const std::string big(5000, 'a');
    text.SetText(big.c_str(), false, true);
    ASSERT_EQ(text.GetRuns().size(), 1u);
    EXPECT_EQ(text.GetRuns()[0].strText.size(), CSimAutoText::MAX_RUN_TEXT);
}

TEST(AutoText, HugeSizeTagEndsTheLayoutEarly) {
    CSimAutoText text;
    text.SetWidth(100);
    text.SetText("ab</S99999999999>cd\\nef", true, true);
    EXPECT_EQ(text.GetLineCount(), 0);
    EXPECT_TRUE(Draw(text).empty()); // runs of lines that were never closed are not drawn
}

TEST(AutoText, LeadByteAtTheEndStaysInBounds) {
    CSimAutoText text;
    text.SetWidth(14);
    const char bytes[] = {'a', static_cast<char>(0xE4), '\0'};
    text.SetText(bytes, true, true);
    std::string all;
    for (const auto& run : text.GetRuns()) all += run.strText;
    EXPECT_EQ(all, bytes);
}

TEST(AutoTextDraw, PlainRunsAreDrawnAtLinePlusRunPosition) {
    CSimAutoText text;
    text.SetText("ab</#G>cd", true, true);
    const auto ops = Draw(text, 10, 20);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[0].kind, "text");
    EXPECT_EQ(ops[0].text, "ab");
    EXPECT_EQ(ops[0].colour, 0xFFFFFFFFu);
    EXPECT_EQ(ops[1].x, 10 + 14);
    EXPECT_EQ(ops[1].y, 20);
    EXPECT_EQ(ops[1].colour, 0xFF00FF00u);
    EXPECT_EQ(ops[1].size, 14);
}

TEST(AutoTextDraw, BlinkInvertsTheColourInTheSecondHalfOfEachPeriod) {
    CSimAutoText text;
    text.SetText("</#102030></F>x", true, true);
    host::SetClock(100000); // 100000 % 500 == 0: first half
    auto ops = Draw(text);
    ASSERT_EQ(ops.size(), 1u);
    EXPECT_EQ(ops[0].colour, 0xFF102030u);
    host::SetClock(100250);
    ops = Draw(text);
    ASSERT_EQ(ops.size(), 1u);
    EXPECT_EQ(ops[0].colour, 0xFF000000u | (0xFFFFFFu - 0x102030u));
}

TEST(AutoTextDraw, UnderlineRunsGetALineBelowTheText) {
    CSimAutoText text;
    text.SetText("</u>abcd", true, true);
    const auto ops = Draw(text, 5, 5);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[1].kind, "line");
    EXPECT_EQ(ops[1].x, 5);
    EXPECT_EQ(ops[1].y, 5 + 14 + 2);
    EXPECT_EQ(ops[1].w, 4 * 7);
    EXPECT_EQ(ops[1].h, 0);
}

TEST(AutoTextDraw, StringResourceModeDrawsThroughTheResourceRenderer) {
    CSimAutoText text;
    text.SetStrResMode(7);
    text.SetText("a\nb", true, true); // the newline is removed first
    const auto ops = Draw(text);
    ASSERT_EQ(ops.size(), 1u);
    EXPECT_EQ(ops[0].kind, "strres");
    EXPECT_EQ(ops[0].frame, 7);
    EXPECT_EQ(ops[0].text, "ab");
}

TEST(AutoTextDraw, EnglishOnlyClientsSeeQuestionMarks) {
    host::SetData("englishonly", "1");
    CSimAutoText text;
    text.SetText("a\xE4\xB8\xAD", true, true);
    const auto ops = Draw(text);
    ASSERT_EQ(ops.size(), 1u);
    EXPECT_EQ(ops[0].text, "a?");
}
