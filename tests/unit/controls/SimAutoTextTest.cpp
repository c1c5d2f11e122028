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
#include "platform/Graphics.h"

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

std::vector<host::DrawOp> DrawClipped(CSimAutoText& text, int x, int y, const RECT& clip) {
    host::UseCanvas(host::CanvasKind::Recording);
    host::BeginFrame();
    CMyBitmap::SetClipRect(&clip);
    text.ShowAt(x, y);
    std::vector<host::DrawOp> ops = host::GetRecordedOps();
    CMyBitmap::SetClipRect(nullptr);
    return ops;
}

// Whether an operation's rows (a line's one row included) meet the clip's rows.
bool TouchesRows(const host::DrawOp& op, const RECT& clip) {
    const int nTop = std::min(op.y, op.y + op.h);
    const int nBottom = std::max(op.y, op.y + op.h) + (op.kind == "line" || op.h == 0 ? 1 : 0);
    return nTop < clip.bottom && nBottom > clip.top;
}

std::string Describe(const host::DrawOp& op) {
    return op.kind + " " + op.text + " " + std::to_string(op.x) + "," + std::to_string(op.y);
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

// Everything a layout depends on; a text handed over again keeps its layout only while all of it is
// unchanged.
struct SLayoutSettings {
    std::string text = "ab cd</#R>e fghij\\nkl";
    int nWidth = 50;
    int nFont = 14;
    DWORD dwColor = 0x123456;
    int nCharSpacing = 0;
    int nLineSpacing = 2;
    int nStyle = CSimAutoText::STYLE_PLAIN;
    unsigned nStrResMode = 0;
    bool bWrap = true;
    bool bTags = true;
    const char* szLanguage = "Chinese";
};

void Apply(const SLayoutSettings& s, CSimAutoText& text) {
    host::SetData("language", s.szLanguage);
    text.SetFontSize(s.nFont);
    text.SetWidth(s.nWidth);
    text.SetColor(s.dwColor);
    text.SetCharSpacing(s.nCharSpacing);
    text.SetLineSpacing(s.nLineSpacing);
    text.SetStyle(s.nStyle);
    text.SetStrResMode(s.nStrResMode);
    text.SetText(s.text.c_str(), s.bWrap, s.bTags);
}

std::string FreshDump(const SLayoutSettings& s) {
    CSimAutoText text;
    Apply(s, text);
    return autotext::Dump(text);
}

TEST(AutoTextCache, AnyChangedInputLaysTheTextOutAgain) {
    using Change = void (*)(SLayoutSettings&);
    const std::pair<const char*, Change> changes[] = {
        {"text, same length", [](SLayoutSettings& s) { s.text = "xy zw</#G>e fghij\\nkl"; }},
        {"width", [](SLayoutSettings& s) { s.nWidth = 90; }},
        {"font", [](SLayoutSettings& s) { s.nFont = 20; }},
        {"colour", [](SLayoutSettings& s) { s.dwColor = 0x654321; }},
        {"character spacing", [](SLayoutSettings& s) { s.nCharSpacing = 2; }},
        {"line spacing", [](SLayoutSettings& s) { s.nLineSpacing = 5; }},
        {"style", [](SLayoutSettings& s) { s.nStyle = CSimAutoText::STYLE_UNDERLINE; }},
        {"string-resource mode", [](SLayoutSettings& s) { s.nStrResMode = 3; }},
        {"wrap", [](SLayoutSettings& s) { s.bWrap = false; }},
        {"tags", [](SLayoutSettings& s) { s.bTags = false; }},
        {"language", [](SLayoutSettings& s) { s.szLanguage = "English"; }},
    };
    const SLayoutSettings base;
    const std::string baseDump = FreshDump(base);
    for (const auto& [szWhat, change] : changes) {
        SCOPED_TRACE(szWhat);
        SLayoutSettings changed = base;
        change(changed);
        const std::string expected = FreshDump(changed);
        ASSERT_NE(expected, baseDump) << "the change must show in the layout";
        CSimAutoText text;
        Apply(base, text);
        Apply(changed, text);
        EXPECT_EQ(autotext::Dump(text), expected);
        Apply(base, text); // and back
        EXPECT_EQ(autotext::Dump(text), baseDump);
    }
    host::SetData("language", "");
}

TEST(AutoTextCache, SameTextInTheSameBufferAfterClearIsLaidOutAgain) {
    CSimAutoText text;
    char buffer[] = "abc";
    text.SetText(buffer, true, true);
    buffer[1] = 'X';
    text.SetText(buffer, true, true);
    EXPECT_EQ(AllRunText(text), "aXc");
    text.Clear();
    text.SetText(buffer, true, true);
    EXPECT_EQ(text.GetLineCount(), 1);
    EXPECT_EQ(AllRunText(text), "aXc");
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

// Leaving out runs far from the clip rectangle must never lose one that draws into it: through clip windows
// one pixel high at every height, the runs drawn are exactly those of an unclipped draw that touch the
// window.
TEST(AutoTextDraw, RunsLeftOutOfAClippedDrawTouchNoPixelOfIt) {
    CSimAutoText text;
    text.SetWidth(100);
    for (const unsigned nMode : {0u, 5u}) {
        text.SetStrResMode(nMode);
        text.SetText("ab</S30>cd</u>ef\\ngh</S4>ij</S>kl\\n</S1>mnop</S>q</S90>r", true, true);
        const std::vector<host::DrawOp> all = Draw(text, 3, 40);
        for (int nClipTop = 0; nClipTop < 300; ++nClipTop) {
            SCOPED_TRACE(testing::Message() << "mode " << nMode << " clip top " << nClipTop);
            const RECT clip{0, nClipTop, 1024, nClipTop + 1};
            std::vector<std::string> expected, drawn;
            for (const host::DrawOp& op : all)
                if (TouchesRows(op, clip)) expected.push_back(Describe(op));
            for (const host::DrawOp& op : DrawClipped(text, 3, 40, clip)) drawn.push_back(Describe(op));
            EXPECT_EQ(drawn, expected);
        }
    }
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
