// The string table loader and lookups: file format, duplicates, ranged entries, fallbacks, long and odd
// lines.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "LogCapture.h"
#include "TempClientDir.h"
#include "resources/FlashStringMgr.h"

namespace {
void LoadTable(CFlashStringMgr& mgr, const TempClientDir& dir, const std::string& content) {
    dir.Write("ini/FlashString.ini", content);
    mgr.Load();
}
} // namespace

TEST(FlashStringMgr, ParsesIdsValuesAndComments) {
    TempClientDir dir;
    CFlashStringMgr mgr;
    LoadTable(mgr, dir, "12=a=b\n0=x\nabc=x\nx\n;5=x\n//5=x\n\n13=\n14=trailing\r\n");
    EXPECT_STREQ(mgr.GetStr(12), "a=b");
    EXPECT_STREQ(mgr.GetStr(5), "NOSTR 5");
    EXPECT_STREQ(mgr.GetStr(13), "");
    EXPECT_STREQ(mgr.GetStr(14), "trailing") << "a carriage return before the line feed goes with it";
    EXPECT_EQ(mgr.GetStringCount(), 3u);
    EXPECT_FALSE(mgr.IsLoading());
}

TEST(FlashStringMgr, LaterDuplicateWinsWithOneWarning) {
    TempClientDir dir;
    CFlashStringMgr mgr;
    testlog::Expect("WARN", "strres have same id");
    LoadTable(mgr, dir, "7=a\n7=b\n");
    EXPECT_STREQ(mgr.GetStr(7), "b");
    ASSERT_EQ(testlog::Count("WARN", "strres have same id"), 1);
    const auto& warn = testlog::Records().back();
    EXPECT_EQ(testlog::Key(warn, "id"), "7");
    EXPECT_FALSE(testlog::Key(warn, "svr_time").empty());
}

TEST(FlashStringMgr, RepeatedIdsPastAHundredAreSummedUpInOneLine) {
    std::string table;
    for (int i = 0; i < 100000; ++i) table += "50000001=[19968-40869]|Text\n";
    TempClientDir dir;
    CFlashStringMgr mgr;
    testlog::Expect("WARN", "strres have same id");
    LoadTable(mgr, dir, table);
    EXPECT_EQ(testlog::Count("WARN", "strres have same id"), 101);
    const auto& summary = testlog::Records().back();
    EXPECT_EQ(summary.message, "strres have same id, only the first 100 logged");
    EXPECT_EQ(testlog::Key(summary, "count"), "99999");
    EXPECT_EQ(mgr.GetRangedCount(), 1u);

    LoadTable(mgr, dir, "7=a\n7=b\n");
    EXPECT_EQ(testlog::Count("WARN", "strres have same id"), 102) << "each load counts anew";
}

TEST(FlashStringMgr, WindowsLineEndsReadLikeLineFeeds) {
    const std::string lf = "; comment\n3110000=Version %s\n50000001=[19968-40869]|Text\n7=a\rb\n8=\n9=last";
    std::string crlf;
    for (char c : lf) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    TempClientDir dir;
    CFlashStringMgr fromLf, fromCrlf;
    LoadTable(fromLf, dir, lf);
    LoadTable(fromCrlf, dir, crlf);
    ASSERT_EQ(fromCrlf.GetStringCount(), fromLf.GetStringCount());
    for (std::uint32_t id : {3110000u, 50000001u, 7u, 8u, 9u})
        EXPECT_STREQ(fromCrlf.GetStr(id), fromLf.GetStr(id)) << id;
    EXPECT_STREQ(fromCrlf.GetStr(7), "a\rb") << "a carriage return inside a line stays";
    ASSERT_EQ(fromCrlf.GetRangedCount(), 1u);
    EXPECT_STREQ(fromCrlf.GetRanged(0).second, "Text");

    // The line buffer counts the line as read with the carriage return already gone.
    LoadTable(fromCrlf, dir, "9=" + std::string(1020, 'v') + "\r\n10=after\r\n");
    EXPECT_EQ(std::string(fromCrlf.GetStr(9)), std::string(1020, 'v'));
    EXPECT_STREQ(fromCrlf.GetStr(10), "after");
}

