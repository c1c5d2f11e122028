// The live window's debug overlay: secrets masked whatever their spelling, the last 20 kept newest first.
#include <gtest/gtest.h>

#include <string>

#include "DebugOverlay.h"

namespace {

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

TEST(DebugOverlayTest, PasswordAndTokenValuesNeverReachItsLines) {
    DebugOverlay overlay;
    overlay.NoteVariable("VAR_LOGINUSER", "hero");
    overlay.NoteVariable("VAR_LOGINPASS", "hunter2");
    overlay.NoteVariable("var_loginpass", "hunter3");
    overlay.NoteVariable("VAR_LOGINHELMSAFE", "111111");
    overlay.NoteVariable("VAR_LOGINHELMSAFE_WEIXIN", "222222");
    overlay.NoteVariable("Var_LoginHelmSafe_Ward", "333333");
    const std::string text = Joined(overlay.Lines(0, 0));
    for (const char* szSecret : {"hunter", "111111", "222222", "333333"})
        EXPECT_EQ(text.find(szSecret), std::string::npos) << szSecret << " in\n" << text;
    EXPECT_NE(text.find("  VAR_LOGINUSER = hero\n"), std::string::npos) << text;
    EXPECT_NE(text.find("  var_loginpass = ******\n"), std::string::npos) << text;
    EXPECT_NE(text.find("  Var_LoginHelmSafe_Ward = ******\n"), std::string::npos) << text;
    // Names that only start like a secret are shown.
    EXPECT_FALSE(DebugOverlay::IsSecret("VAR_LOGINPASSWORDTIP"));
    EXPECT_FALSE(DebugOverlay::IsSecret("VAR_LOGINUSER"));
}

TEST(DebugOverlayTest, KeepsTheLastTwentyVariablesAndCommandsNewestFirst) {
    DebugOverlay overlay;
    for (int i = 1; i <= 25; ++i) {
        overlay.NoteVariable("VAR_" + std::to_string(i), std::to_string(i));
        overlay.NoteCommand("> CMD_" + std::to_string(i) + " \"\"");
    }
    overlay.NoteFrameTimes(1500, 250);
    const std::vector<std::string> lines = overlay.Lines(0, 0);
    const std::string text = Joined(lines);
    EXPECT_EQ(lines.at(1), "  VAR_25 = 25");
    EXPECT_EQ(lines.at(20), "  VAR_6 = 6");
    EXPECT_EQ(lines.at(21), "commands sent (last 20):");
    EXPECT_EQ(lines.at(22), "  > CMD_25 \"\"");
    EXPECT_EQ(text.find("VAR_5 "), std::string::npos);
    EXPECT_EQ(text.find("CMD_5 "), std::string::npos);
    // Without a dialog manager nothing is under the cursor.
    EXPECT_NE(text.find("under the cursor 0,0:\n  nothing\n"), std::string::npos) << text;
    EXPECT_EQ(lines.back(), "Process 1.50 ms  Show 0.25 ms");
}

} // namespace
