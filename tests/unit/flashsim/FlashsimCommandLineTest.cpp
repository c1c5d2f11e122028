// The reference host as a program: its command line, refused step values, default paths and the transcript
// check, by running the executable on small scenario files.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct SRun {
    int nExit = -1;
    std::string out;
    std::string err;
};

std::string ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

class FlashsimTest : public testing::Test {
protected:
    void SetUp() override {
        static std::atomic<int> counter{0};
        m_dir = fs::temp_directory_path() /
                ("flashsim_cli_" + std::to_string(::getpid()) + "_" + std::to_string(counter++));
        fs::create_directories(m_dir);
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(m_dir, ec);
    }

    void Write(const std::string& name, const std::string& content) const {
        std::ofstream(m_dir / name, std::ios::binary) << content;
    }

    /// Runs the executable (or `program`) in the test's folder, without the path variables of the caller.
    SRun Run(const std::string& args, const std::string& env = "",
             const std::string& program = FLASHSIM_BINARY) {
        const std::string command = "cd '" + m_dir.string() +
                                    "' && env -u FLASHSIM_LIBRARY -u FLASHSIM_RES " + env + " '" + program +
                                    "' " + args + " >stdout.txt 2>stderr.txt";
        const int status = std::system(command.c_str());
        SRun run;
        run.nExit = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        run.out = ReadFile(m_dir / "stdout.txt");
        run.err = ReadFile(m_dir / "stderr.txt");
        return run;
    }

    fs::path m_dir;
};

TEST_F(FlashsimTest, HelpGoesToStandardOutputAndUsageErrorsToStandardError) {
    for (const char* szArgs : {"--help", "-h", "run some.scn --help"}) {
        SCOPED_TRACE(szArgs);
        const SRun run = Run(szArgs);
        EXPECT_EQ(run.nExit, 0);
        EXPECT_EQ(run.out.rfind("usage: flashsim", 0), 0u) << run.out;
        EXPECT_EQ(run.err, "");
    }
    const std::pair<const char*, const char*> misuses[] = {
        {"", "run or check is missing"},
        {"run", "the scenario FILE is missing"},
        {"walk a.scn", "unknown mode walk (run or check)"},
        {"run a.scn --verbose", "unknown option --verbose"},
        {"run a.scn --lib", "--lib needs a value"},
        {"run a.scn b.scn", "unexpected argument b.scn"},
        {"run missing.scn", "cannot read missing.scn"},
    };
    for (const auto& [szArgs, szWhy] : misuses) {
        SCOPED_TRACE(szArgs);
        const SRun run = Run(szArgs);
        EXPECT_EQ(run.nExit, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.rfind(std::string("flashsim: ") + szWhy + "\n", 0), 0u) << run.err;
    }
}