TEST(FlashStringMgr, RangedEntriesAreKeyedByTheirRange) {
    TempClientDir dir;
    CFlashStringMgr mgr;
    LoadTable(mgr, dir,
              "50000001=[19968-40869]|Text\n"
              "50000002=[1-2]no bar\n"
              "49999999=[3-4]|below the range\n"
              "60000000=[-1-0]|negative first\n"
              "50000003=[x-2]|no numbers\n");
    EXPECT_STREQ(mgr.GetStr(50000001), "[19968-40869]|Text");
    ASSERT_EQ(mgr.GetRangedCount(), 2u);
    EXPECT_EQ(mgr.GetRanged(0).first, -1) << "the first number is sign-extended over the key";
    EXPECT_EQ(mgr.GetRanged(1).first, 40869LL * 4294967296LL + 19968);
    EXPECT_STREQ(mgr.GetRanged(1).second, "Text");
    EXPECT_EQ(mgr.GetRanged(2).first, 0);
    EXPECT_STREQ(mgr.GetRanged(2).second, "");
}

TEST(FlashStringMgr, MissingFileAnswersInitingUntilAReloadFindsIt) {
    TempClientDir dir;
    CFlashStringMgr mgr;
    EXPECT_STREQ(mgr.GetStr(42), "NOSTR 42") << "an empty table is not loading";
    testlog::Expect("ERROR", "open file failed");
    mgr.Load();
    EXPECT_TRUE(mgr.IsLoading());
    EXPECT_STREQ(mgr.GetStr(3110001), "FlashStrIniting3110001");
    EXPECT_EQ(mgr.GetStrInt(3500000), 0);
    EXPECT_EQ(testlog::Key(testlog::Records().back(), "file_name"), "ini/FlashString.ini");

    LoadTable(mgr, dir, "3500000=1\n");
    EXPECT_FALSE(mgr.IsLoading());
    EXPECT_EQ(mgr.GetStrInt(3500000), 1);
}

TEST(FlashStringMgr, LongLinesAreCutAtTheBufferAndNeverOverflow) {
    TempClientDir dir;
    CFlashStringMgr mgr;
    const std::string longValue(5000, 'v');
    LoadTable(mgr, dir, "9=" + longValue + "\n10=after\n");
    EXPECT_EQ(std::string(mgr.GetStr(9)).size(), 1023u - 2u);
    EXPECT_STREQ(mgr.GetStr(10), "after");
}

TEST(FlashStringMgr, TextsInMemoryReadLineForLineLikeTheFile) {
    using namespace std::string_literals;
    const std::string vs(1020, 'v');
    const std::string texts[] = {
        "12=a=b\n0=x\n;5=x\n//5=x\n\n13=\n14=crlf\r\n15=cr\rinside\n16=no final line feed"s,
        "9=" + vs + "\r\n10=pair ends a full buffer\n",
        "9=" + vs + "v\r\n10=pair one byte past the buffer\n",
        "9=" + vs.substr(1) + "\r\r\n10=carriage return kept before the pair\n",
        "9=" + vs + "\r" + std::string(2000, 'w') + "\n10=carriage return at the buffer's end\n",
        "9=" + std::string(5000, 'v') + "\r\n10=long line\r\n",
        "5=ab\r\0x\n\n6=c\n7=a\0b\n\0 8=x\n9=d\r"s,
        "\r\n\r\n\r"s,
        "50000001=[1-2]|ranged\r\n50000002=[3-4]|cut\0|x\n"s,
    };
    for (const std::string& text : texts) {
        TempClientDir dir;
        CFlashStringMgr fromFile, fromText;
        LoadTable(fromFile, dir, text);
        fromText.LoadFromTexts(text, "");
        EXPECT_FALSE(fromText.IsLoading());
        ASSERT_EQ(fromText.GetStringCount(), fromFile.GetStringCount()) << text.substr(0, 40);
        for (std::uint32_t id : {5u, 6u, 7u, 8u, 9u, 10u, 12u, 13u, 14u, 15u, 16u, 50000001u, 50000002u})
            EXPECT_STREQ(fromText.GetStr(id), fromFile.GetStr(id)) << id << " of " << text.substr(0, 40);
        ASSERT_EQ(fromText.GetRangedCount(), fromFile.GetRangedCount());
        for (std::size_t i = 0; i < fromFile.GetRangedCount(); ++i) {
            EXPECT_EQ(fromText.GetRanged(i).first, fromFile.GetRanged(i).first);
            EXPECT_STREQ(fromText.GetRanged(i).second, fromFile.GetRanged(i).second);
        }
    }
}

