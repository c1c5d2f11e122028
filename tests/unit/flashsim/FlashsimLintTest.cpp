// The client-directory check as a program: the sample directory is clean, each kind of finding is proven on a
// damaged copy of it, and input it cannot read exits 2.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

class FlashsimLintTest : public testing::Test {
protected:
    void SetUp() override {
        static std::atomic<int> counter{0};
        m_dir = fs::temp_directory_path() /
                ("flashsim_lint_" + std::to_string(::getpid()) + "_" + std::to_string(counter++));
        fs::create_directories(m_dir);
        fs::copy(FLASHSIM_RES_DIR, m_dir / "client", fs::copy_options::recursive);
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(m_dir, ec);
    }

    fs::path Client(const std::string& relative = {}) const { return m_dir / "client" / relative; }

    /// Replaces the first `from` in a client file by `to`; the test fails when it is not there.
    void Replace(const std::string& file, const std::string& from, const std::string& to) const {
        std::string text = ReadText(Client(file));
        const std::size_t at = text.find(from);
        ASSERT_NE(at, std::string::npos) << from << " not in " << file;
        text.replace(at, from.size(), to);
        std::ofstream(Client(file), std::ios::binary) << text;
    }
    void Append(const std::string& file, const std::string& text) const {
        std::ofstream(Client(file), std::ios::binary | std::ios::app) << text;
    }

