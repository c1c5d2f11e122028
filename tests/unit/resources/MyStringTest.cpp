// Formatting of string-table texts: printf-style formats converted to fmt's, and formats that cannot fail.
#include <gtest/gtest.h>

#include "resources/MyString.h"

TEST(MyString, RecognisesPrintfConversions) {
    EXPECT_TRUE(CMyString::IsOldFormatStr("Version %s"));
    EXPECT_TRUE(CMyString::IsOldFormatStr("%5.2f%%"));
    EXPECT_TRUE(CMyString::IsOldFormatStr("%lld players"));
    EXPECT_FALSE(CMyString::IsOldFormatStr("Version {}"));
    EXPECT_FALSE(CMyString::IsOldFormatStr("100% sure"));
    EXPECT_FALSE(CMyString::IsOldFormatStr("ends with %"));
}

TEST(MyString, ConvertsConversionsPercentsAndBraces) {
    EXPECT_EQ(CMyString::TransfromOldFmt2NewFmt("%s -> %d"), "{} -> {}");
    EXPECT_EQ(CMyString::TransfromOldFmt2NewFmt("%-08.3lf%%"), "{}%");
    EXPECT_EQ(CMyString::TransfromOldFmt2NewFmt("{%s}"), "{{{}}}");
    EXPECT_EQ(CMyString::TransfromOldFmt2NewFmt("100% sure"), "100% sure");
}

TEST(MyString, FormatsEitherStyleAndNeverThrows) {
    EXPECT_EQ(CMyString::Format("Version %s", "1.2"), "Version 1.2");
    EXPECT_EQ(CMyString::Format("{0}: {1}%", "Busy", 75), "Busy: 75%");
    EXPECT_EQ(CMyString::Format("{1} before {0}", "a", "b"), "b before a");
    EXPECT_EQ(CMyString::Format("updated %d/%d", 3, 15), "updated 3/15");
    // A format that asks for more than it is given, or is malformed, comes back unfilled.
    EXPECT_EQ(CMyString::Format("{} and {}", 1), "{} and {}");
    EXPECT_EQ(CMyString::Format("{:q}", 1), "{:q}");
    EXPECT_EQ(CMyString::Format("{0{1}}", 1, 2), "{0{1}}");
    EXPECT_EQ(CMyString::Format("%s", "x"), "x");
}

TEST(MyString, ResultsAreCutAtTheLimit) {
    const std::string big(10000, 'x');
    EXPECT_EQ(CMyString::Format("{}", big).size(), CMyString::MAX_TEXT);
}

TEST(MyString, WidthsAndPrecisionsFromFilesAreBounded) {
    for (const char* format : {"{:>2000000000}", "{:.2000000000}", "{:>99999999999999999999}", "{:{}}",
                               "{0:*^100000}", "%2000000000s"}) {
        const std::string text = CMyString::Format(format, "v");
        EXPECT_LE(text.size(), CMyString::MAX_TEXT) << format;
    }
    // Digits around a dropped dynamic field join into one width, which is bounded too (found by fuzzing: the
    // padding of 54854095 was cut from the text but still written).
    EXPECT_EQ(CMyString::Format("{:>5{}485{}482639826398}", "v"),
              std::string(CMyString::MAX_TEXT - 1, ' ') + "v");
    // fmt takes '}' as a fill before an align sign; that '}' does not end the field, and its width is
    // bounded.
    EXPECT_EQ(CMyString::Format("{:}>666666665}", 75), std::string(CMyString::MAX_TEXT - 2, '}') + "75");
    EXPECT_EQ(CMyString::Format("{:>6}|{:0>3}", "ab", 7), "    ab|007") << "ordinary widths stay";
    EXPECT_EQ(CMyString::Format("{:.2f}", 3.14159), "3.14");
    EXPECT_EQ(CMyString::Format("{{{}}}", 1), "{1}");
}
