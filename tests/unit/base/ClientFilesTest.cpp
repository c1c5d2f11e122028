// Files below the client directory: relative names, either slash, names matched without regard to case.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "BaseLib.h"
#include "hostlibs/HostEnv.h"

namespace fs = std::filesystem;

class ClientFiles : public testing::Test {
protected:
    void SetUp() override {
        m_dir = fs::temp_directory_path() / ("flashsim_files_" + std::to_string(::getpid()));
        fs::create_directories(m_dir / "Ani");
        std::ofstream(m_dir / "Ani" / "Control.ani") << "line one\nline two";
        host::SetClientDir(m_dir.string());
    }
    void TearDown() override { fs::remove_all(m_dir); }
    fs::path m_dir;
};

TEST_F(ClientFiles, OpensWithWindowsStyleNamesInAnyCase) {
    ZrFile* f = Safefopen("ani\\control.ANI", "r");
    ASSERT_NE(f, nullptr);
    char buf[64];
    ASSERT_NE(Safefgets(buf, sizeof buf, f), nullptr);
    EXPECT_STREQ(buf, "line one\n");
    ASSERT_NE(Safefgets(buf, sizeof buf, f), nullptr);
    EXPECT_STREQ(buf, "line two");
    EXPECT_EQ(Safefgets(buf, sizeof buf, f), nullptr);
    Safefclose(f);
}

TEST_F(ClientFiles, MissingFilesAndBadArgumentsGiveNull) {
    EXPECT_EQ(Safefopen("ani/none.ani", "r"), nullptr);
    EXPECT_EQ(Safefopen(nullptr, "r"), nullptr);
    EXPECT_EQ(Safefopen("", "r"), nullptr);
    char buf[4];
    EXPECT_EQ(Safefgets(buf, sizeof buf, nullptr), nullptr);
    Safefclose(nullptr);
}

TEST_F(ClientFiles, ShortBufferSplitsALongLine) {
    ZrFile* f = Safefopen("Ani/Control.ani", "r");
    ASSERT_NE(f, nullptr);
    char buf[5];
    ASSERT_NE(Safefgets(buf, sizeof buf, f), nullptr);
    EXPECT_STREQ(buf, "line");
    Safefclose(f);
}

TEST(Clock, IsVirtualAndDrivenByTheHost) {
    const DWORD start = TimeGet();
    host::AdvanceClock(250);
    EXPECT_EQ(TimeGet(), start + 250);
    EXPECT_EQ(GetTickCount(), TimeGet());
    host::SetLocalTime({2026, 2, 3, 4, 5, 6});
    EXPECT_EQ(FormatSvrTime(), "2026-02-03 04:05:06");
}

TEST(Threads, WaitJoinsTheWorkerAndItsResultIsVisible) {
    static int value = 0;
    HANDLE h = CHandleHelper::CreateThreadProxy(
        nullptr, 0,
        [](void* p) -> DWORD {
            value = static_cast<int>(reinterpret_cast<std::intptr_t>(p));
            return 0;
        },
        reinterpret_cast<void*>(std::intptr_t{42}), 0, nullptr);
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(WaitForSingleObject(h, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(value, 42);
    EXPECT_EQ(CloseHandle(h), TRUE);
}
