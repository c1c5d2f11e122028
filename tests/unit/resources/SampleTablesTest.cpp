// The sample client's string tables: the Chinese one (res/zh) answers every id of the English one (res) with
// a text of the same shape, so that a Chinese screen never shows "NOSTR" nor formats a text with missing
// arguments.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

// id -> value of every entry line ("ID=VALUE", the id in digits).
std::map<std::string, std::string> Entries(const fs::path& file) {
    std::map<std::string, std::string> entries;
    std::ifstream in(file, std::ios::binary);
    static const std::regex ENTRY("^([0-9]+)=(.*)$");
    for (std::string line; std::getline(in, line);) {
        std::smatch match;
        if (std::regex_match(line, match, ENTRY)) entries[match[1]] = match[2];
    }
    return entries;
}

// What a text needs of its caller: its placeholders in order ("{}", "{0}", "%d" ...), or, for layout numbers,
// how many numbers it holds.
std::string Shape(const std::string& value) {
    static const std::regex NUMBERS("^-?[0-9]+( -?[0-9]+)*$");
    if (std::regex_match(value, NUMBERS))
        return "numbers:" + std::to_string(std::count(value.begin(), value.end(), ' ') + 1);
    static const std::regex PLACEHOLDER(R"(\{[0-9]*\}|%[-+ #0-9.]*[a-zA-Z])");
    std::string shape = "text:";
    for (std::sregex_iterator it(value.begin(), value.end(), PLACEHOLDER), end; it != end; ++it)
        shape += it->str();
    return shape;
}

TEST(SampleTables, TheChineseTableAnswersEveryIdOfTheEnglishOneWithATextOfTheSameShape) {
    const fs::path res(FLASHSIM_RES_DIR);
    const auto english = Entries(res / "ini" / "FlashString.ini");
    const auto chinese = Entries(res / "zh" / "ini" / "FlashString.ini");
    ASSERT_GT(english.size(), 50u);
    for (const auto& [id, value] : english) {
        SCOPED_TRACE("id " + id);
        const auto it = chinese.find(id);
        ASSERT_NE(it, chinese.end());
        EXPECT_EQ(Shape(it->second), Shape(value));
    }
    EXPECT_EQ(chinese.size(), english.size()) << "no id of its own";
}

} // namespace