// Each bad value fails the run and is named with its file and line, on standard error and in the transcript.
TEST_F(FlashsimTest, BadStepValuesAreErrorsNamingTheirLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"time 2026-13-45 99:99", "\"2026-13-45\" is no day of the calendar"},
        {"time 2023-02-29 10:00", "\"2023-02-29\" is no day of the calendar"},
        {"time 2026-01-01 24:00", "\"24:00\" is no time of the day"},
        {"time 2026-1-5 10:00", "\"2026-1-5\" is not a date YYYY-MM-DD"},
        {"time 2026-01-05 10:0", "\"10:0\" is not a time HH:MM"},
        {"clock -1", "clock takes MS: \"-1\" is out of range (0 to 4294967295)"},
        {"clock 5ms", "\"5ms\" is not a number"},
        {"frame -1", "\"-1\" is out of range"},
        {"frame 1 16 2", "frame takes [N] [MS]"},
        {"call SetProfession abc", "SetProfession argument 1: \"abc\" is not a number"},
        {"call SetProfession 2147483648", "\"2147483648\" is out of range"},
        {"call SetSelection yes 1 2", "SetSelection argument 1: \"yes\" is not a truth value"},
        {"call GetStr -1", "GetStr argument 1: \"-1\" is out of range"},
        {"call WindowProc 0x 0 0", "\"0x\" is not a number"},
        {"move 10 70000", "move takes X Y: \"70000\" is out of range (-32768 to 32767)"},
        {"click 1013 --1", "\"--1\" is not a number"},
        {"show 1013 x", "\"x\" is not a number"},
        {"key 256", "key takes VK"},
        {"host screen 0x600", "host screen takes WxH"},
        {"create 1 2", "create takes [LANG] [noregister]"},
        {"log loud", "log takes on, strict or off"},
        {"destroy now", "destroy takes nothing"},
    };
    for (const auto& [szStep, szWhy] : cases) {
        SCOPED_TRACE(szStep);
        Write("bad.scn", std::string("# one bad step\n") + szStep + "\n");
        const SRun run = Run("run bad.scn");
        EXPECT_EQ(run.nExit, 1);
        EXPECT_NE(run.err.find("flashsim: bad.scn:2: "), std::string::npos) << run.err;
        EXPECT_NE(run.err.find(szWhy), std::string::npos) << run.err;
        EXPECT_NE(run.out.find("! error: line 2: "), std::string::npos) << run.out;
    }
}

// The edges of every range are accepted, and the library and the sample client directory are found from the
// executable even when it is started through a link elsewhere.
TEST_F(FlashsimTest, ValidEdgesRunWithTheDefaultLibraryAndClientDirectory) {
    Write("good.scn", "time 2024-02-29 23:59\ntime 2026-12-31 00:00\nclock 0\nclock 4294967295\nframe 0\n"
                      "host screen 1x16384\nkey 255\nkey 0x0D\nmove -32768 32767\ncreate -1 noregister\n"
                      "call SetProfession -2147483648\ncall GetProfession\ncall SetSelection true 1 2\n"
                      "call GetSelection\ncall WindowProc 0x200 -1 0\ncall GetStr 8000102\n");
    fs::create_symlink(FLASHSIM_BINARY, m_dir / "host-link");
    for (const std::string& program : {std::string(FLASHSIM_BINARY), (m_dir / "host-link").string()}) {
        SCOPED_TRACE(program);
        const SRun run = Run("run good.scn", "", program);
        EXPECT_EQ(run.nExit, 0) << run.err;
        EXPECT_EQ(run.out, "< GetProfession = -2147483648\n< GetSelection = 1 1 2\n< WindowProc = 0\n"
                           "< GetStr = Please read and accept the user agreement first.\n");
    }
    // The option and the environment variable still choose another library, the option first.
    EXPECT_NE(Run("run good.scn", "FLASHSIM_LIBRARY=/nowhere/lib.so").out.find("! error: /nowhere/lib.so"),
              std::string::npos);
    EXPECT_EQ(Run("run good.scn --lib /elsewhere/lib.so", "FLASHSIM_LIBRARY=/nowhere/lib.so").nExit, 1);
}

