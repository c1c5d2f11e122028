// Safe conversions and splitting of the base library: the edge values that text from outside brings.
#include <gtest/gtest.h>

#include <climits>

#include "BaseLib.h"

TEST(SafeAtoi, ReadsLeadingDigitsLikeAtoiAndNeverOverflows) {
    EXPECT_EQ(SafeAtoi("12abc"), 12);
    EXPECT_EQ(SafeAtoi("  -42"), -42);
    EXPECT_EQ(SafeAtoi("+7"), 7);
    EXPECT_EQ(SafeAtoi("abc"), 0);
    EXPECT_EQ(SafeAtoi(""), 0);
    EXPECT_EQ(SafeAtoi(nullptr), 0);
    EXPECT_EQ(SafeAtoi("99999999999999999999"), INT_MAX);
    EXPECT_EQ(SafeAtoi("-99999999999999999999"), INT_MIN);
    EXPECT_EQ(SafeAtoi("-2147483648"), INT_MIN);
}

TEST(SafeItoA, WritesDecimalAndOtherBasesTruncatedToTheBuffer) {
    char buf[32];
    EXPECT_STREQ(SafeItoA(0, buf, sizeof buf, 10), "0");
    EXPECT_STREQ(SafeItoA(-123, buf, sizeof buf, 10), "-123");
    EXPECT_STREQ(SafeItoA(INT_MIN, buf, sizeof buf, 10), "-2147483648");
    EXPECT_STREQ(SafeItoA(255, buf, sizeof buf, 16), "ff");
    char small[3];
    EXPECT_STREQ(SafeItoA(12345, small, sizeof small, 10), "12");
}

TEST(SafeStrtoul, ParsesHexColoursAndSaturates) {
    EXPECT_EQ(SafeStrtoul("FFCCCCCC", 16), 0xFFCCCCCCul);
    EXPECT_EQ(SafeStrtoul("1FFFFFFFF", 16), 0xFFFFFFFFul);
    EXPECT_EQ(SafeStrtoul(nullptr, 16), 0ul);
}

TEST(SafeSprintf, TruncatesAndTerminates) {
    char buf[6];
    EXPECT_EQ(SafeSprintf(buf, sizeof buf, "%s", "abcdefgh"), 5);
    EXPECT_STREQ(buf, "abcde");
}

TEST(Split, KeepsEmptyPiecesAndWholeUtf8Characters) {
    std::vector<CZrString> pieces;
    Split(pieces, "[1-2]|Text|", "|", 65001);
    ASSERT_EQ(pieces.size(), 3u);
    EXPECT_EQ(pieces[1], "Text");
    EXPECT_EQ(pieces[2], "");
    Split(pieces, "\xE4\xB8\xAD|\xE6\x96\x87", "|", 65001);
    ASSERT_EQ(pieces.size(), 2u);
    EXPECT_EQ(pieces[0], "\xE4\xB8\xAD");
    Split(pieces, "no separator", "|", 65001);
    EXPECT_EQ(pieces.size(), 1u);
}

TEST(StringToWString, DecodesUtf8AndReplacesBrokenSequences) {
    EXPECT_EQ(StringToWString("A\xE4\xB8\xAD", 65001), std::u16string(u"A\u4E2D"));
    EXPECT_EQ(StringToWString("\xF0\x9F\x98\x80", 65001).size(), 2u); // a surrogate pair
    EXPECT_EQ(StringToWString("\xE4\xB8", 65001), std::u16string(u"\uFFFD\uFFFD"));
    EXPECT_EQ(StringToWString("\xE9", 1252), std::u16string(u"\u00E9"));
}

TEST(ConverCodeToOnlyEnglish, ReplacesEachNonAsciiCharacterOnceAndKeepsNewlines) {
    char text[32] = "ab\xE4\xB8\xAD\n\xC3\xA9z";
    ConverCodeToOnlyEnglish(text, sizeof text);
    EXPECT_STREQ(text, "ab?\n?z");
    char cut[4] = {'a', '\xE4', '\xB8', '\0'};
    ConverCodeToOnlyEnglish(cut, sizeof cut);
    EXPECT_STREQ(cut, "a?");
}
