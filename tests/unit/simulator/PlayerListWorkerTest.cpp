// The player-list worker beside the host's own calls: string reloads, frames and the simulator's end, in
// every order a host may choose. Run under AddressSanitizer and ThreadSanitizer.
#include "SimulatorFixture.h"
#include "platform/BaseLib.h"

namespace {
constexpr int ROUNDS = 200;
constexpr const char* STRINGS = "8000176=http://127.0.0.1/list\n8000177=20\n";

int DownloadsWith(const std::string& address, const std::string& arg) {
    int n = 0;
    for (const host::LogRecord& record : testlog::Records())
        if (record.message == "role.playerlist" && testlog::Key(record, "address") == address &&
            testlog::Key(record, "arg") == arg)
            ++n;
    return n;
}
} // namespace

class PlayerListWorker : public SimulatorFixture {};

TEST_F(PlayerListWorker, ReloadsAndFramesWhileItRunsLeaveItTheTextsItStartedWith) {
    Create(0, STRINGS);
    m_sim->SetPlayerListArg(5);
    for (int i = 0; i < ROUNDS; ++i) {
        HANDLE hThread = m_sim->StartPlayerListThread();
        ASSERT_NE(hThread, nullptr);
        m_dir.Write("ini/FlashString.ini", i % 2 ? STRINGS : "8000176=http://127.0.0.1/other\n");
        m_sim->ReloadStrings();
        m_sim->Process();
        m_sim->Show();
        EXPECT_EQ(WaitForSingleObject(hThread, INFINITE), WAIT_OBJECT_0);
        CloseHandle(hThread);
    }
    // Each worker downloads with the address of the table it was started with, never a freed or mixed one.
    const int nFirst = DownloadsWith("http://127.0.0.1/list", "5");
    const int nOther = DownloadsWith("http://127.0.0.1/other", "5");
    EXPECT_EQ(nFirst + nOther, ROUNDS);
    EXPECT_EQ(nOther, ROUNDS / 2) << "rounds after an odd reload start with the other address";
}

TEST_F(PlayerListWorker, TheSimulatorCanEndWhileItRuns) {
    Create(0, STRINGS);
    for (int i = 0; i < ROUNDS; ++i) {
        m_sim->SetPlayerListArg(i);
        HANDLE hThread = m_sim->StartPlayerListThread();
        ASSERT_NE(hThread, nullptr);
        FlashSimDestroy();
        EXPECT_EQ(WaitForSingleObject(hThread, INFINITE), WAIT_OBJECT_0);
        CloseHandle(hThread);
        m_sim = FlashSimQuery();
        m_sim->Create(0, 0, 0, true);
    }
    EXPECT_EQ(DownloadsWith("http://127.0.0.1/list", "199"), 1);
    int nDownloads = 0;
    for (const host::LogRecord& record : testlog::Records())
        nDownloads += record.message == "role.playerlist";
    EXPECT_EQ(nDownloads, ROUNDS);
}

TEST_F(PlayerListWorker, AClosedHandleLetsItFinishOnItsOwn) {
    Create(0, STRINGS);
    for (int i = 0; i < ROUNDS; ++i) {
        CloseHandle(m_sim->StartPlayerListThread()); // the host forgets it at once
        FlashSimDestroy();
        m_sim = FlashSimQuery();
        m_sim->Create(0, 0, 0, true);
    }
    // NOTE: the detached workers hold only their own copies; one last joined worker shows the machinery
    // works.
    HANDLE hThread = m_sim->StartPlayerListThread();
    EXPECT_EQ(WaitForSingleObject(hThread, INFINITE), WAIT_OBJECT_0);
    CloseHandle(hThread);
}
