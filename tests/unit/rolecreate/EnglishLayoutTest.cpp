// The English creation layout's arithmetic that transcripts do not show: the opening time of the high-level
// start read unsigned from a signed value, and the conversion of typed names to UTF-8 within its bounds.
#include <gtest/gtest.h>

#include <string>

#include "platform/BaseLib.h"
#include "rolecreate/DlgFlashSceneSelect.h"

namespace {

TEST(EnglishLayout, OpeningTimeIsReadUnsignedAndSplitIntoItsFiveNumbers) {
    // 2503151230 does not fit a signed 32-bit value: the host passes it as -1791816066.
    const auto nTime = static_cast<std::uint32_t>(std::int32_t{-1791816066});
    EXPECT_EQ(CDlgFlashSceneSelect::FormatOpeningTime("%d %d %d %d %d", nTime), "25 3 15 12 30");
    EXPECT_EQ(CDlgFlashSceneSelect::FormatOpeningTime("%d %d %d %d %d", 4294967295u), "42 94 96 72 95");
    EXPECT_EQ(CDlgFlashSceneSelect::FormatOpeningTime(nullptr, nTime), "");
    // The tip is bounded whatever the format asks for.
    const std::string wide(1000, 'x');
    EXPECT_EQ(CDlgFlashSceneSelect::FormatOpeningTime(wide.c_str(), nTime).size(),
              CDlgFlashSceneSelect::TIP_MAX);
}

TEST(EnglishLayout, TypedNamesBecomeUtf8WithinTheirBoundAndNeverEndInsideACharacter) {
    const std::u16string name = u"名名名名名a";
    EXPECT_EQ(WStringToUTF8(name.c_str(), 255), "名名名名名a");
    EXPECT_EQ(WStringToUTF8(name.c_str(), 7), "名名");
    // An unpaired surrogate becomes the replacement character instead of broken bytes.
    const char16_t broken[] = {u'a', char16_t{0xD800}, u'b', 0};
    EXPECT_EQ(WStringToUTF8(broken, 255), "a\xEF\xBF\xBD"
                                          "b");
    EXPECT_EQ(WStringToUTF8(nullptr, 255), "");
}

} // namespace
