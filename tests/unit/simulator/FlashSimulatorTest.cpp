// The simulator object: singleton life, zero start, Create's rules, commands to the host, per-frame steps.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "LogCapture.h"
#include "TempClientDir.h"
#include "platform/BaseLib.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {
std::vector<std::string> g_commands;
void Primary(const char* cmd, const char* arg) {
    g_commands.push_back(std::string("1:") + cmd + "=" + arg);
}
void Secondary(const char* cmd, const char* arg) {
    g_commands.push_back(std::string("2:") + cmd + "=" + arg);
}

class Simulator : public testing::Test {
protected:
    void SetUp() override {
        g_commands.clear();
        m_dir.Write("ini/FlashString.ini", "8000177=20\n");
    }
    void TearDown() override { FlashSimDestroy(); }
    std::vector<std::string> Registered() const {
        std::vector<std::string> ids;
        for (const auto& r : testlog::Records())
            if (r.level == "HOST" && r.message == "gui.register") ids.push_back(testlog::Key(r, "id"));
        return ids;
    }
    TempClientDir m_dir;
};
} // namespace

TEST_F(Simulator, QueryReturnsOneObjectAndAFreshOneAfterDestroy) {
    CFlashSimulator* first = FlashSimQuery();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(FlashSimQuery(), first);
    EXPECT_EQ(FlashSim(), first);
    first->SetPlayerListArg(9);
    FlashSimDestroy();
    EXPECT_EQ(FlashSim(), nullptr);
    FlashSimDestroy(); // nothing to destroy: no effect
    CFlashSimulator* second = FlashSimQuery();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->GetPlayerListArg(), 1);
    EXPECT_TRUE(second->IsTokenEnabled());
    EXPECT_EQ(second->State().m_eSceneType, EST_LOGIN);
    EXPECT_FALSE(second->IsMusicOn());
}

TEST_F(Simulator, CreateRegistersEveryDialogInOrderOnce) {
    CFlashSimulator* sim = FlashSimQuery();
    sim->Create(0, 0, 0, true);
    sim->Create(0, 0, 2, true);
    const std::vector<std::string> expected = {"1004", "1000", "1001", "1002", "1008", "1003", "1005",
                                               "1006", "1007", "1008", "1009", "1010", "1011", "1013",
                                               "1015", "1017", "1019", "1018", "1016", "1020", "1021",
                                               "2000", "1022", "1023", "1024"};
    EXPECT_EQ(Registered(), expected);
    EXPECT_EQ(host::JournalCount("gui.init"), 1);
    EXPECT_EQ(sim->State().m_nLanguage, 0);
}

TEST_F(Simulator, LayoutFileNameFollowsTheLanguage) {
    const std::pair<int, const char*> cases[] = {
        {0, "FlashGui.ini"}, {-3, "FlashGui.ini"}, {2, "FlashGui_2.ini"}};
    for (const auto& [language, file] : cases) {
        FlashSimQuery()->Create(0, 0, language, false);
        ASSERT_FALSE(testlog::Records().empty());
        const auto& init = testlog::Records().front();
        EXPECT_EQ(init.message, "gui.init");
        EXPECT_EQ(testlog::Key(init, "file"), file) << "language " << language;
        FlashSimDestroy();
        host::ResetForTest();
        const_cast<std::vector<host::LogRecord>&>(testlog::Records()).clear();
    }
}

TEST_F(Simulator, WithoutRegistrationNoDialogAndNoSoundCallback) {
    FlashSimQuery()->Create(0, 0, 0, false);
    EXPECT_TRUE(Registered().empty());
    EXPECT_EQ(host::JournalCount("gui.soundcb"), 0);
    EXPECT_EQ(FlashSim()->GetStrInt(8000177), 20) << "strings still load";
}

TEST_F(Simulator, PrimaryCallbackCountsOnlyAfterCreate) {
    CFlashSimulator* sim = FlashSimQuery();
    sim->SetCallBack(&Primary);
    sim->SetCallBackEx(&Secondary);
    sim->NotifyHost("CMD_A", "x");
    EXPECT_EQ(g_commands, std::vector<std::string>{"2:CMD_A=x"});
    sim->Create(0, 0, 0, false);
    sim->SetCallBack(&Primary);
    g_commands.clear();
    sim->NotifyHost("CMD_B", "");
    EXPECT_EQ(g_commands, (std::vector<std::string>{"1:CMD_B=", "2:CMD_B="}));
    g_commands.clear();
    sim->NotifyHost(nullptr, "x");
    sim->NotifyHost("CMD_C", nullptr);
    EXPECT_TRUE(g_commands.empty()) << "a null text suppresses the command";
}