// A copy of the executable, the library and the sample client directory in the same places relative to each
// other, elsewhere, uses the copies: the defaults are relative to the executable, not fixed paths.
TEST_F(FlashsimTest, DefaultsFollowTheExecutableWhenTheTreeIsCopied) {
    const fs::path exeDir = fs::path(FLASHSIM_BINARY).parent_path();
    const fs::path libRel = fs::relative(FLASHSIM_LIBRARY_FILE, exeDir);
    const fs::path resRel = fs::relative(FLASHSIM_RES_DIR, exeDir);
    fs::path copyDir = m_dir / "tree";
    for (const fs::path& rel : {libRel, resRel})
        for (const fs::path& part : rel)
            if (part == "..") copyDir /= "d"; // deep enough that the copies stay inside the test's folder
    fs::create_directories(copyDir);
    fs::copy_file(FLASHSIM_BINARY, copyDir / "flashsim");
    fs::create_directories((copyDir / libRel).lexically_normal().parent_path());
    fs::copy_file(FLASHSIM_LIBRARY_FILE, (copyDir / libRel).lexically_normal());
    const fs::path res = (copyDir / resRel).lexically_normal();
    fs::create_directories(res);
    fs::copy(FLASHSIM_RES_DIR, res, fs::copy_options::recursive);
    std::string strings = ReadFile(res / "ini/FlashString.ini");
    const std::size_t nAt = strings.find("\n8000102=");
    ASSERT_NE(nAt, std::string::npos);
    strings.insert(nAt + 9, "The copied tree. ");
    std::ofstream(res / "ini/FlashString.ini", std::ios::binary | std::ios::trunc) << strings;

    Write("copied.scn", "create\ncall GetStr 8000102\n");
    const SRun run = Run("run copied.scn", "", (copyDir / "flashsim").string());
    EXPECT_EQ(run.nExit, 0) << run.err;
    EXPECT_EQ(run.out, "< GetStr = The copied tree. Please read and accept the user agreement first.\n");
}

class FlashsimCheckTest : public FlashsimTest {
protected:
    void SetUp() override {
        FlashsimTest::SetUp();
        Write("logs.scn", "log on\ncreate\ncall GetStr 8000102\n");
        const SRun run = Run("run logs.scn");
        ASSERT_EQ(run.nExit, 0);
        std::istringstream lines(run.out);
        for (std::string line; std::getline(lines, line);)
            (line.rfind("! ", 0) == 0 ? m_logs : m_events).push_back(line);
        ASSERT_GE(m_logs.size(), 2u);
        ASSERT_EQ(m_events.size(), 1u);
        m_full = run.out;
    }
    SRun Check(const std::string& scenario, const std::string& expected) {
        Write(scenario + ".out", expected);
        return Run("check " + scenario + ".scn");
    }

    std::vector<std::string> m_logs;   // "log on" lines, in order
    std::vector<std::string> m_events; // the one event line, after them
    std::string m_full;
};

TEST_F(FlashsimCheckTest, LogLinesNotAskedForArePassedOverButAskedLinesMustAppearInOrder) {
    const std::string& event = m_events[0];
    EXPECT_EQ(Check("logs", m_full).nExit, 0);
    EXPECT_EQ(Check("logs", event + "\n").nExit, 0);
    EXPECT_EQ(Check("logs", m_logs[1] + "\n" + event + "\n").nExit, 0);
    EXPECT_EQ(Check("logs", m_logs[0] + "\n" + m_logs.back() + "\n" + event).nExit, 0); // no last line feed

    // An asked log line that is not there, or not there in that order, fails; the report names it.
    SRun run = Check("logs", "! HOST no such line\n" + event + "\n");
    EXPECT_EQ(run.nExit, 1);
    EXPECT_NE(run.out.find("line 1 of the expected transcript"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("expected: ! HOST no such line"), std::string::npos) << run.out;
    EXPECT_EQ(Check("logs", m_logs[1] + "\n" + m_logs[0] + "\n" + event + "\n").nExit, 1);
    EXPECT_EQ(Check("logs", event + "\n" + m_logs[0] + "\n").nExit, 1);

    // Event lines are never passed over: a different, a missing or an extra one fails.
    run = Check("logs", event + "x\n");
    EXPECT_EQ(run.nExit, 1);
    EXPECT_NE(run.out.find("actual:   " + event + "\n"), std::string::npos) << run.out;
    EXPECT_EQ(Check("logs", "").nExit, 1);
    EXPECT_EQ(Check("logs", event + "\n" + event + "\n").nExit, 1);
}

TEST_F(FlashsimCheckTest, StrictLogLinesMustAllBeExpected) {
    Write("strict.scn", "log strict\ncreate\ncall GetStr 8000102\n");
    EXPECT_EQ(Check("strict", m_full).nExit, 0);
    EXPECT_EQ(Check("strict", m_events[0] + "\n").nExit, 1);
}

} // namespace