    int Lint(const fs::path& dir) { return Flashsim("lint '" + dir.string() + "'"); }
    /// Runs the executable with these arguments, keeping its standard output and error.
    int Flashsim(const std::string& args) {
        const std::string command =
            "env -u FLASHSIM_LIBRARY -u FLASHSIM_RES '" + std::string(FLASHSIM_BINARY) + "' " + args + " >'" +
            (m_dir / "out.txt").string() + "' 2>'" + (m_dir / "err.txt").string() + "'";
        const int status = std::system(command.c_str());
        m_out = ReadText(m_dir / "out.txt");
        m_err = ReadText(m_dir / "err.txt");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// The finding lines printed under a screen's heading (up to the next heading).
    std::string Group(const std::string& screen) const {
        const std::string heading = "== " + screen + "\n";
        const std::size_t start = m_out.find(heading);
        if (start == std::string::npos) return {};
        const std::size_t body = start + heading.size();
        const std::size_t end = m_out.find("\n==", body);
        return m_out.substr(body, end == std::string::npos ? std::string::npos : end + 1 - body);
    }

    fs::path m_dir;
    std::string m_out, m_err;
};

TEST_F(FlashsimLintTest, SampleClientDirectoryHasNothingMissing) {
    EXPECT_EQ(Lint(Client()), 0) << m_out << m_err;
    EXPECT_EQ(m_out, "");
    // The check runs on a copy: the library's own files (QR pictures) never land in the directory checked.
    EXPECT_FALSE(fs::exists(Client("data")));
}

// Each kind of finding, each under the first screen that meets it, with the file (and line) it concerns.
TEST_F(FlashsimLintTest, EachMissingResourceIsReportedUnderItsScreen) {
    Replace("ini/FlashString.ini", "8000011=Save account\n", "");
    Replace("FlashGui.ini", "[Dialog1005]\n", "[Dialog1005-unused]\n");
    Replace("ani/Control.ani", "[Common_Logo]", "[Common_Logo_Old]");
    Replace("ani/Control.ani", "Frame0=box 16 16 FF20A040 FFFFFFFF v", "Frame0=data/ui/hook.png");
    Replace("ani/Control.ani", "Frame0=box 64 64 FF16324F FF16324F", "Frame0=data/ui/backdrop.png");
    fs::create_directories(Client("data/ui"));
    std::ofstream(Client("data/ui/backdrop.png"), std::ios::binary) << "not a picture";
    Append("FlashGui.ini", "\n[Dialog1001]\nRect = 1 2 3 4\n");
    ASSERT_EQ(Lint(Client()), 1) << m_err;

    const std::string login = Group("main login (language 0)");
    EXPECT_NE(login.find("ini/FlashString.ini: string 8000011 missing (control 1013.1179)\n"),
              std::string::npos)
        << m_out;
    EXPECT_NE(login.find("ani/Control.ani: no animation title Common_Logo\n"), std::string::npos) << m_out;
    EXPECT_TRUE(
        std::regex_search(login, std::regex(R"(FlashGui\.ini:[0-9]+: section \[Dialog1001\] repeated)")))
        << m_out;
    EXPECT_EQ(Group("message box (language 0)"), "FlashGui.ini: no layout record [Dialog1005]\n") << m_out;
    EXPECT_NE(m_out.find("data/ui/hook.png: picture missing\n"), std::string::npos) << m_out;
    EXPECT_NE(login.find("data/ui/backdrop.png: picture cannot be decoded: "), std::string::npos) << m_out;
    EXPECT_EQ(m_err, "flashsim lint: 6 findings\n");
}

// The walks open every screen of the login scene: without their dialogs' records, each is named under its
// walk.
TEST_F(FlashsimLintTest, EveryLoginSceneScreenIsOpened) {
    const std::pair<const char*, std::vector<int>> screens[] = {
        {"main login", {1013}},
        {"message box", {1005}},
        {"server selection", {1003, 1002, 1001, 1000}},
        {"classic login", {1007, 1006}},
        {"WeChat login and security token", {1011, 1015}},
        {"QR login", {1021}},
    };
    for (const auto& [szScreen, dialogs] : screens)
        for (int nDialog : dialogs) {
            const std::string section = "[Dialog" + std::to_string(nDialog) + "]";
            Replace("FlashGui.ini", section + "\n", "[Unused" + std::to_string(nDialog) + "]\n");
        }
    ASSERT_EQ(Lint(Client()), 1) << m_err;
    for (const auto& [szScreen, dialogs] : screens) {
        std::string expected;
        for (int nDialog : dialogs)
            expected += "FlashGui.ini: no layout record [Dialog" + std::to_string(nDialog) + "]\n";
        EXPECT_EQ(Group(std::string(szScreen) + " (language 0)"), expected) << m_out;
    }
}

// A language of its own layout file is walked with it; its findings name that file.
TEST_F(FlashsimLintTest, EveryDeclaredLanguageIsWalked) {
    fs::copy_file(Client("FlashGui.ini"), Client("FlashGui_1.ini"));
    Replace("FlashGui_1.ini", "[Dialog1002]\n", "[Dialog1002-unused]\n");
    ASSERT_EQ(Lint(Client()), 1) << m_err;
    EXPECT_EQ(Group("server selection (language 1)"), "FlashGui_1.ini: no layout record [Dialog1002]\n")
        << m_out;
    EXPECT_EQ(Group("server selection (language 0)"), "") << m_out;
}

TEST_F(FlashsimLintTest, UnreachableServerConfigurationEntriesNameTheirLine) {
    std::ofstream(Client("ini/ServerCfg.ini"), std::ios::binary) << "[Header]\n"      // 1
                                                                    "GroupAmount=2\n" // 2
                                                                    "[Group1]\n"      // 3
                                                                    "ServerAmount=2\n"
                                                                    "Server1=7\n" // 5
                                                                    "SpecialMark2=1\n"
                                                                    "SpecialMark3=1\n" // 7
                                                                    "[Group2]\n"
                                                                    "ServerAmount=0\n" // 9
                                                                    "[Group3]\n"
                                                                    "ServerAmount=1\n" // 11
                                                                    "Server1=1\n"
                                                                    "[GroupClassics1]\n" // 13
                                                                    "ServerAmount=1\n"
                                                                    "Server1=1\n" // 15
                                                                    "[Gruop1]\n"
                                                                    "[Group1]\n" // 17, merged with the first
                                                                    "Server2=7\n";
    ASSERT_EQ(Lint(Client()), 1) << m_err;
    EXPECT_EQ(
        Group("server configuration"),
        "ini/ServerCfg.ini:18: Server2=7 repeats a server of line 5 of [Group1]: only the first is read\n"
        "ini/ServerCfg.ini:7: SpecialMark3 is past ServerAmount=2 of [Group1]: never read\n"
        "ini/ServerCfg.ini:9: group [Group2] has no servers (ServerAmount=0)\n"
        "ini/ServerCfg.ini:10: group [Group3] is past GroupAmount=2 of [Header]: no screen shows it\n"
        "ini/ServerCfg.ini:13: group [GroupClassics1] is past GroupAmount=0 of [HeaderClassics]: no screen "
        "shows it\n"
        "ini/ServerCfg.ini:16: section [Gruop1] belongs to no category: nothing reads it\n")
        << m_out;
}

TEST_F(FlashsimLintTest, SpecialMarkOnAServerWithoutIdIsReported) {
    std::ofstream(Client("ini/ServerCfg.ini"), std::ios::binary)
        << "[Header]\nGroupAmount=1\n[Group1]\nServerAmount=2\nServer1=7\nSpecialMark2=1\n";
    ASSERT_EQ(Lint(Client()), 1) << m_err;
    EXPECT_EQ(Group("server configuration"),
              "ini/ServerCfg.ini:6: special mark on an unknown server: SpecialMark2 of "
              "[Group1] has no Server2 naming its server\n")
        << m_out;
}

// What cannot be read is reported on standard error with exit status 2, before any screen is opened.
TEST_F(FlashsimLintTest, InputThatCannotBeReadExitsTwo) {
    EXPECT_EQ(Lint(m_dir / "no-such-client"), 2);
    EXPECT_NE(m_err.find("no-such-client: no such directory"), std::string::npos) << m_err;

    Append("ini/FlashString.ini", std::string("8000999=a\0b\n", 12));
    EXPECT_EQ(Lint(Client()), 2);
    EXPECT_EQ(m_err, "flashsim lint: ini/FlashString.ini: binary, not a string table (a NUL byte)\n");

    fs::remove(Client("ini/FlashString.ini"));
    fs::create_directory(Client("ini/FlashString.ini")); // a name the library would open, not a file
    EXPECT_EQ(Lint(Client()), 2);
    EXPECT_EQ(m_err, "flashsim lint: ini/FlashString.ini: cannot be read\n");
    EXPECT_EQ(m_out, "");
}

TEST_F(FlashsimLintTest, ToolCommandLinesRefuseWhatTheyCannotUse) {
    const std::pair<const char*, const char*> misuses[] = {
        {"lint", "lint needs the client directory DIR"},
        {"lint a b", "unexpected argument b"},
        {"lint a --lang 1", "unknown option --lang"},
        {"view --scene lobby", "--scene takes login or create"},
        {"view --script", "--script needs a value"},
    };
    for (const auto& [szArgs, szWhy] : misuses) {
        SCOPED_TRACE(szArgs);
        EXPECT_EQ(Flashsim(szArgs), 2);
        EXPECT_EQ(m_err.rfind(std::string("flashsim: ") + szWhy + "\n", 0), 0u) << m_err;
    }
    EXPECT_EQ(Flashsim("lint --help"), 0);
    EXPECT_EQ(m_out.rfind("usage: flashsim lint DIR", 0), 0u) << m_out;
}

// A directory without its layout file, string table and server configuration still opens every screen.
TEST_F(FlashsimLintTest, MissingClientFilesAreFindings) {
    for (const char* szFile : {"FlashGui.ini", "ini/FlashString.ini", "ini/ServerCfg.ini"})
        fs::remove(Client(szFile));
    ASSERT_EQ(Lint(Client()), 1) << m_err;
    const std::string files = Group("client files");
    EXPECT_EQ(files, "FlashGui.ini: missing\nini/FlashString.ini: missing\nini/ServerCfg.ini: missing\n")
        << m_out;
}

} // namespace
