// Auto text: layout dumps compared with expected files (tests/data/autotext), drawing, and bounds.
//
// Case files, tests/data/autotext/NAME.txt: the first line holds the parameters as "key=value" words after a
// "#": width, font, spacing, align (0 left, 1 right, 2 centre), wrap and tags (1 on, 0 off; both on by
// default), strres (string-resource mode), language (host language name; "English" breaks at spaces). The
// rest of the file is the text, without the file's last line feed; a real line feed inside it is removed by
// the newline preparation, so line breaks are written as the marks "\n", "\b" or "/b". NAME.expected holds
// the dump of the layout (AutoTextDump.h): "size WxH", then each line record "line I x= y= w= h=" followed by
// its runs "  run x= dy= font= color= style= "text"", runs of unknown lines last. After an intended layout
// change, scripts/regen-autotext rewrites the dumps (FLASHSIM_REGEN=1); review the diff.
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

std::string AllRunText(const CSimAutoText& text) {
    std::string all;
    for (const auto& run : text.GetRuns()) all += run.strText;
    return all;
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
        if (!fs::exists(expected)) {
            ADD_FAILURE() << "no " << expected.filename() << ": run scripts/regen-autotext";
            continue;
        }
        EXPECT_EQ(dump, ReadFile(expected));
    }
    EXPECT_GE(nCases, 20);
}

TEST(AutoText, PlainTagRestoresDefaultsAndClearsTheDefaultStyle) {
    CSimAutoText text;
    text.SetColor(0x123456);
    text.SetStyle(CSimAutoText::STYLE_UNDERLINE);
    text.SetText("a</#G></S20></F>b</D>c", true, true);
    const auto& runs = text.GetRuns();
    ASSERT_EQ(runs.size(), 5u);
    EXPECT_EQ(runs.front().nStyle, CSimAutoText::STYLE_UNDERLINE); // text before the first tag: defaults
    EXPECT_EQ(runs[3].strText, "b");
    EXPECT_EQ(runs[3].nStyle, CSimAutoText::STYLE_BLINK);
    EXPECT_EQ(runs[3].dwColor, CSimAutoText::COLOR_GREEN);
    EXPECT_EQ(runs[3].nFontSize, 20);
    EXPECT_EQ(runs.back().strText, "c");
    EXPECT_EQ(runs.back().dwColor, 0x123456u);
    EXPECT_EQ(runs.back().nFontSize, 14);
    EXPECT_EQ(runs.back().nStyle, CSimAutoText::STYLE_PLAIN);
}

TEST(AutoText, WithoutTextNothingIsLaidOut) {
    CSimAutoText text;
    text.SetText("abc", true, true);
    EXPECT_EQ(text.SetText(nullptr, true, true), 0);
    EXPECT_EQ(text.GetLineCount(), 1); // the previous layout stays
    text.Clear();
    EXPECT_EQ(text.GetLineCount(), 0);
    EXPECT_EQ(text.GetTextSize().cx, 0);
    EXPECT_EQ(text.GetTextSize().cy, 0);
    EXPECT_EQ(text.GetLineWidth(0), 0);
    EXPECT_EQ(text.GetLineWidth(-1), 0);
    EXPECT_EQ(text.SetText("", true, true), 1);
    EXPECT_EQ(text.GetLineCount(), 1);
    EXPECT_EQ(text.GetLineWidth(0), 0);
}

TEST(AutoText, WidthNeverBelowFontSizeAndAlignChangesApplyAtOnce) {
    CSimAutoText text;
    text.SetWidth(-50);
    EXPECT_EQ(text.GetWidth(), 14);
    text.SetWidth(0);
    EXPECT_EQ(text.GetWidth(), 14);
    text.SetWidth(300);
    text.SetText("abcd", true, true); // 28 pixels wide
    EXPECT_EQ(text.GetLines()[0].nX, 0);
    text.SetAlign(CSimAutoText::ALIGN_RIGHT);
    EXPECT_EQ(text.GetLines()[0].nX, 300 - 28);
    text.SetAlign(CSimAutoText::ALIGN_CENTER);
    EXPECT_EQ(text.GetLines()[0].nX, 150 - 14);
    text.SetAlign(CSimAutoText::ALIGN_LEFT);
    EXPECT_EQ(text.GetLines()[0].nX, 0);
}

TEST(AutoText, LongRunsAreCutAndLayoutEnds) {
    CSimAutoText text;
    text.SetWidth(1 << 30);
    const std::string big(5000, 'a');
    text.SetText(big.c_str(), false, true);
    ASSERT_EQ(text.GetRuns().size(), 1u);
    EXPECT_EQ(text.GetRuns()[0].strText.size(), CSimAutoText::MAX_RUN_TEXT);
    EXPECT_EQ(text.GetLineWidth(0), static_cast<int>(CSimAutoText::MAX_RUN_TEXT) * 7);
}

TEST(AutoText, LeadByteAtTheEndStaysInBounds) {
    CSimAutoText text;
    text.SetWidth(14);
    const char bytes[] = {'a', static_cast<char>(0xE4), '\0'};
    text.SetText(bytes, true, true);
    EXPECT_EQ(AllRunText(text), bytes);
    const char cut[] = {static_cast<char>(0xE4), static_cast<char>(0xB8), 'x', '\0'};
    text.SetText(cut, true, true);
    EXPECT_EQ(AllRunText(text), cut);
}

