// The host libraries' text layer: each format's rule for repeats, Windows line ends, bad UTF-8, and client
// names with ".." or any case.
#include <gtest/gtest.h>

#include <filesystem>

#include "BaseLib.h"
#include "LogCapture.h"
#include "TempClientDir.h"
#include "text/ClientPath.h"
#include "text/IniDocument.h"
#include "text/Utf8.h"

namespace {

using txt::IniDocument;

// A section and a key that both come again, in different spellings.
constexpr const char* REPEATS = "[Dialog1]\n"
                                "Rect = 1 1 1 1\n"
                                "Frame0 = first\n"
                                "Text = kept\n"
                                "[other]\n"
                                "x = 1\n"
                                "[DIALOG1]\n"
                                "Rect = 2 2 2 2\n"
                                "Tip = from the repeat\n"
                                "[Dialog1]\n"
                                "FRAME0 = second\n";

std::string Value(const IniDocument& doc, const char* section, const char* key) {
    const std::string* value = doc.Value(section, key);
    return value ? *value : "(none)";
}

std::string WithCrlf(const std::string& text) {
    std::string out;
    for (char c : text) out += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return out;
}

TEST(IniDocument, EachFormatKeepsItsRuleForRepeats) {
    const IniDocument profile = IniDocument::Parse(REPEATS, txt::PROFILE_RULES);
    EXPECT_EQ(Value(profile, "dialog1", "rect"), "1 1 1 1") << "merged; the first value of a key counts";
    EXPECT_EQ(Value(profile, "Dialog1", "Tip"), "from the repeat");
    EXPECT_EQ(Value(profile, "Dialog1", "Frame0"), "first");
    EXPECT_EQ(profile.Sections().size(), 2u);

    const IniDocument layout = IniDocument::Parse(REPEATS, txt::LAYOUT_RULES);
    EXPECT_EQ(Value(layout, "Dialog1", "Rect"), "1 1 1 1");
    EXPECT_EQ(Value(layout, "Dialog1", "Tip"), "(none)") << "a repeated section adds nothing";
    EXPECT_EQ(Value(layout, "Dialog1", "Frame0"), "first");

    const IniDocument index = IniDocument::Parse(
        "[A]\nFrame0 = first\nFrame1 = x\nframe0 = second\n[a]\nFrame0 = no\n", txt::ANIMATION_INDEX_RULES);
    ASSERT_EQ(index.Sections().size(), 1u);
    const auto& entries = index.Sections()[0].entries;
    ASSERT_EQ(entries.size(), 2u) << "the replaced line is gone";
    EXPECT_EQ(entries[1].key, "frame0") << "a later value moves to its own place";
    EXPECT_EQ(entries[1].value, "second");
    EXPECT_EQ(entries[1].line, 4);
    EXPECT_EQ(index.Sections()[0].Value("FRAME1") ? *index.Sections()[0].Value("FRAME1") : "", "x");

    const IniDocument last = IniDocument::Parse(
        REPEATS, txt::IniRules{txt::IniSectionRepeat::LastWins, txt::IniKeyRepeat::FirstWins});
    EXPECT_EQ(Value(last, "Dialog1", "Frame0"), "second") << "the last section replaces the earlier ones";
    EXPECT_EQ(Value(last, "Dialog1", "Rect"), "(none)");
    EXPECT_EQ(last.Find("dialog1")->line, 10);

    int repeatedSections = 0, repeatedKeys = 0;
    for (const txt::IniIssue& issue : profile.Issues()) {
        repeatedSections += issue.kind == txt::IniIssue::Kind::RepeatedSection;
        repeatedKeys += issue.kind == txt::IniIssue::Kind::RepeatedKey;
    }
    EXPECT_EQ(repeatedSections, 2);
    EXPECT_EQ(repeatedKeys, 2) << "Rect and FRAME0 came again";
}

TEST(IniDocument, MalformedLinesAreReportedWithTheirLineAndTheRestIsRead) {
    const IniDocument doc = IniDocument::Parse("early = outside\n"
                                               "; comment\n"
                                               "  # comment\n"
                                               "[Open\n"
                                               "lost = under a broken section\n"
                                               "[]\n"
                                               "[ Good ] trailing words\n"
                                               "no equals sign\n"
                                               "= no key\n"
                                               "\tkey\t=\t a = b \t\n"
                                               "empty =\n",
                                               txt::PROFILE_RULES);
    using Kind = txt::IniIssue::Kind;
    const std::vector<std::pair<Kind, int>> expected{{Kind::OutsideSection, 1}, {Kind::UnclosedSection, 4},
                                                     {Kind::OutsideSection, 5}, {Kind::EmptySectionName, 6},
                                                     {Kind::MissingEquals, 8},  {Kind::EmptyKey, 9}};
    ASSERT_EQ(doc.Issues().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(doc.Issues()[i].kind, expected[i].first) << i;
        EXPECT_EQ(doc.Issues()[i].line, expected[i].second) << i;
    }
    ASSERT_EQ(doc.Sections().size(), 1u);
    EXPECT_EQ(doc.Sections()[0].name, "Good");
    EXPECT_EQ(Value(doc, "good", "KEY"), "a = b") << "the value runs to the line end, blanks trimmed";
    EXPECT_EQ(Value(doc, "good", "empty"), "");
}

TEST(IniDocument, WindowsLineEndsReadLikeLineFeedsInEveryFormat) {
    const std::string lf = std::string(REPEATS) + "[Last]\nvalue = ends the file";
    for (const txt::IniRules rules : {txt::PROFILE_RULES, txt::LAYOUT_RULES, txt::ANIMATION_INDEX_RULES}) {
        const IniDocument a = IniDocument::Parse(lf, rules);
        const IniDocument b = IniDocument::Parse(WithCrlf(lf), rules);
        ASSERT_EQ(a.Sections().size(), b.Sections().size());
        for (std::size_t s = 0; s < a.Sections().size(); ++s) {
            ASSERT_EQ(a.Sections()[s].entries.size(), b.Sections()[s].entries.size());
            for (std::size_t e = 0; e < a.Sections()[s].entries.size(); ++e) {
                EXPECT_EQ(b.Sections()[s].entries[e].key, a.Sections()[s].entries[e].key);
                EXPECT_EQ(b.Sections()[s].entries[e].value, a.Sections()[s].entries[e].value);
            }
        }
        EXPECT_EQ(b.Issues().size(), a.Issues().size());
    }

    // The same through the file layer and the profile functions.
    TempClientDir dir;
    dir.Write("Ini/Setup.ini", WithCrlf("[LastLogin]\nRecord = 2$1$3\n"));
    char buf[32];
    EXPECT_EQ(MyGetPrivateProfileString("lastlogin", "record", "", buf, sizeof buf, "ini/setup.ini"), 5u);
    EXPECT_STREQ(buf, "2$1$3");
    const auto doc = IniDocument::Load("INI\\SETUP.INI", txt::PROFILE_RULES);
    ASSERT_TRUE(doc.has_value());
    EXPECT_EQ(Value(*doc, "LastLogin", "Record"), "2$1$3");
    EXPECT_FALSE(IniDocument::Load("ini/none.ini", txt::PROFILE_RULES).has_value());
    EXPECT_EQ(IniDocument::ReadClientFile("ini/setup.ini", 4), "[Las") << "reading stops at the limit";
}

// ---- UTF-8 ---------------------------------------------------------------------------------------

TEST(Utf8, BrokenSequencesDecodeAsOneReplacementPerByte) {
    constexpr char32_t R = txt::Utf8::REPLACEMENT;
    const std::pair<std::string, std::u32string> cases[] = {
        {"a\xE4\xB8\xAD", U"a\u4E2D"},
        {"\xF0\x9F\x98\x80", U"\U0001F600"},
        {"\xE4\xB8", {R, R}},                 // cut short
        {"\xC0\x80", {R, R}},                 // overlong zero
        {"\xE0\x80\xAF", {R, R, R}},          // overlong slash
        {"\xED\xA0\x80", {R, R, R}},          // a surrogate
        {"\xF4\x90\x80\x80", {R, R, R, R}},   // past U+10FFFF
        {"\x80z", {R, U'z'}},                 // a lone continuation byte
        {"\xF5\xE4\xB8\xAD", {R, U'\u4E2D'}}, // never a lead byte, then a whole character
    };
    for (const auto& [bytes, decoded] : cases) EXPECT_EQ(txt::Utf8::ToUtf32(bytes), decoded) << bytes;
    EXPECT_EQ(txt::Utf8::ToUtf16("\xF0\x9F\x98\x80\xE4"), std::u16string(u"\U0001F600\uFFFD"));
    EXPECT_EQ(txt::Utf8::Utf16ToUtf32(u"\xD800x\xDC00"), std::u32string({R, U'x', R}));

    std::string encoded;
    for (char32_t c : {U'\u00E9', char32_t{0xD800}, char32_t{0x110000}}) txt::Utf8::Append(encoded, c);
    EXPECT_EQ(encoded, "\xC3\xA9\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf8, BoundariesNeverSplitACharacterAndBrokenBytesStandAlone) {
    const std::string text = "a\xE4\xB8\xAD\x80\xF0\x9F\x98\x80"; // a, 中, a stray byte, an emoji
    std::vector<std::size_t> forward;
    for (std::size_t pos = 0; pos < text.size(); pos = txt::Utf8::NextBoundary(text, pos))
        forward.push_back(pos);
    EXPECT_EQ(forward, (std::vector<std::size_t>{0, 1, 4, 5}));
    std::vector<std::size_t> backward;
    for (std::size_t pos = text.size(); pos > 0;)
        backward.push_back(pos = txt::Utf8::PreviousBoundary(text, pos));
    EXPECT_EQ(backward, (std::vector<std::size_t>{5, 4, 1, 0}));
    EXPECT_EQ(txt::Utf8::PreviousBoundary(text, 3), 1u) << "from inside a character";
    EXPECT_EQ(txt::Utf8::NextBoundary(text, 2), 4u);
    EXPECT_EQ(txt::Utf8::CutAtBoundary(text, 3), 1u);
    EXPECT_EQ(txt::Utf8::CutAtBoundary(text, 8), 5u);
    EXPECT_EQ(txt::Utf8::CutAtBoundary(text, 99), text.size());
    // Replacing character for character counts a character cut short once.
    EXPECT_EQ(txt::Utf8::SequenceLength("\xF0\x9F\x98", 0, txt::Utf8Broken::PerSubpart), 3u);
    EXPECT_EQ(txt::Utf8::SequenceLength("\xF0\x9F\x98", 0), 1u);
}

// ---- client names --------------------------------------------------------------------------------

TEST(ClientPath, NamesResolveInAnyCaseAndDotDotNeverLeavesTheClientDirectory) {
    TempClientDir outside;
    outside.Write("client/Ani/Control.ani", "a");
    outside.Write("client/Ini/Server.ini", "b");
    outside.Write("secret.ini", "c");
    host::SetClientDir((outside.Path() / "client").string());
    const std::string control = (outside.Path() / "client/Ani/Control.ani").string();

    for (const char* name :
         {"ani/control.ANI", "ANI\\Control.ani", "./ani/./control.ani", "ini/../Ani/control.ani"})
        EXPECT_EQ(txt::ClientPath::Resolve(name), control) << name;
    EXPECT_EQ(txt::ClientPath::NormalKey("ini/../Ani\\.\\Control.ani"),
              txt::ClientPath::NormalKey("ani/control.ani"));
    EXPECT_NE(txt::ClientPath::NormalKey("../client/ani/control.ani"),
              txt::ClientPath::NormalKey("ani/control.ani"));

    for (const char* name : {"../secret.ini", "ani/../../secret.ini", "..\\client\\ani\\control.ani"}) {
        EXPECT_EQ(txt::ClientPath::Resolve(name, txt::ClientEntry::Any), "") << name;
        EXPECT_EQ(Safefopen(name, "r"), nullptr) << name;
    }
    EXPECT_EQ(txt::ClientPath::Resolve((outside.Path() / "secret.ini").string()),
              (outside.Path() / "secret.ini").string())
        << "absolute names are taken as they are";

    EXPECT_EQ(txt::ClientPath::Resolve("ANI"), "") << "a folder is not a file";
    EXPECT_NE(txt::ClientPath::Resolve("ANI", txt::ClientEntry::Folder), "");
    EXPECT_TRUE(PathFileExistsA("ini\\SERVER.INI"));
    EXPECT_FALSE(PathFileExistsA("../secret.ini"));
    EXPECT_EQ(txt::ClientPath::Resolve("ani/New.bmp", txt::ClientEntry::NewFile),
              (outside.Path() / "client/Ani/New.bmp").string())
        << "a file to write keeps its spelling in the folder found in any case";
    EXPECT_EQ(txt::ClientPath::Resolve("none/New.bmp", txt::ClientEntry::NewFile), "");
}

} // namespace
