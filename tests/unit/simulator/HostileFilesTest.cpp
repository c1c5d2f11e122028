// Damaged or hostile client files: each input that once stalled or broke the client, kept as a file.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "SimulatorFixture.h"

namespace {
std::string ReadDataFile(const char* szName) {
    std::ifstream in(std::filesystem::path(FLASHSIM_TEST_DATA) / "hostile" / szName, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}
} // namespace

class HostileFiles : public SimulatorFixture {};

TEST_F(HostileFiles, FormatWidthsFromTheStringTableAreBounded) {
    const std::string strings = ReadDataFile("version_huge_width.ini");
    ASSERT_NE(strings.find("2000000000"), std::string::npos);
    Create(0, strings);
    Set("VAR_MAINPATH", "");
    ASSERT_TRUE(m_sim->Dialogs().m_dlgNewFlashLogin.IsWindowVisible());
    Set("VAR_VERSION", "1.0");
    const std::string label =
        m_sim->Dialogs().m_dlgNewFlashLogin.GetFrame().GetVersionLabel().GetWindowTextA();
    EXPECT_EQ(label.size(), CMyString::MAX_TEXT) << "padding is cut where the text is cut";
    EXPECT_EQ(label.back(), '0') << "right-aligned: the version ends the text";
}