// Without tags and newlines, breaking lines must neither lose nor repeat a byte, and every line but the last
// holds something, whatever the widths.
TEST(AutoText, BreaksKeepEveryByteOnce) {
    const std::string texts[] = {
        "the quick brown fox jumps over the lazy dog",
        "a  b   c    d supercalifragilistic e",
        "\xE4\xB8\xAD\xE6\x96\x87 mixed \xE5\xAD\x97 text with\xE7\xAC\xA6spaces",
        "                ",
        "x",
    };
    for (const char* szLanguage : {"Chinese", "English"}) {
        host::SetData("language", szLanguage);
        for (int nFont : {1, 14, 40})
            for (int nWidth : {1, 14, 30, 71, 300})
                for (int nSpacing : {-3, 0, 5})
                    for (const std::string& s : texts) {
                        SCOPED_TRACE(testing::Message()
                                     << szLanguage << " font " << nFont << " width " << nWidth << " spacing "
                                     << nSpacing << " \"" << s << "\"");
                        CSimAutoText text;
                        text.SetFontSize(nFont);
                        text.SetWidth(nWidth);
                        text.SetCharSpacing(nSpacing);
                        text.SetText(s.c_str(), true, false);
                        EXPECT_EQ(AllRunText(text), s);
                        ASSERT_EQ(text.GetRuns().size(), text.GetLines().size());
                        for (std::size_t i = 0; i + 1 < text.GetRuns().size(); ++i)
                            EXPECT_FALSE(text.GetRuns()[i].strText.empty()) << "line " << i;
                    }
    }
}

TEST(AutoTextDraw, PlainRunsAreDrawnAtLinePlusRunPosition) {
    CSimAutoText text;
    text.SetAlign(CSimAutoText::ALIGN_RIGHT);
    text.SetText("ab</#G>cd\\nef", true, true);
    const auto ops = Draw(text, 10, 20);
    ASSERT_EQ(ops.size(), 3u);
    EXPECT_EQ(ops[0].kind, "text");
    EXPECT_EQ(ops[0].text, "ab");
    EXPECT_EQ(ops[0].x, 10 + 300 - 28);
    EXPECT_EQ(ops[0].colour, 0xFFFFFFFFu);
    EXPECT_EQ(ops[1].x, 10 + 300 - 28 + 14);
    EXPECT_EQ(ops[1].y, 20);
    EXPECT_EQ(ops[1].colour, CSimAutoText::COLOR_GREEN);
    EXPECT_EQ(ops[1].size, 14);
    EXPECT_EQ(ops[2].text, "ef");
    EXPECT_EQ(ops[2].x, 10 + 300 - 14);
    EXPECT_EQ(ops[2].y, 20 + 16);
}

TEST(AutoTextDraw, BlinkInvertsTheColourInTheSecondHalfOfEachPeriod) {
    CSimAutoText text;
    text.SetText("</#102030></F>x</#R>y", true, true);
    host::SetClock(100000); // 100000 % 500 == 0: first half
    auto ops = Draw(text);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[0].colour, 0xFF102030u);
    EXPECT_EQ(ops[1].colour, 0xFFFF0000u);
    host::SetClock(100249);
    EXPECT_EQ(Draw(text)[0].colour, 0xFF102030u);
    host::SetClock(100250);
    ops = Draw(text);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[0].colour, 0xFF000000u | (0xFFFFFFu - 0x102030u));
    EXPECT_EQ(ops[1].colour, 0xFF00FFFFu); // a tag colour's alpha does not disturb the complement
    host::AdvanceClock(250);
    EXPECT_EQ(Draw(text)[0].colour, 0xFF102030u);
}

TEST(AutoTextDraw, UnderlineRunsGetALineBelowTheText) {
    CSimAutoText text;
    text.SetText("</u>abcd</#R>\xE4\xB8\xAD", true, true);
    const auto ops = Draw(text, 5, 5);
    ASSERT_EQ(ops.size(), 4u);
    EXPECT_EQ(ops[1].kind, "line");
    EXPECT_EQ(ops[1].x, 5);
    EXPECT_EQ(ops[1].y, 5 + 14 + 2);
    EXPECT_EQ(ops[1].w, 4 * 7);
    EXPECT_EQ(ops[1].h, 0);
    EXPECT_EQ(ops[1].colour, 0xFFFFFFFFu);
    // The line's length counts bytes: three for this character.
    EXPECT_EQ(ops[3].kind, "line");
    EXPECT_EQ(ops[3].x, 5 + 28);
    EXPECT_EQ(ops[3].w, 3 * 7);
    EXPECT_EQ(ops[3].colour, CSimAutoText::COLOR_RED);
}

TEST(AutoTextDraw, StringResourceModeDrawsThroughTheResourceRenderer) {
    CSimAutoText text;
    text.SetStrResMode(7);
    text.SetText("a\nb</#R>c", true, true); // the newline is removed first
    const auto ops = Draw(text, 3, 4);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[0].kind, "strres");
    EXPECT_EQ(ops[0].frame, 7);
    EXPECT_EQ(ops[0].text, "ab");
    EXPECT_EQ(ops[0].x, 3);
    EXPECT_EQ(ops[0].y, 4);
    EXPECT_EQ(ops[1].text, "c");
    EXPECT_EQ(ops[1].x, 3 + 14);
    EXPECT_EQ(ops[1].colour, CSimAutoText::COLOR_RED);
}

TEST(AutoTextDraw, EnglishOnlyClientsSeeQuestionMarks) {
    host::SetData("englishonly", "1");
    CSimAutoText text;
    text.SetStyle(CSimAutoText::STYLE_UNDERLINE);
    text.SetText("a\xE4\xB8\xAD", true, true);
    const auto ops = Draw(text);
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[0].text, "a?");
    EXPECT_EQ(ops[1].w, 2 * 7); // the line measures the text as drawn
}