TEST(FlashStringMgr, ClearKeepsNothingAndEmptyFileLoadsNothing) {
    TempClientDir dir;
    CFlashStringMgr mgr;
    LoadTable(mgr, dir, "1=x\n50000001=[1-2]|y\n");
    mgr.Clear();
    EXPECT_EQ(mgr.GetStringCount(), 0u);
    EXPECT_EQ(mgr.GetRangedCount(), 0u);
    LoadTable(mgr, dir, "");
    EXPECT_FALSE(mgr.IsLoading());
    EXPECT_STREQ(mgr.GetStr(1), "NOSTR 1");
}

// ---- server configuration ------------------------------------------------------------------------

TEST(ServerConfiguration, DamagedFileWithHugeCountsLoadsOnlyWhatItHolds) {
    TempClientDir dir;
    std::ifstream in(std::string(FLASHSIM_TEST_DATA) + "/servercfg/damaged_ServerCfg.ini", std::ios::binary);
    ASSERT_TRUE(in);
    const std::string cfg(std::istreambuf_iterator<char>(in), {});
    dir.Write("ini/ServerCfg.ini", cfg);
    CFlashStringMgr fromFile, fromText;
    LoadTable(fromFile, dir, "1=x\n");
    fromText.LoadFromTexts("1=x\n", cfg);

    for (const CFlashStringMgr* loaded : {&fromFile, &fromText}) {
        SCOPED_TRACE(loaded == &fromFile ? "file" : "text");
        const CFlashStringMgr& mgr = *loaded;
        const CfgGroupMap* groups = mgr.GetCfgGroups(2);
        ASSERT_NE(groups, nullptr);
        EXPECT_EQ(groups->size(), 1024u) << "groups past the bound are not read";
        EXPECT_EQ(groups->count(1098), 0u);
        EXPECT_EQ(mgr.GetCfgGroups(4), nullptr) << "a negative group count configures nothing";

        const SCfgGroup* first = mgr.GetCfgGroup(2, 0);
        ASSERT_NE(first, nullptr);
        EXPECT_EQ(first->strGroupTips, "First");
        EXPECT_TRUE(first->bSpecialMark);
        EXPECT_TRUE(first->bAchTips) << "server 1024 is within the bound";
        ASSERT_NE(mgr.GetCfgServer(2, 0, 0), nullptr);
        EXPECT_EQ(mgr.GetCfgServer(2, 0, 0)->dwNameColor, 0xFF00FF00u);
        ASSERT_NE(mgr.GetCfgServer(2, 0, 8), nullptr);
        EXPECT_TRUE(mgr.GetCfgServer(2, 0, 8)->bAchTips);
        EXPECT_EQ(mgr.GetCfgServer(2, 0, 9), nullptr) << "server 1025 is past the bound";
        EXPECT_EQ(mgr.GetCfgServer(2, 0, 2), nullptr) << "\"Server0999\" is not the key of server 999";
        EXPECT_EQ(first->mapServers.size(), 3u)
            << "servers 1 and 1024, and one of defaults for the numbers without keys";

        const SCfgServer* marked = mgr.GetCfgServer(2, 499, 6);
        ASSERT_NE(marked, nullptr);
        EXPECT_EQ(marked->nAchStart, 10);
        EXPECT_EQ(marked->nAchEnd, 20);
        EXPECT_FALSE(mgr.GetCfgGroup(2, 1)->bAchTips);
        EXPECT_EQ(mgr.GetCfgGroup(2, 1)->mapServers.size(), 1u);
    }
}

TEST(ServerConfiguration, MissingFileSaysSoOncePerLoad) {
    TempClientDir dir;
    CFlashStringMgr mgr;
    LoadTable(mgr, dir, "1=x\n");
    LoadTable(mgr, dir, "1=x\n");
    ASSERT_EQ(testlog::Count("INFO", "server configuration missing"), 2);
    EXPECT_EQ(testlog::Key(testlog::Records().front(), "file_name"), "ini/ServerCfg.ini");
    EXPECT_EQ(mgr.GetCfgGroups(2), nullptr);
}