TEST_F(Simulator, ForcedProfessionTypeHidesServerValues) {
    CFlashSimulator* sim = FlashSimQuery();
    sim->SetCreateRoleParam(5, 6, 7, 8, 9, true, 1, 2);
    EXPECT_EQ(sim->State().m_nNewServer, 0);
    EXPECT_FALSE(sim->State().m_nSwitchB > 0);
    EXPECT_EQ(sim->GetForcedTypeIndex(), 3);
    for (int notForced : {6, 14}) {
        sim->SetCreateRoleParam(5, 6, 7, 8, notForced, false, 0, 0);
        EXPECT_EQ(sim->State().m_nNewServer, 5);
        EXPECT_TRUE(sim->State().m_nSwitchB > 0);
        EXPECT_EQ(sim->GetForcedTypeIndex(), 0);
    }
    const int types[] = {8, 7, 11, 9, 10, 12, 13};
    for (int i = 0; i < 7; ++i) {
        sim->SetCreateRoleParam(0, 0, 0, 0, types[i], false, 0, 0);
        EXPECT_EQ(sim->GetForcedTypeIndex(), i);
    }
}

TEST_F(Simulator, PerFrameCallsLeaveTheirDumpStepsAndDriveSoundOnlyWithMusic) {
    CFlashSimulator* sim = FlashSimQuery();
    sim->Create(0, 0, 0, true);
    sim->Process();
    EXPECT_EQ(g_nDumpStep, 5004233);
    EXPECT_EQ(host::JournalCount("sound.process"), 0);
    sim->SetMusic(true);
    sim->Process();
    EXPECT_EQ(host::JournalCount("sound.process"), 1);
    EXPECT_EQ(host::JournalCount("sound.media"), 1);
    sim->Show();
    EXPECT_EQ(g_nDumpStep, 5004235);
    sim->SetMusic(false);
    EXPECT_EQ(host::JournalCount("sound.media"), 1) << "switching off only silences";
    EXPECT_EQ(host::JournalCount("sound.volume"), 2);
}

TEST_F(Simulator, NameCheckSendsEachOnceEventOncePerProcess) {
    CFlashSimulator* sim = FlashSimQuery();
    sim->Create(0, 0, 0, false);
    sim->SetCallBack(&Primary);
    sim->SetNameCheck(true, false, true);
    EXPECT_TRUE(g_commands.empty()) << "not ready: nothing sent";
    EXPECT_TRUE(sim->IsNameChecked());
    sim->SetNameCheck(true, true, false);
    EXPECT_FALSE(sim->IsRoleReady()) << "ready is stored only with update";
    EXPECT_EQ(g_commands, std::vector<std::string>{"1:BURYING_POINT=412"})
        << "the arguments decide, not the flags";
    sim->SetNameCheck(true, true, true);
    EXPECT_TRUE(sim->IsRoleReady());
    FlashSimDestroy();
    sim = FlashSimQuery();
    sim->Create(0, 0, 0, false);
    sim->SetCallBack(&Primary);
    sim->SetNameCheck(true, true, true);
    EXPECT_EQ(g_commands.size(), 1u) << "once per process, not per simulator object";
}

TEST_F(Simulator, NullHostTextsDoNotCrash) {
    CFlashSimulator* sim = FlashSimQuery();
    sim->Create(0, 0, 0, true);
    sim->SetVariable(nullptr, nullptr);
    EXPECT_EQ(sim->GetVariable(nullptr), nullptr);
    sim->SetRandomName(nullptr, 0);
    sim->OpenWebAddress(nullptr);
    sim->OpenWebAddress("");
    EXPECT_EQ(host::JournalCount("shell.open"), 0);
    sim->OpenWebAddress("http://example.invalid/");
    EXPECT_EQ(host::JournalCount("shell.open"), 1);
}
